#include "Model/olTriangles.h"

#include <BRepMesh_IncrementalMesh.hxx>
#include <BRepTools.hxx>
#include <BRep_Builder.hxx>
#include <BRep_Tool.hxx>
#include <IMeshTools_Parameters.hxx>
#include <Message_ProgressScope.hxx>
#include <Poly_Triangulation.hxx>
#include <TDF_LabelSequence.hxx>
#include <TDocStd_Document.hxx>
#include <TopExp.hxx>
#include <TopExp_Explorer.hxx>
#include <TopLoc_Location.hxx>
#include <TopTools_IndexedMapOfShape.hxx>
#include <TopoDS.hxx>
#include <TopoDS_Compound.hxx>
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

IMeshTools_Parameters parametersOf(const olTriangles::Fineness &fineness)
{
    IMeshTools_Parameters parameters;
    parameters.Deflection =
        std::max(std::isfinite(fineness.chordDeviation) ? fineness.chordDeviation : 0.0, finestDeviation);
    parameters.Angle = std::clamp(fineness.normalTolerance, finestAngle, coarsestAngle) * radiansPerDegree;
    return parameters;
}

} // namespace

void olTriangles::mesh(const TopoDS_Shape &shape, const Fineness &fineness)
{
    mesh(shape, fineness, Message_ProgressRange());
}

void olTriangles::mesh(const TopoDS_Shape &shape, const Fineness &fineness, const Message_ProgressRange &progress)
{
    // Only a face that is drawn coarser than asked is meshed again; triangles that are there already must go first.
    BRepTools::Clean(shape);
    BRepMesh_IncrementalMesh(shape, parametersOf(fineness), progress);
}

unsigned olTriangles::mesh(const TopoDS_Shape &shape, const Fineness &fineness, unsigned most,
                           const Message_ProgressRange &progress)
{
    TopTools_IndexedMapOfShape faces;
    TopExp::MapShapes(shape, TopAbs_FACE, faces);
    Message_ProgressScope scope(progress, nullptr, faces.Extent());
    BRepTools::Clean(shape);
    unsigned triangles = 0;
    for (int index = 1; index <= faces.Extent() && triangles <= most; ++index) {
        BRepMesh_IncrementalMesh(faces(index), parametersOf(fineness), scope.Next());
        triangles += count(faces(index));
    }
    return triangles;
}

void olTriangles::mesh(const std::vector<TopoDS_Shape> &shapes, const Fineness &fineness,
                       const Message_ProgressRange &progress)
{
    // What the library remembers of so many faces it has room for, and they are enough to keep all processors busy.
    constexpr std::size_t batch = 5000;
    Message_ProgressScope scope(progress, nullptr, double(std::max<std::size_t>(shapes.size(), 1)));
    for (std::size_t next = 0; next < shapes.size() && !scope.UserBreak();) {
        TopoDS_Compound some;
        BRep_Builder builder;
        builder.MakeCompound(some);
        const std::size_t first = next;
        for (std::size_t faces = 0; next < shapes.size() && faces < batch; ++next) {
            builder.Add(some, shapes[next]);
            for (TopExp_Explorer each(shapes[next], TopAbs_FACE); each.More(); each.Next())
                ++faces;
        }
        BRepTools::Clean(some);
        IMeshTools_Parameters parameters = parametersOf(fineness);
        parameters.InParallel = Standard_True;
        BRepMesh_IncrementalMesh(some, parameters, scope.Next(double(next - first)));
    }
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
