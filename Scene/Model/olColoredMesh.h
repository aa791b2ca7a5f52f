#pragma once

#include <Poly_Triangulation.hxx>

#include <cstdint>
#include <vector>

/// Triangles whose nodes have colours of their own, between which they blend.
class olColoredMesh : public Poly_Triangulation
{
    DEFINE_STANDARD_RTTI_INLINE(olColoredMesh, Poly_Triangulation)

public:
    using Poly_Triangulation::Poly_Triangulation;

    /// Red, green, blue and opacity of a colour from the lowest byte up, in sRGB; one of each node.
    std::vector<std::uint32_t> colors;

    Handle(Poly_Triangulation) Copy() const override
    {
        auto *copy = new olColoredMesh(Poly_Triangulation::Copy());
        copy->colors = colors;
        return Handle(Poly_Triangulation)(copy);
    }
};
