#include "Model/olMeshTools.h"

#include <BRep_Builder.hxx>
#include <BRep_Tool.hxx>
#include <Poly_Triangulation.hxx>
#include <StdPrs_ToolTriangulatedShape.hxx>
#include <TopLoc_Location.hxx>
#include <gp_Dir.hxx>
#include <gp_Trsf.hxx>

#include <algorithm>
#include <cmath>
#include <map>
#include <queue>

namespace
{

using Mesh = Handle(Poly_Triangulation);
using Edge = std::pair<int, int>;

struct Neighbours {
    int first = 0;
    int second = 0;
    bool isManifold = true;
};

Edge sorted(int from, int to) { return from < to ? Edge{from, to} : Edge{to, from}; }

std::map<Edge, Neighbours> neighboursOf(const Mesh &mesh)
{
    std::map<Edge, Neighbours> edges;
    for (int index = 1; index <= mesh->NbTriangles(); ++index) {
        int n[3];
        mesh->Triangle(index).Get(n[0], n[1], n[2]);
        for (int side = 0; side < 3; ++side) {
            Neighbours &edge = edges[sorted(n[side], n[(side + 1) % 3])];
            if (edge.first == 0)
                edge.first = index;
            else if (edge.second == 0)
                edge.second = index;
            else
                edge.isManifold = false;
        }
    }
    return edges;
}

bool runsAlong(const Poly_Triangle &triangle, int from, int to)
{
    int n[3];
    triangle.Get(n[0], n[1], n[2]);
    return (n[0] == from && n[1] == to) || (n[1] == from && n[2] == to) || (n[2] == from && n[0] == to);
}

void turn(const Mesh &mesh, int index)
{
    int n[3];
    mesh->Triangle(index).Get(n[0], n[1], n[2]);
    mesh->SetTriangle(index, Poly_Triangle(n[0], n[2], n[1]));
}

/// Turns the neighbours of a triangle that is right already, and notes those that were not reached before.
bool turnNeighbours(const Mesh &mesh, int index, const std::map<Edge, Neighbours> &edges, std::vector<char> &isDone,
                    std::queue<int> &next)
{
    bool isTurned = false;
    int n[3];
    mesh->Triangle(index).Get(n[0], n[1], n[2]);
    for (int side = 0; side < 3; ++side) {
        const int from = n[side];
        const int to = n[(side + 1) % 3];
        const Neighbours &edge = edges.at(sorted(from, to));
        const int other = edge.first == index ? edge.second : edge.first;
        if (other == 0 || !edge.isManifold || isDone[std::size_t(other)])
            continue;
        isDone[std::size_t(other)] = 1;
        next.push(other);
        if (!runsAlong(mesh->Triangle(other), from, to))
            continue;
        turn(mesh, other);
        isTurned = true;
    }
    return isTurned;
}

TopoDS_Face faceOf(const Mesh &mesh)
{
    TopoDS_Face face;
    BRep_Builder().MakeFace(face, mesh);
    return face;
}

} // namespace

bool olMeshTools::isWhole(const Mesh &mesh)
{
    // No model is larger than this, and what is cannot be computed with.
    constexpr double farthest = 1e30;
    for (int index = 1; index <= mesh->NbNodes(); ++index) {
        const gp_Pnt point = mesh->Node(index);
        // Written so that what is no number fails too.
        if (!(std::abs(point.X()) < farthest && std::abs(point.Y()) < farthest && std::abs(point.Z()) < farthest))
            return false;
    }
    for (int index = 1; index <= mesh->NbTriangles(); ++index) {
        int n[3];
        mesh->Triangle(index).Get(n[0], n[1], n[2]);
        if (std::min({n[0], n[1], n[2]}) < 1 || std::max({n[0], n[1], n[2]}) > mesh->NbNodes())
            return false;
    }
    return true;
}

void olMeshTools::orientAlike(const Mesh &mesh)
{
    const std::map<Edge, Neighbours> edges = neighboursOf(mesh);
    std::vector<char> isDone(std::size_t(mesh->NbTriangles()) + 1, 0);
    bool isTurned = false;
    for (int seed = 1; seed <= mesh->NbTriangles(); ++seed) {
        if (isDone[std::size_t(seed)])
            continue;
        isDone[std::size_t(seed)] = 1;
        std::queue<int> next;
        for (next.push(seed); !next.empty(); next.pop())
            isTurned = turnNeighbours(mesh, next.front(), edges, isDone, next) || isTurned;
    }
    if (isTurned && mesh->HasNormals())
        mesh->ComputeNormals();
}

TopoDS_Face olMeshTools::merged(const std::vector<TopoDS_Face> &faces)
{
    int nodes = 0;
    int triangles = 0;
    bool hasNormals = true;
    bool hasTexture = true;
    TopLoc_Location location;
    for (const TopoDS_Face &face : faces) {
        const Mesh mesh = BRep_Tool::Triangulation(face, location);
        nodes += mesh->NbNodes();
        triangles += mesh->NbTriangles();
        hasNormals = hasNormals && mesh->HasNormals();
        hasTexture = hasTexture && mesh->HasUVNodes();
    }
    const Mesh all = new Poly_Triangulation(nodes, triangles, hasTexture, hasNormals);
    int node = 0;
    int triangle = 0;
    for (const TopoDS_Face &face : faces) {
        const Mesh mesh = BRep_Tool::Triangulation(face, location);
        const gp_Trsf where = location.Transformation();
        const bool isReversed = face.Orientation() == TopAbs_REVERSED;
        const int before = node;
        for (int index = 1; index <= mesh->NbNodes(); ++index) {
            all->SetNode(++node, mesh->Node(index).Transformed(where));
            if (hasNormals) {
                const gp_Dir normal = mesh->Normal(index).Transformed(where);
                all->SetNormal(node, isReversed ? normal.Reversed() : normal);
            }
            if (hasTexture)
                all->SetUVNode(node, mesh->UVNode(index));
        }
        for (int index = 1; index <= mesh->NbTriangles(); ++index) {
            int n[3];
            mesh->Triangle(index).Get(n[0], n[1], n[2]);
            if (isReversed)
                std::swap(n[1], n[2]);
            all->SetTriangle(++triangle, Poly_Triangle(before + n[0], before + n[1], before + n[2]));
        }
    }
    return faceOf(all);
}

TopoDS_Face olMeshTools::withoutSurface(const TopoDS_Face &face)
{
    TopLoc_Location location;
    const Mesh mesh = BRep_Tool::Triangulation(face, location);
    if (mesh.IsNull())
        return {};
    const Mesh copy = mesh->Copy();
    StdPrs_ToolTriangulatedShape::ComputeNormals(face, copy);
    TopoDS_Face bare = faceOf(copy);
    bare.Location(location);
    bare.Orientation(face.Orientation());
    return bare;
}

Mesh olMeshTools::withoutDegenerate(const Mesh &mesh)
{
    std::vector<Poly_Triangle> sound;
    for (int index = 1; index <= mesh->NbTriangles(); ++index) {
        int n[3];
        mesh->Triangle(index).Get(n[0], n[1], n[2]);
        const gp_Vec one(mesh->Node(n[0]), mesh->Node(n[1]));
        const gp_Vec other(mesh->Node(n[0]), mesh->Node(n[2]));
        if (one.Crossed(other).SquareMagnitude() > 0)
            sound.push_back(mesh->Triangle(index));
    }
    if (sound.empty())
        return {};
    if (int(sound.size()) == mesh->NbTriangles())
        return mesh;
    const Mesh cleaned = mesh->Copy();
    cleaned->ResizeTriangles(int(sound.size()), Standard_False);
    for (std::size_t index = 0; index < sound.size(); ++index)
        cleaned->SetTriangle(int(index) + 1, sound[index]);
    return cleaned;
}
