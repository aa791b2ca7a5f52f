#include "Model/olTriangles.h"

#include <BRepMesh_IncrementalMesh.hxx>
#include <BRepTools.hxx>
#include <BRep_Tool.hxx>
#include <Message_ProgressRange.hxx>
#include <Poly_Triangulation.hxx>
#include <TDF_LabelSequence.hxx>
#include <TDocStd_Document.hxx>
#include <TopExp_Explorer.hxx>
#include <TopLoc_Location.hxx>
#include <TopoDS.hxx>
#include <XCAFDoc_DocumentTool.hxx>
#include <XCAFDoc_ShapeTool.hxx>

#include <algorithm>
#include <cmath>

namespace
{

// Finer than this no drawing shows, and a stored 0 must not ask for endless triangles.
constexpr double finestDeviation = 0.001;
constexpr double finestAngle = 0.5;
constexpr double coarsestAngle = 90.0;
constexpr double radiansPerDegree = 0.017453292519943295;

} // namespace

void olTriangles::mesh(const TopoDS_Shape &shape, const Fineness &fineness)
{
    mesh(shape, fineness, Message_ProgressRange());
}

void olTriangles::mesh(const TopoDS_Shape &shape, const Fineness &fineness, const Message_ProgressRange &progress)
{
    IMeshTools_Parameters parameters;
    parameters.Deflection =
        std::max(std::isfinite(fineness.chordDeviation) ? fineness.chordDeviation : 0.0, finestDeviation);
    parameters.Angle = std::clamp(fineness.normalTolerance, finestAngle, coarsestAngle) * radiansPerDegree;
    // Only a face that is drawn coarser than asked is meshed again; triangles that are there already must go first.
    BRepTools::Clean(shape);
    BRepMesh_IncrementalMesh(shape, parameters, progress);
}

unsigned olTriangles::count(const TopoDS_Shape &shape)
{
    unsigned triangles = 0;
    for (TopExp_Explorer faces(shape, TopAbs_FACE); faces.More(); faces.Next()) {
        TopLoc_Location location;
        const Handle(Poly_Triangulation) &mesh = BRep_Tool::Triangulation(TopoDS::Face(faces.Current()), location);
        if (!mesh.IsNull())
            triangles += static_cast<unsigned>(mesh->NbTriangles());
    }
    return triangles;
}

unsigned olTriangles::count(const olScene::Document &document)
{
    TDF_LabelSequence labels;
    XCAFDoc_DocumentTool::ShapeTool(document->Main())->GetFreeShapes(labels);
    unsigned triangles = 0;
    for (const TDF_Label &label : labels)
        triangles += count(XCAFDoc_ShapeTool::GetShape(label));
    return triangles;
}
