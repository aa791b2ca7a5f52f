#pragma once

#include "Model/olDocumentCopy.h"

class Message_ProgressRange;

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
/// a smaller tolerance, or by none, where faces would be lost, or the part be no longer what it was: a distorted one
/// needs many more triangles, and `mesh` tells the number of a shape, or any that is too large where it gives up.
/// Returns the tolerance, 0 for none.
using MeshUpTo = std::function<unsigned(const TopoDS_Shape &shape, unsigned most)>;
double stitch(olChangedPart &part, double tolerance, const MeshUpTo &mesh);

/// Repairs what the check finds broken in surfaces.
void repair(olChangedPart &part);

/// Whether the check finds the surfaces sound; of many shapes on all processors.
[[nodiscard]] bool isSound(const TopoDS_Shape &shape);
[[nodiscard]] std::vector<char> areSound(const std::vector<TopoDS_Shape> &shapes,
                                         const Message_ProgressRange &progress);

/// Turns faces, and the triangles of meshes, so that neighbours face the same way and solids face outward.
void unifyNormals(olChangedPart &part);

/// Makes one mesh of all meshes of the part that look the same: `lookOf` gives equal texts for equal looks.
void mergeMeshes(olChangedPart &part, const std::function<std::string(const TopoDS_Shape &)> &lookOf);

/// Multiplies all lengths of meshes and curves; surfaces stay as they are.
void scale(olChangedPart &part, double factor);

/// Leaves the triangles only.
void dropSurfaces(olChangedPart &part);

} // namespace olPartChanges
