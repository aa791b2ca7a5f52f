#pragma once

#include <OSGConfig.h>

#include <cmath>

namespace osg
{

template <class Value> class Color3
{
public:
    Color3() : m_rgb{} {}
    Color3(Value red, Value green, Value blue) : m_rgb{red, green, blue} {}

    Value red() const { return m_rgb[0]; }
    Value green() const { return m_rgb[1]; }
    Value blue() const { return m_rgb[2]; }
    Value &operator[](const unsigned index) { return m_rgb[index]; }
    const Value &operator[](const unsigned index) const { return m_rgb[index]; }

    void setValuesRGB(const Value red, const Value green, const Value blue) { *this = Color3(red, green, blue); }
    void getValuesRGB(Value &red, Value &green, Value &blue) const
    {
        red = m_rgb[0];
        green = m_rgb[1];
        blue = m_rgb[2];
    }

    bool operator==(const Color3 &other) const
    {
        return std::fabs(m_rgb[0] - other.m_rgb[0]) < 1e-6 && std::fabs(m_rgb[1] - other.m_rgb[1]) < 1e-6 &&
               std::fabs(m_rgb[2] - other.m_rgb[2]) < 1e-6;
    }
    bool operator!=(const Color3 &other) const { return !(*this == other); }

private:
    Value m_rgb[3];
};

using Color3f = Color3<float>;

} // namespace osg
