#include "Model/olSampleAssembly.h"

#include "Model/olLevelsOfDetail.h"
#include "Model/olTriangles.h"

#include <BRepAdaptor_Curve.hxx>
#include <BRepAlgoAPI_Cut.hxx>
#include <BRepFilletAPI_MakeFillet.hxx>
#include <BRepPrimAPI_MakeBox.hxx>
#include <BRepPrimAPI_MakeCylinder.hxx>
#include <BRepPrimAPI_MakeSphere.hxx>
#include <BRepPrimAPI_MakeTorus.hxx>
#include <BRep_Builder.hxx>
#include <Poly_Triangulation.hxx>
#include <Quantity_ColorRGBA.hxx>
#include <TDF_Label.hxx>
#include <TDataStd_Name.hxx>
#include <TDocStd_Document.hxx>
#include <TopExp.hxx>
#include <TopTools_IndexedMapOfShape.hxx>
#include <TopoDS.hxx>
#include <TopoDS_Compound.hxx>
#include <TopoDS_Face.hxx>
#include <XCAFDoc_ColorTool.hxx>
#include <XCAFDoc_DocumentTool.hxx>
#include <XCAFDoc_ShapeTool.hxx>
#include <gp_Ax2.hxx>
#include <gp_Trsf.hxx>

#include <cmath>

namespace
{

constexpr double twoPi = 6.283185307179586;

// Millimetres; the axis of the bearing is z.
constexpr double shaftRadius = 15.0;
constexpr double boreRadius = 35.0;
constexpr double ballRadius = 6.5;
constexpr int balls = 8;

/// A little above the housing: two faces in one plane would flicker.
constexpr double coverBottom = 30.2;

/// A ring about the z axis, from `bottom` up.
TopoDS_Shape ring(double inner, double outer, double bottom, double height)
{
    const gp_Ax2 axis(gp_Pnt(0, 0, bottom), gp::DZ());
    return BRepAlgoAPI_Cut(BRepPrimAPI_MakeCylinder(axis, outer, height).Shape(),
                           BRepPrimAPI_MakeCylinder(axis, inner, height).Shape())
        .Shape();
}

/// The shape with its edges of one kind of curve rounded off.
TopoDS_Shape rounded(const TopoDS_Shape &shape, GeomAbs_CurveType kind, double radius)
{
    TopTools_IndexedMapOfShape edges;
    TopExp::MapShapes(shape, TopAbs_EDGE, edges);
    BRepFilletAPI_MakeFillet fillet(shape);
    for (int index = 1; index <= edges.Extent(); ++index) {
        const TopoDS_Edge &edge = TopoDS::Edge(edges(index));
        if (BRepAdaptor_Curve(edge).GetType() == kind)
            fillet.Add(radius, edge);
    }
    return fillet.Shape();
}

TopoDS_Shape housing()
{
    const TopoDS_Shape block = BRepPrimAPI_MakeBox(gp_Pnt(-50, -50, 0), 100, 100, 30).Shape();
    return BRepAlgoAPI_Cut(rounded(block, GeomAbs_Line, 4.0), BRepPrimAPI_MakeCylinder(boreRadius, 30).Shape()).Shape();
}

TopoDS_Shape shaft()
{
    const gp_Ax2 axis(gp_Pnt(0, 0, -40), gp::DZ());
    // The seam of a cylinder is a line, and no edge to be rounded.
    return rounded(BRepPrimAPI_MakeCylinder(axis, shaftRadius, 110).Shape(), GeomAbs_Circle, 2.0);
}

/// To lift the housing by. Seen from afar, few of its triangles count.
TopoDS_Shape liftingEye()
{
    return BRepPrimAPI_MakeTorus(gp_Ax2(gp_Pnt(38, -38, 37), gp_Dir(1, -1, 0)), 6.5, 2).Shape();
}

/// A wavy plate of triangles only, as a scanner would leave it.
TopoDS_Face scannedPlate()
{
    constexpr int cells = 16;
    constexpr double side = 140.0;
    const auto node = [](int column, int row) { return row * (cells + 1) + column + 1; };
    const Handle(Poly_Triangulation) mesh =
        new Poly_Triangulation((cells + 1) * (cells + 1), 2 * cells * cells, Standard_False);
    for (int row = 0; row <= cells; ++row) {
        for (int column = 0; column <= cells; ++column) {
            const double x = side * column / cells - side / 2;
            const double y = side * row / cells - side / 2;
            mesh->SetNode(node(column, row), gp_Pnt(x, y, -48 + 4 * std::sin(x / 15) * std::cos(y / 15)));
        }
    }
    int triangle = 0;
    for (int row = 0; row < cells; ++row) {
        for (int column = 0; column < cells; ++column) {
            const int corner = node(column, row);
            const int opposite = node(column + 1, row + 1);
            mesh->SetTriangle(++triangle, Poly_Triangle(corner, node(column + 1, row), opposite));
            mesh->SetTriangle(++triangle, Poly_Triangle(corner, opposite, node(column, row + 1)));
        }
    }
    TopoDS_Face face;
    BRep_Builder().MakeFace(face, mesh);
    return face;
}

/// Puts named and coloured parts into assemblies of one document.
class Builder
{
public:
    explicit Builder(const olScene::Document &document)
        : m_shapes(XCAFDoc_DocumentTool::ShapeTool(document->Main())),
          m_colors(XCAFDoc_DocumentTool::ColorTool(document->Main()))
    {
    }

    TDF_Label assembly(const char *name)
    {
        const TDF_Label label = m_shapes->NewShape();
        TDataStd_Name::Set(label, name);
        return label;
    }

    TDF_Label part(const char *name, const TopoDS_Shape &shape, const Quantity_ColorRGBA &color)
    {
        olTriangles::mesh(shape, {});
        const TDF_Label label = m_shapes->AddShape(shape, Standard_False);
        TDataStd_Name::Set(label, name);
        m_colors->SetColor(label, color, XCAFDoc_ColorSurf);
        return label;
    }

    TDF_Label partWithLevels(const char *name, const TopoDS_Shape &shape, const Quantity_ColorRGBA &color)
    {
        const TDF_Label label = part(name, shape, color);
        olLevelsOfDetail::add(shape, {{0.4, 30.0}, {1.5, 60.0}});
        return label;
    }

    void place(const TDF_Label &parent, const TDF_Label &part, const TCollection_ExtendedString &name,
               const gp_Trsf &where = {})
    {
        TDataStd_Name::Set(m_shapes->AddComponent(parent, part, TopLoc_Location(where)), name);
    }

    void finish() { m_shapes->UpdateAssemblies(); }

private:
    Handle(XCAFDoc_ShapeTool) m_shapes;
    Handle(XCAFDoc_ColorTool) m_colors;
};

} // namespace

olScene::Document olSampleAssembly::build()
{
    const olScene::Document document = olScene::newDocument();
    Builder builder(document);

    const TDF_Label whole = builder.assembly("Sample assembly");
    const TDF_Label bearing = builder.assembly("Bearing");
    builder.place(bearing, builder.part("Inner race", ring(shaftRadius, 20, 5, 20), {0.70f, 0.72f, 0.75f, 1.0f}),
                  "Inner race");
    builder.place(bearing, builder.part("Outer race", ring(30, boreRadius, 5, 20), {0.55f, 0.58f, 0.62f, 1.0f}),
                  "Outer race");
    const TDF_Label ball =
        builder.part("Ball", BRepPrimAPI_MakeSphere(ballRadius).Shape(), {0.85f, 0.65f, 0.13f, 1.0f});
    for (int index = 0; index < balls; ++index) {
        const double angle = twoPi * index / balls;
        gp_Trsf where;
        where.SetTranslation(gp_Vec(25 * std::cos(angle), 25 * std::sin(angle), 15));
        builder.place(bearing, ball, TCollection_ExtendedString("Ball ") + (index + 1), where);
    }

    builder.place(whole, builder.part("Housing", housing(), {0.16f, 0.34f, 0.55f, 1.0f}), "Housing");
    builder.place(whole, bearing, "Bearing");
    builder.place(whole, builder.part("Shaft", shaft(), {0.72f, 0.18f, 0.14f, 1.0f}), "Shaft");
    builder.place(whole,
                  builder.part("Seal", BRepPrimAPI_MakeTorus(gp_Ax2(gp_Pnt(0, 0, 36), gp::DZ()), 24, 4).Shape(),
                               {0.12f, 0.12f, 0.13f, 1.0f}),
                  "Seal");
    builder.place(whole, builder.part("Cover", ring(40, 42, coverBottom, 35), {0.55f, 0.85f, 0.95f, 0.35f}), "Cover");
    builder.place(whole, builder.part("Scanned plate", scannedPlate(), {0.35f, 0.55f, 0.30f, 1.0f}), "Scanned plate");
    builder.place(whole, builder.partWithLevels("Lifting eye", liftingEye(), {0.85f, 0.85f, 0.87f, 1.0f}),
                  "Lifting eye");
    builder.finish();
    return document;
}
