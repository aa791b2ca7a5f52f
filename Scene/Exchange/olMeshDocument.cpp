#include "Exchange/olMeshDocument.h"

#include <BRep_Builder.hxx>
#include <TDataStd_Name.hxx>
#include <TDocStd_Document.hxx>
#include <TopoDS_Compound.hxx>
#include <TopoDS_Face.hxx>
#include <XCAFDoc_DocumentTool.hxx>
#include <XCAFDoc_ShapeTool.hxx>
#include <XCAFDoc_VisMaterialTool.hxx>
#include <gp.hxx>
#include <gp_Trsf.hxx>

#include <algorithm>
#include <cmath>

namespace
{

TopLoc_Location locationOf(const gp_Mat &turn, const gp_XYZ &move)
{
    constexpr double nothing = 1e-9;
    bool isNone = move.Modulus() < nothing;
    for (int row = 1; row <= 3; ++row) {
        for (int column = 1; column <= 3; ++column)
            isNone = isNone && std::abs(turn(row, column) - (row == column ? 1.0 : 0.0)) < nothing;
    }
    if (isNone)
        return {};
    gp_Trsf where;
    where.SetValues(turn(1, 1), turn(1, 2), turn(1, 3), move.X(), turn(2, 1), turn(2, 2), turn(2, 3), move.Y(),
                    turn(3, 1), turn(3, 2), turn(3, 3), move.Z());
    return TopLoc_Location(where);
}

} // namespace

olMeshDocument::Placement olMeshDocument::placementOf(const gp_GTrsf &whole)
{
    constexpr double nothing = 1e-6;
    const gp_Mat &matrix = whole.VectorialPart();
    gp_Mat turn(1, 0, 0, 0, 1, 0, 0, 0, 1);
    gp_XYZ x = matrix.Column(1);
    gp_XYZ y = matrix.Column(2);
    if (x.Modulus() > gp::Resolution() && x.Crossed(y).Modulus() > gp::Resolution()) {
        x.Normalize();
        y = (y - x * x.Dot(y)).Normalized();
        turn.SetCols(x, y, x.Crossed(y));
    }
    gp_Mat rest = turn.Transposed() * matrix;
    bool isNone = true;
    for (int row = 1; row <= 3; ++row) {
        for (int column = 1; column <= 3; ++column)
            isNone = isNone && std::abs(rest(row, column) - (row == column ? 1.0 : 0.0)) < nothing;
    }
    if (isNone)
        rest.SetIdentity();
    return {locationOf(turn, whole.TranslationPart()), rest};
}

olMeshDocument::Proportions olMeshDocument::proportionsOf(const gp_Mat &rest)
{
    Proportions proportions{};
    for (int index = 0; index < 9; ++index)
        proportions[std::size_t(index)] = float(rest(index / 3 + 1, index % 3 + 1));
    return proportions;
}

gp_Mat olMeshDocument::forNormals(const gp_Mat &rest)
{
    const double size = rest.Determinant();
    return std::abs(size) > gp::Resolution() ? rest.Inverted().Transposed() : rest;
}

olMeshDocument::olMeshDocument(const olScene::Document &document)
    : m_shapes(XCAFDoc_DocumentTool::ShapeTool(document->Main())),
      m_looks(XCAFDoc_DocumentTool::VisMaterialTool(document->Main()))
{
}

TDF_Label olMeshDocument::addLook(const Handle(XCAFDoc_VisMaterial) & look, const QString &name)
{
    return m_looks->AddMaterial(look, name.toUtf8().constData());
}

TDF_Label olMeshDocument::addPart(const QString &text, const std::vector<Face> &faces)
{
    std::vector<TopoDS_Face> shapes(faces.size());
    TopoDS_Compound all;
    BRep_Builder builder;
    builder.MakeCompound(all);
    for (std::size_t index = 0; index < faces.size(); ++index) {
        builder.MakeFace(shapes[index], faces[index].mesh);
        builder.Add(all, shapes[index]);
    }
    const bool isOne = faces.size() == 1;
    const TDF_Label label = m_shapes->AddShape(isOne ? TopoDS_Shape(shapes.front()) : all, Standard_False);
    name(label, text);
    const TDF_Label &look = faces.front().look;
    if (std::all_of(faces.begin(), faces.end(), [&look](const Face &face) { return face.look == look; })) {
        if (!look.IsNull())
            m_looks->SetShapeMaterial(label, look);
        return label;
    }
    for (std::size_t index = 0; index < faces.size(); ++index) {
        TDF_Label piece;
        if (!faces[index].look.IsNull() && m_shapes->AddSubShape(label, shapes[index], piece))
            m_looks->SetShapeMaterial(piece, faces[index].look);
    }
    return label;
}

TDF_Label olMeshDocument::addGroup(const QString &text, const std::vector<Member> &members)
{
    const TDF_Label label = m_shapes->NewShape();
    name(label, text);
    for (const Member &member : members)
        name(m_shapes->AddComponent(label, member.label, member.where), member.name);
    return label;
}

void olMeshDocument::place(const std::vector<Member> &members)
{
    for (const Member &member : members) {
        const TopoDS_Shape shape = XCAFDoc_ShapeTool::GetShape(member.label);
        name(member.where.IsIdentity() ? member.label : m_shapes->AddShape(shape.Moved(member.where), Standard_False),
             member.name);
    }
}

void olMeshDocument::finish() { m_shapes->UpdateAssemblies(); }

void olMeshDocument::name(const TDF_Label &label, const QString &text)
{
    if (!text.isEmpty())
        TDataStd_Name::Set(label, text.toStdU16String().c_str());
}
