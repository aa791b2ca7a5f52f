#include "Model/olLevelsOfDetail.h"

#include <BRepBuilderAPI_Copy.hxx>
#include <BRep_Builder.hxx>
#include <BRep_TFace.hxx>
#include <BRep_Tool.hxx>
#include <Poly_Triangulation.hxx>
#include <TopExp_Explorer.hxx>
#include <TopoDS.hxx>

#include <algorithm>
#include <utility>

namespace
{

/// Larger than this a shape is drawn with its finest triangles; each further level serves to a third of that.
constexpr double finestFrom = 90.0;

std::vector<TopoDS_Face> facesOf(const TopoDS_Shape &shape)
{
    std::vector<TopoDS_Face> faces;
    for (TopExp_Explorer each(shape, TopAbs_FACE); each.More(); each.Next())
        faces.push_back(TopoDS::Face(each.Current()));
    return faces;
}

const Poly_ListOfTriangulation &triangulationsOf(const TopoDS_Face &face)
{
    TopLoc_Location location;
    return BRep_Tool::Triangulations(face, location);
}

void use(const TopoDS_Shape &shape, int level)
{
    for (const TopoDS_Face &face : facesOf(shape)) {
        const Poly_ListOfTriangulation &levels = triangulationsOf(face);
        if (level >= levels.Size())
            continue;
        Poly_ListOfTriangulation::Iterator wanted(levels);
        for (int passed = 0; passed < level; ++passed)
            wanted.Next();
        const Handle(Poly_Triangulation) triangles = wanted.Value();
        BRep_Builder().UpdateFace(face, triangles, Standard_False);
    }
}

} // namespace

void olLevelsOfDetail::add(const TopoDS_Shape &shape, const std::vector<olTriangles::Fineness> &coarser)
{
    const std::vector<TopoDS_Face> faces = facesOf(shape);
    std::vector<Poly_ListOfTriangulation> levels;
    levels.reserve(faces.size());
    for (const TopoDS_Face &face : faces)
        levels.push_back(triangulationsOf(face));
    for (const olTriangles::Fineness &fineness : coarser) {
        const TopoDS_Shape copy = BRepBuilderAPI_Copy(shape).Shape();
        olTriangles::mesh(copy, fineness);
        const std::vector<TopoDS_Face> copies = facesOf(copy);
        for (std::size_t face = 0; face < std::min(faces.size(), copies.size()); ++face) {
            TopLoc_Location location;
            levels[face].Append(BRep_Tool::Triangulation(copies[face], location));
        }
    }
    for (std::size_t face = 0; face < faces.size(); ++face) {
        const Handle(BRep_TFace) surface = Handle(BRep_TFace)::DownCast(faces[face].TShape());
        surface->Triangulations(levels[face], levels[face].First());
    }
}

int olLevelsOfDetail::count(const TopoDS_Shape &shape)
{
    int levels = 1;
    for (TopExp_Explorer each(shape, TopAbs_FACE); each.More(); each.Next())
        levels = std::max(levels, triangulationsOf(TopoDS::Face(each.Current())).Size());
    return levels;
}

int olLevelsOfDetail::forSize(double pixels, int levels)
{
    int level = 0;
    for (double needed = finestFrom; pixels < needed && level + 1 < levels; needed /= 3.0)
        ++level;
    return level;
}

olLevelsOfDetail::InUse::InUse(TopoDS_Shape shape, int level) : m_shape(std::move(shape)), m_level(level)
{
    if (m_level > 0)
        use(m_shape, m_level);
}

olLevelsOfDetail::InUse::~InUse()
{
    if (m_level > 0)
        use(m_shape, 0);
}
