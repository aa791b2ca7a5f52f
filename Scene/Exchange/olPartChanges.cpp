#include "Exchange/olPartChanges.h"

#include "Model/olMeshTools.h"

#include <BRepBndLib.hxx>
#include <BRepBuilderAPI_Sewing.hxx>
#include <BRepBuilderAPI_Transform.hxx>
#include <BRepCheck_Analyzer.hxx>
#include <BRepGProp.hxx>
#include <BRepLib.hxx>
#include <BRepTools_ReShape.hxx>
#include <BRep_Builder.hxx>
#include <BRep_Tool.hxx>
#include <Bnd_Box.hxx>
#include <GProp_GProps.hxx>
#include <Geom_Surface.hxx>
#include <Message_ProgressScope.hxx>
#include <OSD_Parallel.hxx>
#include <Poly_Triangulation.hxx>
#include <ShapeBuild_ReShape.hxx>
#include <ShapeFix_Shape.hxx>
#include <ShapeFix_Shell.hxx>
#include <TopExp.hxx>
#include <TopExp_Explorer.hxx>
#include <TopLoc_Location.hxx>
#include <TopTools_IndexedMapOfShape.hxx>
#include <TopoDS.hxx>
#include <TopoDS_Compound.hxx>
#include <gp_Trsf.hxx>

#include <algorithm>
#include <cmath>
#include <iterator>
#include <limits>
#include <map>
#include <string>

namespace
{

bool isMesh(const TopoDS_Face &face)
{
    TopLoc_Location location;
    return BRep_Tool::Surface(face, location).IsNull();
}

std::vector<TopoDS_Face> facesOf(const TopoDS_Shape &shape)
{
    TopTools_IndexedMapOfShape map;
    TopExp::MapShapes(shape, TopAbs_FACE, map);
    std::vector<TopoDS_Face> faces;
    for (int index = 1; index <= map.Extent(); ++index)
        faces.push_back(TopoDS::Face(map(index)));
    return faces;
}

std::vector<TopoDS_Shape> freeEdgesOf(const TopoDS_Shape &shape)
{
    std::vector<TopoDS_Shape> edges;
    for (TopExp_Explorer each(shape, TopAbs_EDGE, TopAbs_FACE); each.More(); each.Next())
        edges.push_back(each.Current());
    return edges;
}

bool hasMeshes(const std::vector<TopoDS_Face> &faces) { return std::any_of(faces.begin(), faces.end(), isMesh); }

TopoDS_Compound compoundOf(const std::vector<TopoDS_Shape> &shapes)
{
    TopoDS_Compound compound;
    BRep_Builder builder;
    builder.MakeCompound(compound);
    for (const TopoDS_Shape &shape : shapes)
        builder.Add(compound, shape);
    return compound;
}

/// The size of the smallest face, in its longest direction.
double smallestOf(const std::vector<TopoDS_Face> &faces)
{
    double smallest = std::numeric_limits<double>::max();
    for (const TopoDS_Face &face : faces) {
        Bnd_Box box;
        BRepBndLib::Add(face, box, Standard_False);
        if (box.IsVoid())
            continue;
        const gp_XYZ size = box.CornerMax().XYZ() - box.CornerMin().XYZ();
        smallest = std::min(smallest, std::max({size.X(), size.Y(), size.Z()}));
    }
    return smallest;
}

double areaOf(const TopoDS_Shape &shape)
{
    constexpr double exactness = 1e-3;
    GProp_GProps properties;
    BRepGProp::SurfaceProperties(shape, properties, exactness);
    return std::abs(properties.Mass());
}

/// Whether the face is still there, as large as it was, and sound if it was.
bool isKept(const TopoDS_Face &before, const TopoDS_Shape &after)
{
    constexpr double loss = 0.005;
    if (after.IsNull() || after.ShapeType() != TopAbs_FACE)
        return false;
    if (after.IsSame(before))
        return true;
    const double area = areaOf(before);
    return std::abs(areaOf(after) - area) <= loss * area &&
           (BRepCheck_Analyzer(after).IsValid() || !BRepCheck_Analyzer(before).IsValid());
}

/// Changes nothing where a face would be lost.
bool sew(olChangedPart &part, const std::vector<TopoDS_Face> &faces, double tolerance)
{
    BRepBuilderAPI_Sewing sewing(tolerance);
    for (const TopoDS_Face &face : faces)
        sewing.Add(face);
    sewing.Perform();
    if (sewing.SewedShape().IsNull() || facesOf(sewing.SewedShape()).size() < faces.size())
        return false;
    const Handle(BRepTools_ReShape) change = new BRepTools_ReShape;
    for (const TopoDS_Face &face : faces) {
        const TopoDS_Shape now = sewing.IsModified(face) ? sewing.Modified(face) : TopoDS_Shape(face);
        if (!isKept(face, now))
            return false;
        if (!now.IsSame(face))
            change->Replace(face, now);
    }
    std::vector<TopoDS_Shape> pieces;
    for (TopExp_Explorer each(part.shape, TopAbs_EDGE, TopAbs_FACE); each.More(); each.Next())
        pieces.push_back(each.Current());
    pieces.push_back(sewing.SewedShape());
    part.shape = pieces.size() == 1 ? pieces.front() : compoundOf(pieces);
    part.changes.push_back(change);
    return true;
}

void apply(olChangedPart &part, const Handle(BRepTools_ReShape) & change)
{
    part.shape = change->Apply(part.shape);
    part.changes.push_back(change);
}

} // namespace

olPartChanges::Kinds olPartChanges::kindsOf(const TopoDS_Shape &shape)
{
    const std::vector<TopoDS_Face> faces = facesOf(shape);
    return {!std::all_of(faces.begin(), faces.end(), isMesh), hasMeshes(faces),
            TopExp_Explorer(shape, TopAbs_EDGE, TopAbs_FACE).More() == Standard_True};
}

void olPartChanges::keepOnly(olChangedPart &part, const Kinds &wanted)
{
    const Handle(BRepTools_ReShape) change = new BRepTools_ReShape;
    bool isAnythingKept = false;
    bool isAnythingRemoved = false;
    const auto decide = [&](const TopoDS_Shape &piece, bool keep) {
        (keep ? isAnythingKept : isAnythingRemoved) = true;
        if (!keep)
            change->Remove(piece);
    };
    for (const TopoDS_Face &face : facesOf(part.shape))
        decide(face, isMesh(face) ? wanted.meshes : wanted.surfaces);
    for (const TopoDS_Shape &edge : freeEdgesOf(part.shape))
        decide(edge, wanted.curves);

    // Where nothing stays, what would be left are empty shells around nothing.
    if (!isAnythingKept)
        part.shape.Nullify();
    else if (isAnythingRemoved)
        apply(part, change);
}

double olPartChanges::stitch(olChangedPart &part, double tolerance, const MeshUpTo &mesh)
{
    const std::vector<TopoDS_Face> faces = facesOf(part.shape);
    const bool hasSolids = TopExp_Explorer(part.shape, TopAbs_SOLID).More();
    if (faces.size() < 2 || hasSolids || hasMeshes(faces) || !(tolerance > 0))
        return tolerance;
    // What is smaller than the gaps that are closed would vanish with them.
    constexpr double share = 0.1;
    constexpr double distorted = 1.5;
    double held = std::min(tolerance, share * smallestOf(faces));
    const auto most = unsigned(distorted * mesh(part.shape, std::numeric_limits<int>::max()));
    for (int attempt = 0; attempt < 3; ++attempt, held *= share) {
        olChangedPart sewn = part;
        if (held > 0 && sew(sewn, faces, held) && mesh(sewn.shape, most) <= most) {
            part = sewn;
            return held;
        }
    }
    return 0;
}

void olPartChanges::repair(olChangedPart &part)
{
    ShapeFix_Shape fix(part.shape);
    if (!fix.Perform() || fix.Shape().IsNull())
        return;
    part.shape = fix.Shape();
    part.changes.emplace_back(fix.Context());
}

bool olPartChanges::isSound(const TopoDS_Shape &shape)
{
    return hasMeshes(facesOf(shape)) || BRepCheck_Analyzer(shape).IsValid();
}

std::vector<char> olPartChanges::areSound(const std::vector<TopoDS_Shape> &shapes,
                                          const Message_ProgressRange &progress)
{
    Message_ProgressScope scope(progress, nullptr, double(std::max<std::size_t>(shapes.size(), 1)));
    std::vector<Message_ProgressRange> ranges;
    ranges.reserve(shapes.size());
    std::generate_n(std::back_inserter(ranges), shapes.size(), [&scope] { return scope.Next(); });
    std::vector<char> sound(shapes.size());
    OSD_Parallel::For(0, int(shapes.size()), [&](int index) {
        const Message_ProgressScope step(ranges[std::size_t(index)], nullptr, 1);
        sound[std::size_t(index)] = char(isSound(shapes[std::size_t(index)]));
    });
    return sound;
}

void olPartChanges::unifyNormals(olChangedPart &part)
{
    const Handle(BRepTools_ReShape) change = new BRepTools_ReShape;
    bool isChanged = false;
    for (TopExp_Explorer each(part.shape, TopAbs_SOLID); each.More(); each.Next()) {
        TopoDS_Solid solid = TopoDS::Solid(each.Current());
        if (!hasMeshes(facesOf(solid)))
            BRepLib::OrientClosedSolid(solid);
        if (solid.IsEqual(each.Current()))
            continue;
        change->Replace(each.Current(), solid);
        isChanged = true;
    }
    for (TopExp_Explorer each(part.shape, TopAbs_SHELL, TopAbs_SOLID); each.More(); each.Next()) {
        ShapeFix_Shell fix;
        if (hasMeshes(facesOf(each.Current())) || !fix.FixFaceOrientation(TopoDS::Shell(each.Current())))
            continue;
        change->Replace(each.Current(), fix.Shape());
        isChanged = true;
    }
    for (const TopoDS_Face &face : facesOf(part.shape)) {
        TopLoc_Location location;
        const Handle(Poly_Triangulation) mesh = BRep_Tool::Triangulation(face, location);
        // Those without normals are turned when they get them: that takes the same look at their neighbours.
        if (isMesh(face) && mesh->HasNormals())
            olMeshTools::orientAlike(mesh);
    }
    if (!isChanged)
        return;
    olChangedPart turned = part;
    apply(turned, change);
    // Where neighbours cannot face the same way, the library leaves some out.
    if (facesOf(turned.shape).size() == facesOf(part.shape).size())
        part = turned;
}

void olPartChanges::mergeMeshes(olChangedPart &part, const std::function<std::string(const TopoDS_Shape &)> &lookOf)
{
    std::map<std::string, std::vector<TopoDS_Face>> groups;
    std::vector<TopoDS_Shape> pieces;
    const std::vector<TopoDS_Face> faces = facesOf(part.shape);
    // A part that also has surfaces keeps its shells and solids as they are.
    if (faces.size() < 2 || !std::all_of(faces.begin(), faces.end(), isMesh))
        return;
    for (const TopoDS_Face &face : faces)
        groups[lookOf(face)].push_back(face);

    const Handle(BRepTools_ReShape) change = new BRepTools_ReShape;
    for (const auto &[look, alike] : groups) {
        const TopoDS_Face merged = alike.size() == 1 ? alike.front() : olMeshTools::merged(alike);
        pieces.push_back(merged);
        for (const TopoDS_Face &face : alike) {
            if (!face.IsSame(merged))
                change->Replace(face, merged);
        }
    }
    for (const TopoDS_Shape &edge : freeEdgesOf(part.shape))
        pieces.push_back(edge);
    part.shape = compoundOf(pieces);
    part.changes.push_back(change);
}

void olPartChanges::scale(olChangedPart &part, double factor)
{
    gp_Trsf all;
    all.SetScaleFactor(factor);
    const Handle(BRepTools_ReShape) change = new BRepTools_ReShape;
    for (const TopoDS_Face &face : facesOf(part.shape)) {
        TopLoc_Location location;
        const Handle(Poly_Triangulation) mesh = BRep_Tool::Triangulation(face, location);
        if (mesh.IsNull() || !isMesh(face))
            continue;
        const gp_Trsf where = location.Transformation();
        const gp_Trsf larger = where.Inverted() * all * where;
        const Handle(Poly_Triangulation) scaled = mesh->Copy();
        for (int node = 1; node <= scaled->NbNodes(); ++node)
            scaled->SetNode(node, mesh->Node(node).Transformed(larger));
        TopoDS_Face now;
        BRep_Builder().MakeFace(now, scaled);
        now.Location(face.Location());
        now.Orientation(face.Orientation());
        change->Replace(face, now);
    }
    for (const TopoDS_Shape &edge : freeEdgesOf(part.shape))
        change->Replace(edge, BRepBuilderAPI_Transform(edge, all, Standard_True).Shape());
    apply(part, change);
}

void olPartChanges::dropSurfaces(olChangedPart &part)
{
    const Handle(BRepTools_ReShape) change = new BRepTools_ReShape;
    std::vector<TopoDS_Shape> pieces;
    for (const TopoDS_Face &face : facesOf(part.shape)) {
        const TopoDS_Face mesh = isMesh(face) ? face : olMeshTools::withoutSurface(face);
        if (mesh.IsNull())
            continue;
        pieces.push_back(mesh);
        if (!mesh.IsSame(face))
            change->Replace(face, mesh);
    }
    for (const TopoDS_Shape &edge : freeEdgesOf(part.shape))
        pieces.push_back(edge);
    part.shape = compoundOf(pieces);
    part.changes.push_back(change);
}
