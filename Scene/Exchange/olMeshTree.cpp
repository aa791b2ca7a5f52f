#include "Exchange/olMeshTree.h"

#include "Model/olColoredMesh.h"
#include "Model/olLibraryMessages.h"
#include "Model/olMeshTools.h"
#include "Model/olPlainLook.h"

#include <BRep_Tool.hxx>
#include <NCollection_DataMap.hxx>
#include <Poly_Triangulation.hxx>
#include <StdPrs_ToolTriangulatedShape.hxx>
#include <TDF_LabelSequence.hxx>
#include <TDF_Tool.hxx>
#include <TDocStd_Document.hxx>
#include <TopExp_Explorer.hxx>
#include <TopLoc_Location.hxx>
#include <TopTools_ShapeMapHasher.hxx>
#include <TopoDS.hxx>
#include <TopoDS_Face.hxx>
#include <XCAFDoc_DocumentTool.hxx>
#include <XCAFDoc_ShapeTool.hxx>
#include <XCAFDoc_VisMaterialTool.hxx>
#include <XCAFPrs_DocumentExplorer.hxx>
#include <gp_Mat.hxx>

#include <algorithm>
#include <tuple>

namespace
{

using Look = Handle(XCAFDoc_VisMaterial);
using FaceLooks = NCollection_DataMap<TopoDS_Shape, Look, TopTools_ShapeMapHasher>;

/// What faces look like that differ from their part.
FaceLooks ownLooksOf(const Handle(XCAFDoc_VisMaterialTool) & looks, const TDF_Label &part)
{
    TDF_LabelSequence labels;
    XCAFDoc_ShapeTool::GetSubShapes(part, labels);
    std::vector<TDF_Label> pieces(labels.begin(), labels.end());
    // What is larger comes first, so that what is inside overrides it.
    std::stable_sort(pieces.begin(), pieces.end(), [](const TDF_Label &one, const TDF_Label &other) {
        return XCAFDoc_ShapeTool::GetShape(one).ShapeType() < XCAFDoc_ShapeTool::GetShape(other).ShapeType();
    });
    FaceLooks faces;
    for (const TDF_Label &piece : pieces) {
        const Look look = looks->GetShapeMaterial(piece);
        if (look.IsNull())
            continue;
        for (TopExp_Explorer face(XCAFDoc_ShapeTool::GetShape(piece), TopAbs_FACE); face.More(); face.Next())
            faces.Bind(face.Current(), look);
    }
    return faces;
}

bool hasTexture(const Look &look)
{
    return !look.IsNull() && ((look->HasCommonMaterial() && !look->CommonMaterial().DiffuseTexture.IsNull()) ||
                              (look->HasPbrMaterial() && !look->PbrMaterial().BaseColorTexture.IsNull()));
}

Handle(Poly_Triangulation) withNormals(const TopoDS_Face &face, const Handle(Poly_Triangulation) & mesh)
{
    TopLoc_Location location;
    if (mesh->HasNormals())
        return mesh;
    if (BRep_Tool::Surface(face, location).IsNull())
        return olMeshTools::withNormals(mesh, olMeshTools::usualCrease);
    const Handle(Poly_Triangulation) copy = mesh->Copy();
    StdPrs_ToolTriangulatedShape::ComputeNormals(face, copy);
    return copy;
}

void append(olMeshTree::Piece &to, const Poly_Triangulation &mesh, const gp_Trsf &where, bool isReversed,
            bool isTextured)
{
    const int before = int(to.points.size());
    const gp_Mat turn = where.VectorialPart();
    for (int node = 1; node <= mesh.NbNodes(); ++node) {
        to.points.push_back(mesh.Node(node).Transformed(where).XYZ());
        gp_Vec3f own;
        mesh.Normal(node, own);
        const gp_XYZ normal = turn * gp_XYZ(own.x(), own.y(), own.z()) * (isReversed ? -1 : 1);
        to.normals.emplace_back(float(normal.X()), float(normal.Y()), float(normal.Z()));
        if (isTextured)
            to.places.emplace_back(float(mesh.UVNode(node).X()), float(mesh.UVNode(node).Y()));
    }
    if (const auto *colored = dynamic_cast<const olColoredMesh *>(&mesh))
        to.colors.insert(to.colors.end(), colored->colors.begin(), colored->colors.end());
    for (int triangle = 1; triangle <= mesh.NbTriangles(); ++triangle) {
        int n[3];
        mesh.Triangle(triangle).Get(n[0], n[1], n[2]);
        if (isReversed)
            std::swap(n[1], n[2]);
        for (const int node : n)
            to.corners.push_back(before + node - 1);
    }
}

} // namespace

olMeshTree::olMeshTree(const olScene::Document &document) : m_document(olPlainLook::asMaterials(document))
{
    const Handle(XCAFDoc_VisMaterialTool) tool = XCAFDoc_DocumentTool::VisMaterialTool(m_document->Main());
    TDF_LabelSequence labels;
    tool->GetMaterials(labels);
    for (const TDF_Label &label : labels)
        m_lookNames.emplace(tool->GetMaterial(label).get(), olNameOf(label));

    std::map<std::pair<QString, const XCAFDoc_VisMaterial *>, int> known;
    Node top;
    std::vector<Node *> path{&top};
    for (XCAFPrs_DocumentExplorer each(m_document, XCAFPrs_DocumentExplorerFlags_None); each.More(); each.Next()) {
        const XCAFPrs_DocumentNode &from = each.Current();
        path.resize(std::size_t(each.CurrentDepth()) + 1);
        Node node;
        const QString own = olNameOf(from.Label);
        node.name = own.isEmpty() ? olNameOf(from.RefLabel) : own;
        node.where = from.LocalTrsf.Transformation();
        if (!from.IsAssembly) {
            const Look &look = from.Style.Material();
            TCollection_AsciiString entry;
            TDF_Tool::Entry(from.RefLabel, entry);
            const auto [place, isNew] =
                known.emplace(std::make_pair(QString::fromLatin1(entry.ToCString()), look.get()), parts());
            if (isNew)
                m_parts.push_back({from.RefLabel, look});
            node.part = place->second;
        }
        std::vector<Node> &siblings = path.back()->below;
        siblings.push_back(std::move(node));
        path.push_back(&siblings.back());
    }
    m_nodes = std::move(top.below);
}

QString olMeshTree::partName(int part) const { return olNameOf(m_parts.at(std::size_t(part)).label); }

std::vector<olMeshTree::Piece> olMeshTree::piecesOf(int number) const
{
    const Part &part = m_parts.at(std::size_t(number));
    const FaceLooks own = ownLooksOf(XCAFDoc_DocumentTool::VisMaterialTool(m_document->Main()), part.label);
    std::vector<Piece> pieces;
    std::map<std::tuple<const XCAFDoc_VisMaterial *, bool, bool>, std::size_t> known;
    for (TopExp_Explorer each(XCAFDoc_ShapeTool::GetShape(part.label), TopAbs_FACE); each.More(); each.Next()) {
        const TopoDS_Face &face = TopoDS::Face(each.Current());
        TopLoc_Location location;
        const Handle(Poly_Triangulation) bare = BRep_Tool::Triangulation(face, location);
        if (bare.IsNull() || bare->NbTriangles() == 0)
            continue;
        const Look *seen = own.Seek(face);
        const Look look = seen ? *seen : part.look;
        const Handle(Poly_Triangulation) mesh = withNormals(face, bare);
        // Surfaces have places that are none of a texture.
        const bool isTextured = mesh->HasUVNodes() && hasTexture(look);
        const auto key = std::make_tuple(look.get(), isTextured, mesh->IsKind(STANDARD_TYPE(olColoredMesh)));
        const auto [place, isNew] = known.emplace(key, pieces.size());
        if (isNew) {
            pieces.emplace_back();
            pieces.back().look = look;
        }
        append(pieces[place->second], *mesh, location.Transformation(), face.Orientation() == TopAbs_REVERSED,
               isTextured);
    }
    return pieces;
}

QString olMeshTree::lookName(const Look &look) const
{
    const auto found = m_lookNames.find(look.get());
    return found == m_lookNames.end() ? QString() : found->second;
}

void olMeshTree::eachPlaced(const std::function<void(const Node &, const gp_Trsf &)> &visit) const
{
    const std::function<void(const std::vector<Node> &, const gp_Trsf &)> walk = [&](const std::vector<Node> &nodes,
                                                                                     const gp_Trsf &above) {
        for (const Node &node : nodes) {
            const gp_Trsf where = above * node.where;
            if (node.part >= 0)
                visit(node, where);
            walk(node.below, where);
        }
    };
    walk(m_nodes, gp_Trsf());
}
