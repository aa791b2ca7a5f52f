#include "Model/olMeshTools.h"

#include "Model/olColoredMesh.h"

#include <BRep_Builder.hxx>
#include <BRep_Tool.hxx>
#include <Poly_Triangulation.hxx>
#include <StdPrs_ToolTriangulatedShape.hxx>
#include <TopLoc_Location.hxx>
#include <gp.hxx>
#include <gp_Dir.hxx>
#include <gp_Trsf.hxx>

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstring>
#include <numeric>
#include <unordered_map>
#include <utility>
#include <vector>

namespace
{

using Mesh = Handle(Poly_Triangulation);

/// The three nodes of all triangles, from 0 up.
std::vector<int> cornersOf(const Mesh &mesh)
{
    std::vector<int> corners(3 * std::size_t(mesh->NbTriangles()));
    for (int triangle = 1; triangle <= mesh->NbTriangles(); ++triangle) {
        int *at = &corners[3 * std::size_t(triangle - 1)];
        mesh->Triangle(triangle).Get(at[0], at[1], at[2]);
        for (int corner = 0; corner < 3; ++corner)
            --at[corner];
    }
    return corners;
}

/// One number for all nodes that lie in one place.
std::vector<int> placesOf(const Mesh &mesh)
{
    const auto count = std::size_t(mesh->NbNodes());
    std::size_t size = 16;
    while (size < 2 * count)
        size *= 2;
    std::vector<int> table(size, -1);
    std::vector<int> places(count);
    for (std::size_t node = 0; node < count; ++node) {
        const gp_Pnt point = mesh->Node(int(node) + 1);
        std::uint64_t hash = 0;
        for (const double part : {point.X() + 0.0, point.Y() + 0.0, point.Z() + 0.0}) {
            std::uint64_t bits = 0;
            std::memcpy(&bits, &part, sizeof(bits));
            hash = (hash ^ bits) * 0x9e3779b97f4a7c15u;
            hash ^= hash >> 32;
        }
        std::size_t slot = hash & (size - 1);
        while (table[slot] >= 0 && !mesh->Node(table[slot] + 1).IsEqual(point, 0.0))
            slot = (slot + 1) & (size - 1);
        if (table[slot] < 0)
            table[slot] = int(node);
        places[node] = table[slot];
    }
    return places;
}

/// For each side of each triangle the side of another that lies along it; -1 at borders, and where more than two meet.
/// Found in a time that grows with the triangles only.
std::vector<int> neighboursOf(const std::vector<int> &corners, const std::vector<int> &places)
{
    constexpr int none = -1;
    constexpr int several = -2;
    // Sides are sorted by the lower of their places; few begin in the same.
    std::vector<int> starts(places.size() + 1, 0);
    std::vector<int> lows(corners.size());
    std::vector<int> highs(corners.size());
    for (std::size_t side = 0; side < corners.size(); ++side) {
        const int one = places[std::size_t(corners[side])];
        const int other = places[std::size_t(corners[side % 3 == 2 ? side - 2 : side + 1])];
        lows[side] = std::min(one, other);
        highs[side] = std::max(one, other);
        ++starts[std::size_t(lows[side]) + 1];
    }
    for (std::size_t place = 0; place < places.size(); ++place)
        starts[place + 1] += starts[place];
    std::vector<int> sorted(corners.size());
    std::vector<int> next(starts.begin(), starts.end() - 1);
    for (std::size_t side = 0; side < corners.size(); ++side)
        sorted[std::size_t(next[std::size_t(lows[side])]++)] = int(side);

    std::vector<int> neighbours(corners.size(), none);
    for (std::size_t place = 0; place < places.size(); ++place) {
        const auto first = sorted.begin() + starts[place];
        const auto last = sorted.begin() + starts[place + 1];
        // Many may begin in the middle of a fan.
        std::sort(first, last, [&](int one, int other) {
            return std::make_pair(highs[std::size_t(one)], one) < std::make_pair(highs[std::size_t(other)], other);
        });
        for (auto begin = first; begin != last;) {
            auto end = begin + 1;
            while (end != last && highs[std::size_t(*end)] == highs[std::size_t(*begin)])
                ++end;
            if (end - begin == 2) {
                neighbours[std::size_t(begin[0])] = begin[1];
                neighbours[std::size_t(begin[1])] = begin[0];
            } else if (end - begin > 2) {
                std::for_each(begin, end, [&](int side) { neighbours[std::size_t(side)] = several; });
            }
            begin = end;
        }
    }
    return neighbours;
}

/// Across a triangle, as long as twice its area.
std::vector<gp_XYZ> crossesOf(const Mesh &mesh, const std::vector<int> &corners)
{
    std::vector<gp_XYZ> crosses(corners.size() / 3);
    for (std::size_t triangle = 0; triangle < crosses.size(); ++triangle) {
        const gp_XYZ one = mesh->Node(corners[3 * triangle] + 1).XYZ();
        crosses[triangle] = (mesh->Node(corners[3 * triangle + 1] + 1).XYZ() - one)
                                .Crossed(mesh->Node(corners[3 * triangle + 2] + 1).XYZ() - one);
    }
    return crosses;
}

/// Corners that share what lies in one place, in groups that grow together.
class Groups
{
public:
    explicit Groups(std::size_t count) : m_parents(count) { std::iota(m_parents.begin(), m_parents.end(), 0); }

    int find(int member)
    {
        while (m_parents[std::size_t(member)] != member) {
            int &parent = m_parents[std::size_t(member)];
            parent = m_parents[std::size_t(parent)];
            member = parent;
        }
        return member;
    }

    void join(int one, int other) { m_parents[std::size_t(find(one))] = find(other); }

private:
    std::vector<int> m_parents;
};

/// How the triangles of a mesh hang together.
struct Net {
    explicit Net(const Mesh &mesh)
        : corners(cornersOf(mesh)), places(placesOf(mesh)), neighbours(neighboursOf(corners, places))
    {
    }

    std::vector<int> corners;
    std::vector<int> places;
    std::vector<int> neighbours;
};

void turn(const Mesh &mesh, int index)
{
    int n[3];
    mesh->Triangle(index).Get(n[0], n[1], n[2]);
    mesh->SetTriangle(index, Poly_Triangle(n[0], n[2], n[1]));
}

/// Turns triangles of the mesh, and of the net, so that neighbours face the same way. Whether any was turned.
bool orient(const Mesh &mesh, Net &net)
{
    const auto placeOf = [&](int side) { return net.places[std::size_t(net.corners[std::size_t(side)])]; };
    const auto count = std::size_t(mesh->NbTriangles());
    std::vector<char> isDone(count, 0);
    std::vector<char> isTurned(count, 0);
    std::vector<int> next;
    bool isAnyTurned = false;
    for (std::size_t seed = 0; seed < count; ++seed) {
        if (isDone[seed])
            continue;
        isDone[seed] = 1;
        next.push_back(int(seed));
        while (!next.empty()) {
            const int triangle = next.back();
            next.pop_back();
            for (int side = 3 * triangle; side < 3 * triangle + 3; ++side) {
                const int opposite = net.neighbours[std::size_t(side)];
                if (opposite < 0 || isDone[std::size_t(opposite / 3)])
                    continue;
                // Neighbours that face the same way run along their side in opposite directions.
                const bool runsAlong = placeOf(side) == placeOf(opposite);
                const auto other = std::size_t(opposite / 3);
                isDone[other] = 1;
                isTurned[other] = char(isTurned[std::size_t(triangle)] != char(runsAlong));
                isAnyTurned = isAnyTurned || isTurned[other];
                next.push_back(int(other));
            }
        }
    }
    if (!isAnyTurned)
        return false;
    // A triangle that is turned has its first side where its last one was.
    for (std::size_t triangle = 0; triangle < count; ++triangle) {
        if (!isTurned[triangle])
            continue;
        turn(mesh, int(triangle) + 1);
        std::swap(net.corners[3 * triangle + 1], net.corners[3 * triangle + 2]);
        std::swap(net.neighbours[3 * triangle], net.neighbours[3 * triangle + 2]);
    }
    for (int &side : net.neighbours) {
        if (side >= 0 && isTurned[std::size_t(side / 3)])
            side += 2 - 2 * (side % 3);
    }
    return true;
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
    constexpr double farthest = 1e15;
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
    Net net(mesh);
    if (orient(mesh, net) && mesh->HasNormals())
        mesh->ComputeNormals();
}

double olMeshTools::areaOf(const Mesh &mesh)
{
    double area = 0;
    for (const gp_XYZ &cross : crossesOf(mesh, cornersOf(mesh)))
        area += cross.Modulus() / 2;
    return area;
}

Mesh olMeshTools::coarser(const Mesh &mesh, double edge)
{
    struct Cluster {
        gp_XYZ place;
        gp_XYZ normal;
        int count = 0;
        int first = 0;
    };
    if (!mesh->HasNormals())
        mesh->ComputeNormals();
    const std::vector<int> corners = cornersOf(mesh);
    const double cube = std::max(edge, gp::Resolution());
    const auto step = [cube](double value) { return std::uint64_t(std::int64_t(std::floor(value / cube))) & 0xfffff; };
    constexpr int directions = 3;
    std::vector<std::uint64_t> cubes;
    std::vector<int> clusterOf;
    std::vector<Cluster> clusters;
    std::unordered_map<std::uint64_t, int> known;
    for (int node = 1; node <= mesh->NbNodes(); ++node) {
        const gp_XYZ place = mesh->Node(node).XYZ();
        const gp_XYZ normal = mesh->Normal(node).XYZ();
        cubes.push_back((step(place.X()) << 40 | step(place.Y()) << 20 | step(place.Z())) << directions);
        const std::uint64_t facing = (normal.X() > 0 ? 1 : 0) | (normal.Y() > 0 ? 2 : 0) | (normal.Z() > 0 ? 4 : 0);
        const auto [found, isNew] = known.emplace(cubes.back() | facing, int(clusters.size()));
        if (isNew)
            clusters.push_back({{}, {}, 0, node});
        Cluster &cluster = clusters[std::size_t(found->second)];
        cluster.place += place;
        cluster.normal += normal;
        ++cluster.count;
        clusterOf.push_back(found->second + 1);
    }
    std::vector<Poly_Triangle> kept;
    for (std::size_t at = 0; at < corners.size(); at += 3) {
        const auto a = std::size_t(corners[at]);
        const auto b = std::size_t(corners[at + 1]);
        const auto c = std::size_t(corners[at + 2]);
        if (cubes[a] != cubes[b] && cubes[b] != cubes[c] && cubes[c] != cubes[a])
            kept.emplace_back(clusterOf[a], clusterOf[b], clusterOf[c]);
    }
    if (kept.empty())
        return {};
    const Mesh result =
        new Poly_Triangulation(int(clusters.size()), int(kept.size()), mesh->HasUVNodes(), Standard_True);
    for (int node = 1; node <= int(clusters.size()); ++node) {
        const Cluster &cluster = clusters[std::size_t(node - 1)];
        result->SetNode(node, gp_Pnt(cluster.place / cluster.count));
        const bool isFlat = cluster.normal.Modulus() <= gp::Resolution();
        result->SetNormal(node, isFlat ? mesh->Normal(cluster.first) : gp_Dir(cluster.normal));
        if (mesh->HasUVNodes())
            result->SetUVNode(node, mesh->UVNode(cluster.first));
    }
    for (int index = 1; index <= int(kept.size()); ++index)
        result->SetTriangle(index, kept[std::size_t(index - 1)]);
    return result;
}

Mesh olMeshTools::withNormals(const Mesh &mesh, double creaseAngle, bool isUnified)
{
    Net net(mesh);
    if (isUnified)
        orient(mesh, net);
    const std::vector<int> &corners = net.corners;
    const std::vector<int> &neighbours = net.neighbours;
    const std::vector<gp_XYZ> crosses = crossesOf(mesh, corners);
    const double least = std::cos(creaseAngle);
    const auto isSmooth = [&](std::size_t one, std::size_t other) {
        const double lengths = crosses[one].Modulus() * crosses[other].Modulus();
        return !(lengths > 0) || crosses[one].Dot(crosses[other]) >= least * lengths;
    };
    const auto after = [](int side) { return side - side % 3 + (side + 1) % 3; };
    Groups smooth(corners.size());
    for (int side = 0; side < int(corners.size()); ++side) {
        const int opposite = neighbours[std::size_t(side)];
        if (opposite > side && isSmooth(std::size_t(side / 3), std::size_t(opposite / 3))) {
            smooth.join(side, after(opposite));
            smooth.join(after(side), opposite);
        }
    }
    // A node for each group, and another where a group has several nodes: they differ in more than their place.
    std::vector<int> firstOf(corners.size(), -1);
    std::vector<int> nodes;
    std::vector<gp_XYZ> sums;
    std::vector<int> groups;
    std::vector<int> nextOf;
    std::vector<int> triangles(corners.size());
    for (std::size_t corner = 0; corner < corners.size(); ++corner) {
        const auto root = std::size_t(smooth.find(int(corner)));
        int node = firstOf[root];
        while (node >= 0 && nodes[std::size_t(node)] != corners[corner])
            node = nextOf[std::size_t(node)];
        if (node < 0) {
            node = int(nodes.size());
            nodes.push_back(corners[corner]);
            nextOf.push_back(firstOf[root]);
            groups.push_back(firstOf[root] < 0 ? int(sums.size()) : groups[std::size_t(firstOf[root])]);
            if (firstOf[root] < 0)
                sums.emplace_back();
            firstOf[root] = node;
        }
        sums[std::size_t(groups[std::size_t(node)])] += crosses[corner / 3];
        triangles[corner] = node;
    }

    const auto *from = dynamic_cast<const olColoredMesh *>(mesh.get());
    Handle(olColoredMesh) colored;
    if (from)
        colored = new olColoredMesh(int(nodes.size()), mesh->NbTriangles(), mesh->HasUVNodes(), Standard_True);
    const Mesh result =
        from ? Mesh(colored)
             : new Poly_Triangulation(int(nodes.size()), mesh->NbTriangles(), mesh->HasUVNodes(), Standard_True);
    for (std::size_t node = 0; node < nodes.size(); ++node) {
        const int index = int(node) + 1;
        const int before = nodes[node] + 1;
        const gp_XYZ &sum = sums[std::size_t(groups[node])];
        result->SetNode(index, mesh->Node(before));
        result->SetNormal(index, sum.Modulus() > 0 ? gp_Dir(sum) : gp::DZ());
        if (mesh->HasUVNodes())
            result->SetUVNode(index, mesh->UVNode(before));
        if (from)
            colored->colors.push_back(from->colors[std::size_t(before - 1)]);
    }
    for (int triangle = 0; triangle < mesh->NbTriangles(); ++triangle) {
        const int *at = &triangles[3 * std::size_t(triangle)];
        result->SetTriangle(triangle + 1, Poly_Triangle(at[0] + 1, at[1] + 1, at[2] + 1));
    }
    return result;
}

TopoDS_Face olMeshTools::merged(const std::vector<TopoDS_Face> &faces)
{
    int nodes = 0;
    int triangles = 0;
    bool hasNormals = true;
    bool hasTexture = true;
    bool isColored = true;
    TopLoc_Location location;
    for (const TopoDS_Face &face : faces) {
        const Mesh mesh = BRep_Tool::Triangulation(face, location);
        nodes += mesh->NbNodes();
        triangles += mesh->NbTriangles();
        hasNormals = hasNormals && mesh->HasNormals();
        hasTexture = hasTexture && mesh->HasUVNodes();
        isColored = isColored && mesh->IsKind(STANDARD_TYPE(olColoredMesh));
    }
    Handle(olColoredMesh) colored;
    if (isColored)
        colored = new olColoredMesh(nodes, triangles, hasTexture, hasNormals);
    const Mesh all = isColored ? Mesh(colored) : new Poly_Triangulation(nodes, triangles, hasTexture, hasNormals);
    int node = 0;
    int triangle = 0;
    for (const TopoDS_Face &face : faces) {
        const Mesh mesh = BRep_Tool::Triangulation(face, location);
        const gp_Trsf where = location.Transformation();
        const bool isReversed = face.Orientation() == TopAbs_REVERSED;
        const int before = node;
        if (isColored) {
            const std::vector<std::uint32_t> &colors = Handle(olColoredMesh)::DownCast(mesh)->colors;
            colored->colors.insert(colored->colors.end(), colors.begin(), colors.end());
        }
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
