#include "View/olGradient.h"

#include <Graphic3d_Texture2D.hxx>
#include <Graphic3d_TextureParams.hxx>
#include <Graphic3d_Vec3.hxx>
#include <Image_PixMap.hxx>
#include <Quantity_Color.hxx>

#include <algorithm>
#include <cmath>

namespace
{

// What graphics cards align rows to.
constexpr int columns = 4;

/// A texture of pixels that were made here; the library's own class for it goes by another name in each version.
class Pixels : public Graphic3d_Texture2D
{
public:
    explicit Pixels(const Handle(Image_PixMap) & pixels) : Graphic3d_Texture2D(pixels, Graphic3d_TOT_2D) {}
};

/// The renderer mixes light; the numbers of the screen are not in proportion to it.
Graphic3d_Vec3 toLight(const osg::Color3f &color)
{
    const auto channel = [](float value) { return std::clamp(value, 0.0f, 1.0f); };
    return Quantity_Color::Convert_sRGB_To_LinearRGB(
        Graphic3d_Vec3(channel(color.red()), channel(color.green()), channel(color.blue())));
}

osg::Color3f between(const osg::Color3f &from, const osg::Color3f &to, float share)
{
    return {from.red() + (to.red() - from.red()) * share, from.green() + (to.green() - from.green()) * share,
            from.blue() + (to.blue() - from.blue()) * share};
}

} // namespace

olGradient::olGradient(const std::vector<osg::Color3f> &colors, const std::vector<float> &positions)
{
    for (std::size_t i = 0; i < colors.size(); ++i)
        m_stops.push_back({i < positions.size() && std::isfinite(positions[i]) ? positions[i] : 0.0f, colors[i]});
    std::stable_sort(m_stops.begin(), m_stops.end(),
                     [](const Stop &left, const Stop &right) { return left.position < right.position; });
}

osg::Color3f olGradient::at(float position) const
{
    if (m_stops.empty())
        return {0.0f, 0.0f, 0.0f};
    const auto above = std::upper_bound(m_stops.begin(), m_stops.end(), position,
                                        [](float value, const Stop &stop) { return value < stop.position; });
    if (above == m_stops.begin())
        return m_stops.front().color;
    if (above == m_stops.end())
        return m_stops.back().color;
    const Stop &below = *std::prev(above);
    return between(below.color, above->color, (position - below.position) / (above->position - below.position));
}

Handle(Graphic3d_Texture2D) olGradient::texture(int rows) const
{
    const Handle(Image_PixMap) pixels = new Image_PixMap();
    pixels->SetTopDown(true);
    // In numbers, for steps of a byte would show as bands where a picture has finer ones.
    if (!pixels->InitTrash(Image_Format_RGBF, columns, rows))
        return {};
    for (int row = 0; row < rows; ++row) {
        const Graphic3d_Vec3 light = toLight(at(1.0f - (float(row) + 0.5f) / float(rows)));
        for (int column = 0; column < columns; ++column)
            pixels->ChangeValue<Graphic3d_Vec3>(row, column) = light;
    }
    const Handle(Graphic3d_Texture2D) texture = new Pixels(pixels);
    texture->DisableModulate();
    texture->GetParams()->SetRepeat(Standard_True);
    return texture;
}
