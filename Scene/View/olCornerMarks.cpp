#include "View/olCornerMarks.h"

#include <Graphic3d_ArrayOfSegments.hxx>
#include <Graphic3d_AspectLine3d.hxx>
#include <Prs3d_Presentation.hxx>

#include <algorithm>
#include <cmath>

namespace
{

constexpr double plainShare = 0.12;
constexpr double lineWidth = 2.0;
constexpr int segmentsOfBox = 8 * 3;

void addCorners(Graphic3d_ArrayOfSegments &segments, const Bnd_Box &box, double size)
{
    const gp_Pnt low = box.CornerMin();
    const gp_Pnt high = box.CornerMax();
    const gp_XYZ sides = high.XYZ() - low.XYZ();
    const double length = plainShare * size * std::max({sides.X(), sides.Y(), sides.Z()});
    for (int corner = 0; corner < 8; ++corner) {
        gp_XYZ at;
        for (int axis = 0; axis < 3; ++axis)
            at.SetCoord(axis + 1, (corner >> axis & 1) ? high.Coord(axis + 1) : low.Coord(axis + 1));
        for (int axis = 1; axis <= 3; ++axis) {
            // Marks of two corners meet in the middle of an edge at most.
            const double reach = std::min(length, sides.Coord(axis) / 2);
            gp_XYZ end = at;
            end.SetCoord(axis, at.Coord(axis) + ((corner >> (axis - 1) & 1) ? -reach : reach));
            segments.AddVertex(gp_Pnt(at));
            segments.AddVertex(gp_Pnt(end));
        }
    }
}

} // namespace

void olCornerMarks::setMarks(const std::vector<Bnd_Box> &boxes, double size, const Quantity_Color &color)
{
    m_boxes = boxes;
    m_size = std::isfinite(size) ? std::max(size, 0.0) : 1.0;
    m_color = color;
    SetToUpdate();
}

void olCornerMarks::Compute(const Handle(PrsMgr_PresentationManager) &, const Handle(Prs3d_Presentation) & presentation,
                            const Standard_Integer)
{
    if (m_boxes.empty() || m_size <= 0.0)
        return;
    const Handle(Graphic3d_ArrayOfSegments) segments =
        new Graphic3d_ArrayOfSegments(int(m_boxes.size()) * segmentsOfBox * 2);
    for (const Bnd_Box &box : m_boxes)
        addCorners(*segments, box, m_size);
    const Handle(Graphic3d_Group) group = presentation->NewGroup();
    group->SetGroupPrimitivesAspect(new Graphic3d_AspectLine3d(m_color, Aspect_TOL_SOLID, lineWidth));
    group->AddPrimitiveArray(segments);
}
