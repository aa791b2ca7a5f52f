#include "Model/olShapeFacts.h"

#include <BRepBndLib.hxx>
#include <BRepGProp.hxx>
#include <BRep_Tool.hxx>
#include <GProp_GProps.hxx>
#include <Geom_Surface.hxx>
#include <Poly_Triangulation.hxx>
#include <Standard_Failure.hxx>
#include <TopExp_Explorer.hxx>
#include <TopLoc_Location.hxx>
#include <TopoDS.hxx>
#include <TopoDS_Face.hxx>
#include <gp_Trsf.hxx>

#include <algorithm>
#include <cmath>
#include <cstring>
#include <utility>

namespace
{

bool hasSurface(const TopoDS_Shape &face)
{
    TopLoc_Location location;
    return !BRep_Tool::Surface(TopoDS::Face(face), location).IsNull();
}

/// Of one place the same, wherever it is a node.
std::uint64_t nameOf(const gp_XYZ &place)
{
    std::uint64_t name = 0;
    for (const double part : {place.X(), place.Y(), place.Z()}) {
        // Both zeros are the same place, and faces that meet may differ in the last digits.
        const float rounded = float(part) + 0.0f;
        std::uint32_t bits = 0;
        std::memcpy(&bits, &rounded, sizeof(bits));
        name = (name ^ bits) * 0x9e3779b97f4a7c15u;
        name ^= name >> 29;
    }
    return name;
}

/// Adds up to 0 with the same edge in the other direction.
std::uint64_t edge(std::uint64_t from, std::uint64_t to)
{
    const auto mixed = [](std::uint64_t low, std::uint64_t high) {
        std::uint64_t value = low * 0xbf58476d1ce4e5b9u + high;
        value ^= value >> 31;
        value *= 0x94d049bb133111ebu;
        return value ^ value >> 30;
    };
    if (from == to)
        return 0;
    return from < to ? mixed(from, to) : 0 - mixed(to, from);
}

} // namespace

olShapeMeasuring::olShapeMeasuring(TopoDS_Shape shape) : m_shape(std::move(shape))
{
    for (TopExp_Explorer each(m_shape, TopAbs_FACE); each.More(); each.Next())
        m_faces.push_back(each.Current());
    for (TopExp_Explorer each(m_shape, TopAbs_FACE, TopAbs_SOLID); each.More(); each.Next())
        m_areSolidsClosed = m_areSolidsClosed && !hasSurface(each.Current());
    for (TopExp_Explorer each(m_shape, TopAbs_SHELL); each.More(); each.Next()) {
        const bool isMesh = !TopExp_Explorer(each.Current(), TopAbs_EDGE).More();
        m_areSolidsClosed = m_areSolidsClosed && (isMesh || BRep_Tool::IsClosed(each.Current()));
    }
}

bool olShapeMeasuring::step()
{
    if (m_next == m_faces.size())
        return false;
    const TopoDS_Face &face = TopoDS::Face(m_faces[m_next++]);
    TopLoc_Location location;
    const Handle(Poly_Triangulation) triangles = BRep_Tool::Triangulation(face, location);
    if (!triangles.IsNull())
        m_facts.triangles += unsigned(triangles->NbTriangles());
    if (!hasSurface(face))
        addTriangles(face);
    else if (!addSurface(face))
        m_areSolidsClosed = false;
    return true;
}

bool olShapeMeasuring::addSurface(const TopoDS_Face &face)
{
    try {
        GProp_GProps flat;
        GProp_GProps solid;
        BRepGProp::SurfaceProperties(face, flat);
        BRepGProp::VolumeProperties(face, solid);
        m_facts.area += std::abs(flat.Mass());
        m_facts.volume += solid.Mass();
        return std::isfinite(solid.Mass());
    } catch (const Standard_Failure &) {
        return false;
    }
}

void olShapeMeasuring::addTriangles(const TopoDS_Face &face)
{
    TopLoc_Location location;
    const Handle(Poly_Triangulation) mesh = BRep_Tool::Triangulation(face, location);
    if (mesh.IsNull())
        return;
    const gp_Trsf where = location.Transformation();
    std::vector<gp_XYZ> places;
    std::vector<std::uint64_t> names;
    for (int node = 1; node <= mesh->NbNodes(); ++node) {
        places.push_back(mesh->Node(node).Transformed(where).XYZ());
        names.push_back(nameOf(places.back()));
    }
    const bool isReversed = face.Orientation() == TopAbs_REVERSED;
    for (int index = 1; index <= mesh->NbTriangles(); ++index) {
        int a = 0;
        int b = 0;
        int c = 0;
        mesh->Triangle(index).Get(a, b, c);
        if (isReversed)
            std::swap(b, c);
        const gp_XYZ &first = places[std::size_t(a - 1)];
        const gp_XYZ &second = places[std::size_t(b - 1)];
        const gp_XYZ &third = places[std::size_t(c - 1)];
        m_facts.area += (second - first).CrossMagnitude(third - first) / 2;
        m_facts.volume += first.Dot(second.Crossed(third)) / 6;
        const std::uint64_t corners[] = {names[std::size_t(a - 1)], names[std::size_t(b - 1)],
                                         names[std::size_t(c - 1)]};
        for (int corner = 0; corner < 3; ++corner)
            m_openEdges += edge(corners[corner], corners[(corner + 1) % 3]);
    }
}

olShapeFacts olShapeMeasuring::facts() const
{
    olShapeFacts facts = m_facts;
    facts.isClosed = !m_faces.empty() && m_areSolidsClosed && m_openEdges == 0;
    // Which side of a closed surface is the inner one does not change what it encloses.
    facts.volume = std::abs(facts.volume);
    return facts;
}

Bnd_Box olDrawnBox(const TopoDS_Shape &shape)
{
    Bnd_Box box;
    for (TopExp_Explorer each(shape, TopAbs_FACE); each.More(); each.Next()) {
        TopLoc_Location location;
        const Handle(Poly_Triangulation) mesh = BRep_Tool::Triangulation(TopoDS::Face(each.Current()), location);
        if (mesh.IsNull())
            continue;
        const gp_Trsf where = location.Transformation();
        for (int node = 1; node <= mesh->NbNodes(); ++node)
            box.Add(mesh->Node(node).Transformed(where));
    }
    for (TopExp_Explorer each(shape, TopAbs_EDGE, TopAbs_FACE); each.More(); each.Next())
        BRepBndLib::Add(each.Current(), box);
    box.SetGap(0);
    return box;
}
