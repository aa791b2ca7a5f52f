#pragma once

#include <cmath>

namespace osg
{
// The inline namespace keeps these symbols apart from those of the real library, should both ever meet in one process.
inline namespace standin
{

/// A colour of three floats, red first. The usual range is 0 to 1; nothing is clamped.
class Color3f
{
public:
    Color3f() = default;
    Color3f(float red, float green, float blue) : m_rgb{red, green, blue} {}

    [[nodiscard]] float red() const { return m_rgb[0]; }
    [[nodiscard]] float green() const { return m_rgb[1]; }
    [[nodiscard]] float blue() const { return m_rgb[2]; }

    void setValuesRGB(float red, float green, float blue)
    {
        m_rgb[0] = red;
        m_rgb[1] = green;
        m_rgb[2] = blue;
    }
    void getValuesRGB(float &red, float &green, float &blue) const
    {
        red = m_rgb[0];
        green = m_rgb[1];
        blue = m_rgb[2];
    }

    float &operator[](unsigned channel) { return m_rgb[channel]; }
    const float &operator[](unsigned channel) const { return m_rgb[channel]; }

    /// Equal within 1e-6 a channel, as in the real library. Where every difference counts, compare the channels.
    bool operator==(const Color3f &other) const
    {
        constexpr float tolerance = 1e-6f;
        return std::fabs(m_rgb[0] - other.m_rgb[0]) < tolerance && std::fabs(m_rgb[1] - other.m_rgb[1]) < tolerance &&
               std::fabs(m_rgb[2] - other.m_rgb[2]) < tolerance;
    }
    bool operator!=(const Color3f &other) const { return !(*this == other); }

private:
    float m_rgb[3] = {0.0f, 0.0f, 0.0f};
};

} // namespace standin
} // namespace osg
