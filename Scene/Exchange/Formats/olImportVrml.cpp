#include "Exchange/Formats/olImportVrml.h"

#include "Exchange/Formats/olVrmlMesh.h"

#include <Image_Texture.hxx>
#include <Quantity_ColorRGBA.hxx>
#include <TDF_Label.hxx>
#include <TDataStd_Name.hxx>
#include <TDocStd_Document.hxx>
#include <TopLoc_Location.hxx>
#include <TopoDS_Shape.hxx>
#include <VrmlData_Appearance.hxx>
#include <VrmlData_Geometry.hxx>
#include <VrmlData_Group.hxx>
#include <VrmlData_ImageTexture.hxx>
#include <VrmlData_IndexedFaceSet.hxx>
#include <VrmlData_Material.hxx>
#include <VrmlData_Scene.hxx>
#include <VrmlData_ShapeNode.hxx>
#include <XCAFDoc_ColorTool.hxx>
#include <XCAFDoc_DocumentTool.hxx>
#include <XCAFDoc_ShapeTool.hxx>
#include <XCAFDoc_VisMaterial.hxx>
#include <XCAFDoc_VisMaterialTool.hxx>

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>

#include <fstream>
#include <map>

namespace
{

QString reason(const char *text) { return QCoreApplication::translate("olImport", text); }

/// Turns groups into assemblies and shape nodes into parts; a node used in several places stays one.
class Walk
{
public:
    explicit Walk(const olScene::Document &document)
        : m_shapes(XCAFDoc_DocumentTool::ShapeTool(document->Main())),
          m_colors(XCAFDoc_DocumentTool::ColorTool(document->Main())),
          m_materials(XCAFDoc_DocumentTool::VisMaterialTool(document->Main()))
    {
    }

    TDF_Label root(const VrmlData_Scene &scene, const QString &name)
    {
        const TDF_Label label = m_shapes->NewShape();
        TDataStd_Name::Set(label, name.toStdU16String().c_str());
        for (VrmlData_Scene::Iterator nodes = scene.GetIterator(); nodes.More(); nodes.Next())
            add(label, nodes.Value());
        m_shapes->UpdateAssemblies();
        return label;
    }

    /// Whether all faces had their points.
    [[nodiscard]] bool isWhole() const { return m_isWhole; }

private:
    void add(const TDF_Label &parent, const Handle(VrmlData_Node) & node)
    {
        const auto group = Handle(VrmlData_Group)::DownCast(node);
        const Handle(VrmlData_Node) placed = onlyChild(group);
        const TDF_Label label = labelOf(placed.IsNull() ? node : placed);
        if (label.IsNull())
            return;
        const gp_Trsf where = group.IsNull() ? gp_Trsf() : group->GetTransform();
        const TDF_Label component = m_shapes->AddComponent(parent, label, TopLoc_Location(where));
        Handle(TDataStd_Name) own;
        if (label.FindAttribute(TDataStd_Name::GetID(), own))
            TDataStd_Name::Set(component, own->Get());
        name(component, node);
    }

    /// A transformation of a single node only says where this node stands; it makes no group.
    static Handle(VrmlData_Node) onlyChild(const Handle(VrmlData_Group) & group)
    {
        if (group.IsNull() || !group->IsTransform())
            return {};
        VrmlData_Group::Iterator nodes = group->NodeIterator();
        if (!nodes.More())
            return {};
        Handle(VrmlData_Node) first = nodes.Value();
        nodes.Next();
        const auto inner = Handle(VrmlData_Group)::DownCast(first);
        const bool isPlaced = !inner.IsNull() && inner->IsTransform();
        return nodes.More() || isPlaced ? Handle(VrmlData_Node)() : first;
    }

    TDF_Label labelOf(const Handle(VrmlData_Node) & node)
    {
        if (node.IsNull())
            return {};
        const auto known = m_done.find(node.get());
        if (known != m_done.end())
            return known->second;
        TDF_Label label;
        if (const auto group = Handle(VrmlData_Group)::DownCast(node); !group.IsNull())
            label = assembly(group);
        else if (const auto shape = Handle(VrmlData_ShapeNode)::DownCast(node); !shape.IsNull())
            label = part(shape);
        m_done.emplace(node.get(), label);
        return label;
    }

    TDF_Label assembly(const Handle(VrmlData_Group) & group)
    {
        const TDF_Label label = m_shapes->NewShape();
        name(label, group);
        for (VrmlData_Group::Iterator nodes = group->NodeIterator(); nodes.More(); nodes.Next())
            add(label, nodes.Value());
        return label;
    }

    TDF_Label part(const Handle(VrmlData_ShapeNode) & node)
    {
        const Handle(VrmlData_Geometry) &geometry = node->Geometry();
        const auto set = Handle(VrmlData_IndexedFaceSet)::DownCast(geometry);
        if (!set.IsNull() && !olVrmlMesh::isWhole(set)) {
            m_isWhole = false;
            return {};
        }
        if (geometry.IsNull() || geometry->TShape().IsNull())
            return {};
        const QString texture = textureOf(node->Appearance());
        const TDF_Label label = m_shapes->AddShape(shapeOf(geometry, !texture.isEmpty()), Standard_False);
        name(label, node);
        paint(label, node->Appearance(), texture);
        return label;
    }

    static TopoDS_Shape shapeOf(const Handle(VrmlData_Geometry) & geometry, bool hasTexture)
    {
        const auto set = Handle(VrmlData_IndexedFaceSet)::DownCast(geometry);
        const TopoDS_Face textured = hasTexture && !set.IsNull() ? olVrmlMesh::withTexture(set) : TopoDS_Face();
        if (!textured.IsNull())
            return textured;
        TopoDS_Shape shape;
        shape.TShape(geometry->TShape());
        return shape;
    }

    static QString textureOf(const Handle(VrmlData_Appearance) & appearance)
    {
        if (appearance.IsNull())
            return {};
        const auto image = Handle(VrmlData_ImageTexture)::DownCast(appearance->Texture());
        return image.IsNull() || image->URL().IsEmpty() ? QString()
                                                        : QFile::decodeName(image->URL().First().ToCString());
    }

    void paint(const TDF_Label &label, const Handle(VrmlData_Appearance) & appearance, const QString &texture)
    {
        const Handle(VrmlData_Material) material =
            appearance.IsNull() ? Handle(VrmlData_Material)() : appearance->Material();
        Quantity_ColorRGBA color(1.0f, 1.0f, 1.0f, 1.0f);
        if (!material.IsNull())
            color = Quantity_ColorRGBA(material->DiffuseColor(), float(1.0 - material->Transparency()));
        if (!texture.isEmpty())
            return paintTexture(label, color, texture);
        if (!material.IsNull())
            m_colors->SetColor(label, color, XCAFDoc_ColorGen);
    }

    void paintTexture(const TDF_Label &label, const Quantity_ColorRGBA &color, const QString &texture)
    {
        XCAFDoc_VisMaterialCommon common;
        common.DiffuseColor = color.GetRGB();
        common.Transparency = 1.0f - color.Alpha();
        common.DiffuseTexture = new Image_Texture(QFile::encodeName(texture).constData());
        const Handle(XCAFDoc_VisMaterial) material = new XCAFDoc_VisMaterial;
        material->SetCommonMaterial(common);
        m_materials->SetShapeMaterial(label, m_materials->AddMaterial(material, TCollection_AsciiString()));
    }

    static void name(const TDF_Label &label, const Handle(VrmlData_Node) & node)
    {
        if (node->Name() && *node->Name())
            TDataStd_Name::Set(label, TCollection_ExtendedString(node->Name(), Standard_True));
    }

    Handle(XCAFDoc_ShapeTool) m_shapes;
    Handle(XCAFDoc_ColorTool) m_colors;
    Handle(XCAFDoc_VisMaterialTool) m_materials;
    bool m_isWhole = true;
    std::map<const VrmlData_Node *, TDF_Label> m_done;
};

} // namespace

QString olReadVrml(const QString &file, const olScene::Document &document)
{
    std::ifstream stream(QFile::encodeName(file).constData());
    const QFileInfo info(file);
    VrmlData_Scene scene;
    // The library puts the name of a file directly behind it.
    scene.SetVrmlDir((info.absolutePath() + QLatin1Char('/')).toStdU16String().c_str());
    scene << stream;
    if (scene.Status() == VrmlData_CannotOpenFile)
        return reason("a file that it refers to cannot be opened");
    if (scene.Status() != VrmlData_StatusOK)
        return reason("the file is damaged: line %1 cannot be understood").arg(scene.GetLineError());
    Walk walk(document);
    walk.root(scene, info.completeBaseName());
    return walk.isWhole() ? QString() : reason("the file is damaged: a face refers to a point that is not there");
}
