#pragma once

#include <OpenSG/OSGColor.h>

#include <Standard_Handle.hxx>

#include <vector>

class Graphic3d_Texture2D;

/// The background: colours at positions from 0 at the bottom to 1 at the top, in any order and number.
class olGradient
{
public:
    /// Positions beyond the colours are dropped; a colour without a position stands at 0.
    olGradient(const std::vector<osg::Color3f> &colors, const std::vector<float> &positions);

    /// Black where there is no colour at all. Of several colours at one place the later one counts above it.
    [[nodiscard]] osg::Color3f at(float position) const;

    /// A picture of it, to be stretched over a view of that many rows; of any other number its ends would mix.
    [[nodiscard]] opencascade::handle<Graphic3d_Texture2D> texture(int rows) const;

private:
    struct Stop {
        float position;
        osg::Color3f color;
    };
    std::vector<Stop> m_stops;
};
