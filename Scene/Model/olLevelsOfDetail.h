#pragma once

#include "Model/olTriangles.h"

#include <TopoDS_Shape.hxx>

#include <vector>

/// Several densities of triangles for one shape. The finest is level 0; it is the one in use, which is counted and
/// exported.
namespace olLevelsOfDetail
{

/// Adds coarser levels to a shape of surfaces that has its finest triangles already.
void add(const TopoDS_Shape &shape, const std::vector<olTriangles::Fineness> &coarser);

/// 1 for a shape without levels.
[[nodiscard]] int count(const TopoDS_Shape &shape);

/// The level, of so many, for a shape that is so many pixels large.
[[nodiscard]] int forSize(double pixels, int levels);

/// Has a shape use one of its levels while this lives.
class InUse
{
public:
    InUse(TopoDS_Shape shape, int level);
    ~InUse();
    InUse(const InUse &) = delete;
    InUse &operator=(const InUse &) = delete;

private:
    TopoDS_Shape m_shape;
    int m_level;
};

} // namespace olLevelsOfDetail
