#include "Exchange/Formats/olVrmlMesh.h"

#include <BRep_Builder.hxx>
#include <Poly_Triangulation.hxx>
#include <VrmlData_Coordinate.hxx>
#include <VrmlData_IndexedFaceSet.hxx>
#include <VrmlData_TextureCoordinate.hxx>

#include <vector>

namespace
{

using Set = Handle(VrmlData_IndexedFaceSet);

struct Corner {
    gp_Pnt point;
    gp_Pnt2d texture;
};

/// Where in the texture each corner of a polygon lies: by indices of its own, else by those of the points.
const int *textureIndices(const Set &set, int polygon, int corners, const int *points)
{
    const int **arrays = nullptr;
    if (polygon >= int(set->ArrayTextureCoordInd(arrays)))
        return points;
    return arrays[polygon][0] == corners ? arrays[polygon] + 1 : nullptr;
}

bool lie(const int *indices, int count, std::size_t end)
{
    for (int corner = 0; corner < count; ++corner) {
        if (indices[corner] < 0 || std::size_t(indices[corner]) >= end)
            return false;
    }
    return true;
}

int polygonsOf(const Set &set)
{
    const int **polygons = nullptr;
    return int(set->Polygons(polygons));
}

std::vector<Corner> trianglesOf(const Set &set)
{
    std::vector<Corner> corners;
    const Handle(VrmlData_TextureCoordinate) texture = set->TextureCoords();
    for (int polygon = 0; polygon < polygonsOf(set); ++polygon) {
        const int *points = nullptr;
        const int count = set->Polygon(polygon, points);
        const int *places = textureIndices(set, polygon, count, points);
        if (!places || !lie(places, count, texture->Length()))
            return {};
        const auto corner = [&](int index) {
            return Corner{gp_Pnt(set->Coordinates()->Coordinate(points[index])),
                          gp_Pnt2d(texture->Points()[places[index]])};
        };
        for (int last = 2; last < count; ++last) {
            const int second = set->IsCCW() ? last - 1 : last;
            const int third = set->IsCCW() ? last : last - 1;
            corners.insert(corners.end(), {corner(0), corner(second), corner(third)});
        }
    }
    return corners;
}

} // namespace

bool olVrmlMesh::isWhole(const Set &set)
{
    if (set->Coordinates().IsNull())
        return polygonsOf(set) == 0;
    for (int polygon = 0; polygon < polygonsOf(set); ++polygon) {
        const int *points = nullptr;
        const int count = set->Polygon(polygon, points);
        if (!lie(points, count, set->Coordinates()->Length()))
            return false;
    }
    return true;
}

TopoDS_Face olVrmlMesh::withTexture(const Set &set)
{
    if (set->TextureCoords().IsNull() || set->Coordinates().IsNull())
        return {};
    const std::vector<Corner> corners = trianglesOf(set);
    if (corners.empty())
        return {};
    const int count = int(corners.size());
    const Handle(Poly_Triangulation) mesh = new Poly_Triangulation(count, count / 3, Standard_True);
    for (int node = 1; node <= count; ++node) {
        mesh->SetNode(node, corners[std::size_t(node - 1)].point);
        mesh->SetUVNode(node, corners[std::size_t(node - 1)].texture);
    }
    for (int triangle = 1; triangle <= count / 3; ++triangle)
        mesh->SetTriangle(triangle, Poly_Triangle(3 * triangle - 2, 3 * triangle - 1, 3 * triangle));
    TopoDS_Face face;
    BRep_Builder().MakeFace(face, mesh);
    return face;
}
