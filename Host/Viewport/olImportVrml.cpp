#include "Viewport/olImportVrml.h"

#include <Quantity_ColorRGBA.hxx>
#include <TDF_Label.hxx>
#include <TDataStd_Name.hxx>
#include <TDocStd_Document.hxx>
#include <TopLoc_Location.hxx>
#include <TopoDS_Shape.hxx>
#include <VrmlData_Appearance.hxx>
#include <VrmlData_Geometry.hxx>
#include <VrmlData_Group.hxx>
#include <VrmlData_Material.hxx>
#include <VrmlData_Scene.hxx>
#include <VrmlData_ShapeNode.hxx>
#include <XCAFDoc_ColorTool.hxx>
#include <XCAFDoc_DocumentTool.hxx>
#include <XCAFDoc_ShapeTool.hxx>

#include <QFile>
#include <QFileInfo>

#include <fstream>
#include <map>

namespace
{

/// Turns groups into assemblies and shape nodes into parts; a node used in several places stays one.
class Walk
{
public:
    explicit Walk(const olScene::Document &document)
        : m_shapes(XCAFDoc_DocumentTool::ShapeTool(document->Main())),
          m_colors(XCAFDoc_DocumentTool::ColorTool(document->Main()))
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
        if (geometry.IsNull() || geometry->TShape().IsNull())
            return {};
        TopoDS_Shape shape;
        shape.TShape(geometry->TShape());
        const TDF_Label label = m_shapes->AddShape(shape, Standard_False);
        name(label, node);
        const Handle(VrmlData_Appearance) &appearance = node->Appearance();
        if (appearance.IsNull() || appearance->Material().IsNull())
            return label;
        const Handle(VrmlData_Material) &material = appearance->Material();
        const double opacity = 1.0 - material->Transparency();
        m_colors->SetColor(label, Quantity_ColorRGBA(material->DiffuseColor(), float(opacity)), XCAFDoc_ColorGen);
        return label;
    }

    static void name(const TDF_Label &label, const Handle(VrmlData_Node) & node)
    {
        if (node->Name() && *node->Name())
            TDataStd_Name::Set(label, TCollection_ExtendedString(node->Name(), Standard_True));
    }

    Handle(XCAFDoc_ShapeTool) m_shapes;
    Handle(XCAFDoc_ColorTool) m_colors;
    std::map<const VrmlData_Node *, TDF_Label> m_done;
};

} // namespace

bool olReadVrml(const QString &file, const olScene::Document &document)
{
    std::ifstream stream(QFile::encodeName(file).constData());
    const QFileInfo info(file);
    VrmlData_Scene scene;
    scene.SetVrmlDir(info.absolutePath().toStdU16String().c_str());
    scene << stream;
    if (scene.Status() != VrmlData_StatusOK)
        return false;
    Walk(document).root(scene, info.completeBaseName());
    return true;
}
