#pragma once

#include <Standard_Handle.hxx>
#include <TopoDS_Face.hxx>

class VrmlData_IndexedFaceSet;

/// The face sets of VRML.
namespace olVrmlMesh
{

/// Whether every corner is a point that the set has. The library believes that it is.
[[nodiscard]] bool isWhole(const opencascade::handle<VrmlData_IndexedFaceSet> &set);

/// A face with the set's triangles and the place of each corner in the texture, which the library leaves out; null
/// where the set does not say where a texture lies. The set must be whole.
[[nodiscard]] TopoDS_Face withTexture(const opencascade::handle<VrmlData_IndexedFaceSet> &set);

} // namespace olVrmlMesh
