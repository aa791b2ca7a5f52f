#pragma once

#include <Standard_Handle.hxx>
#include <TopoDS_Face.hxx>

#include <vector>

class Poly_Triangulation;

/// Work on triangles that have no surface.
namespace olMeshTools
{

/// Where meshes say nothing of their normals, neighbours that meet at less than this look smooth; radians.
constexpr double usualCrease = 30.0 * 0.017453292519943295;

/// Whether every triangle has its points, and all of them lie somewhere.
[[nodiscard]] bool isWhole(const opencascade::handle<Poly_Triangulation> &mesh);

/// Turns triangles so that neighbours go around their common edge in opposite directions; the first of each connected
/// piece stays. Normals are computed anew where something was turned.
void orientAlike(const opencascade::handle<Poly_Triangulation> &mesh);

/// The triangles with normals: smooth where neighbours meet at less than the angle, in radians, and sharp elsewhere. On
/// demand they are turned as orientAlike does before.
[[nodiscard]] opencascade::handle<Poly_Triangulation> withNormals(const opencascade::handle<Poly_Triangulation> &mesh,
                                                                  double creaseAngle, bool isUnified = false);

[[nodiscard]] double areaOf(const opencascade::handle<Poly_Triangulation> &mesh);

/// Fewer triangles, for as long as speed counts: nodes that lie in the same cube of space and face alike become one.
/// About two triangles are left in each cube that the mesh passes; null where none is left at all.
[[nodiscard]] opencascade::handle<Poly_Triangulation> coarser(const opencascade::handle<Poly_Triangulation> &mesh,
                                                              double edge);

/// One face with the triangles of all, which have no surfaces.
[[nodiscard]] TopoDS_Face merged(const std::vector<TopoDS_Face> &faces);

/// The face's triangles with the normals of its surface; null where it has no triangles.
[[nodiscard]] TopoDS_Face withoutSurface(const TopoDS_Face &face);

/// Without the triangles that have no area; null where none is left.
[[nodiscard]] opencascade::handle<Poly_Triangulation>
withoutDegenerate(const opencascade::handle<Poly_Triangulation> &mesh);

} // namespace olMeshTools
