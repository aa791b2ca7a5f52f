#pragma once

#include "Model/olDocumentCopy.h"

/// What the import options do to one part.
namespace olPartChanges
{

struct Kinds {
    bool surfaces = true;
    bool meshes = true;
    bool curves = true;
};

/// The kinds that a shape has.
[[nodiscard]] Kinds kindsOf(const TopoDS_Shape &shape);

/// Takes the kinds out that are not wanted; the shape becomes null where nothing is left.
void keepOnly(olChangedPart &part, const Kinds &wanted);

/// Joins faces whose borders lie within the tolerance of each other, in millimetres. Solids are joined already. Goes by
/// a smaller tolerance, or by none, where faces would be lost, or the part be no longer what it was: `trianglesOf`
/// counts the triangles that draw a shape, of which a distorted one needs many more. Returns the tolerance, 0 for none.
double stitch(olChangedPart &part, double tolerance, const std::function<unsigned(const TopoDS_Shape &)> &trianglesOf);

/// Repairs what the check finds broken in surfaces.
void repair(olChangedPart &part);

/// Whether the check finds the surfaces sound.
[[nodiscard]] bool isSound(const TopoDS_Shape &shape);

/// Turns faces, and the triangles of meshes, so that neighbours face the same way and solids face outward.
void unifyNormals(olChangedPart &part);

/// Makes one mesh of all meshes of the part that look the same: `lookOf` gives equal texts for equal looks.
void mergeMeshes(olChangedPart &part, const std::function<std::string(const TopoDS_Shape &)> &lookOf);

/// Multiplies all lengths of meshes and curves; surfaces stay as they are.
void scale(olChangedPart &part, double factor);

/// Leaves the triangles only.
void dropSurfaces(olChangedPart &part);

} // namespace olPartChanges
