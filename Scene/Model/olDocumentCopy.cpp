#include "Model/olDocumentCopy.h"

#include <BRepTools_ReShape.hxx>
#include <Quantity_ColorRGBA.hxx>
#include <TCollection_HAsciiString.hxx>
#include <TDF_Label.hxx>
#include <TDF_LabelDataMap.hxx>
#include <TDF_LabelSequence.hxx>
#include <TDataStd_Name.hxx>
#include <TDataStd_TreeNode.hxx>
#include <TDocStd_Document.hxx>
#include <TopLoc_Location.hxx>
#include <TopoDS_Iterator.hxx>
#include <XCAFDoc.hxx>
#include <XCAFDoc_ColorTool.hxx>
#include <XCAFDoc_DocumentTool.hxx>
#include <XCAFDoc_LayerTool.hxx>
#include <XCAFDoc_MaterialTool.hxx>
#include <XCAFDoc_ShapeTool.hxx>
#include <XCAFDoc_VisMaterial.hxx>
#include <XCAFDoc_VisMaterialTool.hxx>
#include <gp_Vec.hxx>

TopoDS_Shape olChangedPart::follow(const TopoDS_Shape &piece) const
{
    TopoDS_Shape now = piece;
    for (const auto &change : changes) {
        if (!now.IsNull())
            now = change->Value(now);
    }
    return now;
}

namespace
{

/// The tools of one document.
struct Tools {
    explicit Tools(const olScene::Document &document)
        : shapes(XCAFDoc_DocumentTool::ShapeTool(document->Main())),
          colors(XCAFDoc_DocumentTool::ColorTool(document->Main())),
          layers(XCAFDoc_DocumentTool::LayerTool(document->Main())),
          materials(XCAFDoc_DocumentTool::VisMaterialTool(document->Main())),
          substances(XCAFDoc_DocumentTool::MaterialTool(document->Main()))
    {
    }

    Handle(XCAFDoc_ShapeTool) shapes;
    Handle(XCAFDoc_ColorTool) colors;
    Handle(XCAFDoc_LayerTool) layers;
    Handle(XCAFDoc_VisMaterialTool) materials;
    Handle(XCAFDoc_MaterialTool) substances;
};

/// A location that moves nothing is none. The STEP writer falls over those that merely amount to nothing.
TopLoc_Location tidied(const TopLoc_Location &location)
{
    return location.Transformation().Form() == gp_Identity ? TopLoc_Location() : location;
}

/// A group without members is no assembly in the eyes of the library.
bool isGroup(const TDF_Label &label)
{
    if (XCAFDoc_ShapeTool::IsAssembly(label))
        return true;
    const TopoDS_Shape shape = XCAFDoc_ShapeTool::GetShape(label);
    return !shape.IsNull() && shape.ShapeType() == TopAbs_COMPOUND && !TopoDS_Iterator(shape).More();
}

} // namespace

class olDocumentCopy::Run
{
public:
    Run(const olDocumentCopy &how, const olScene::Document &source, const olScene::Document &target)
        : m_how(how), m_from(source), m_to(target)
    {
    }

    void copy()
    {
        TDF_LabelSequence labels;
        m_from.shapes->GetFreeShapes(labels);
        const bool isMoved = m_how.placement.Form() != gp_Identity;
        for (const TDF_Label &label : labels) {
            if (wanted(label))
                copyTop(label, isMoved ? TopLoc_Location(m_how.placement) : TopLoc_Location());
        }
        m_to.shapes->UpdateAssemblies();
    }

private:
    [[nodiscard]] bool wanted(const TDF_Label &label) const { return !m_how.isWanted || m_how.isWanted(label); }

    [[nodiscard]] TopLoc_Location locationOf(const TDF_Label &instance) const
    {
        const TopLoc_Location location = XCAFDoc_ShapeTool::GetLocation(instance);
        if (m_how.scale == 1.0)
            return location;
        gp_Trsf where = location.Transformation();
        where.SetTranslationPart(gp_Vec(where.TranslationPart() * m_how.scale));
        return where;
    }

    void copyTop(const TDF_Label &label, const TopLoc_Location &move)
    {
        TDF_Label referred;
        if (XCAFDoc_ShapeTool::GetReferredShape(label, referred))
            return place(label, referred, move * locationOf(label));
        if (isGroup(label)) {
            copyAssembly(label, move);
            return;
        }
        if (move.IsIdentity())
            copied(label);
        else
            place(label, label, move);
    }

    /// A part that stands alone but not at its own place.
    void place(const TDF_Label &instance, const TDF_Label &referred, const TopLoc_Location &where)
    {
        const TDF_Label target = copied(referred);
        if (target.IsNull())
            return;
        const TDF_Label placed =
            m_to.shapes->AddShape(XCAFDoc_ShapeTool::GetShape(target).Moved(where), Standard_False);
        copyLook(instance, placed);
    }

    /// The part or group in the new document; null where nothing is left of it.
    TDF_Label copied(const TDF_Label &label)
    {
        if (const TDF_Label *known = m_done.Seek(label))
            return *known;
        const TDF_Label target = isGroup(label) ? copyAssembly(label, {}) : copyPart(label);
        m_done.Bind(label, target);
        return target;
    }

    TDF_Label copyAssembly(const TDF_Label &label, const TopLoc_Location &move)
    {
        std::vector<std::pair<TDF_Label, TDF_Label>> members;
        TDF_LabelSequence components;
        XCAFDoc_ShapeTool::GetComponents(label, components);
        for (const TDF_Label &component : components) {
            TDF_Label referred;
            if (!wanted(component) || !XCAFDoc_ShapeTool::GetReferredShape(component, referred))
                continue;
            const TDF_Label target = copied(referred);
            if (!target.IsNull())
                members.emplace_back(component, target);
        }
        if (members.empty() && !m_how.keepEmptyGroups)
            return {};

        const TDF_Label group = m_to.shapes->NewShape();
        copyLook(label, group);
        for (const auto &[component, target] : members) {
            const TopLoc_Location where = tidied(move * locationOf(component));
            copyLook(component, m_to.shapes->AddComponent(group, target, where));
        }
        return group;
    }

    TDF_Label copyPart(const TDF_Label &label)
    {
        olChangedPart part{XCAFDoc_ShapeTool::GetShape(label), {}};
        if (m_how.changePart && !part.shape.IsNull())
            m_how.changePart(label, part);
        if (part.shape.IsNull())
            return {};
        const TDF_Label target = m_to.shapes->AddShape(part.shape, Standard_False);
        copyLook(label, target);

        TDF_LabelSequence pieces;
        XCAFDoc_ShapeTool::GetSubShapes(label, pieces);
        for (const TDF_Label &piece : pieces) {
            const TopoDS_Shape now = part.follow(XCAFDoc_ShapeTool::GetShape(piece));
            TDF_Label targetPiece;
            if (!now.IsNull() && m_to.shapes->AddSubShape(target, now, targetPiece))
                copyLook(piece, targetPiece);
        }
        return target;
    }

    void copyLook(const TDF_Label &from, const TDF_Label &to)
    {
        Handle(TDataStd_Name) name;
        if (from.FindAttribute(TDataStd_Name::GetID(), name))
            TDataStd_Name::Set(to, name->Get());
        for (const XCAFDoc_ColorType kind : {XCAFDoc_ColorGen, XCAFDoc_ColorSurf, XCAFDoc_ColorCurv}) {
            Quantity_ColorRGBA color;
            if (m_from.colors->GetColor(from, kind, color))
                m_to.colors->SetColor(to, color, kind);
        }
        if (!m_from.colors->IsVisible(from))
            m_to.colors->SetVisibility(to, Standard_False);
        copyLayers(from, to);
        copyMaterial(from, to);
        copySubstance(from, to);
    }

    /// What it is made of, as opposed to what it looks like.
    void copySubstance(const TDF_Label &from, const TDF_Label &to)
    {
        Handle(TDataStd_TreeNode) node;
        if (!from.FindAttribute(XCAFDoc::MaterialRefGUID(), node) || !node->HasFather())
            return;
        const TDF_Label source = node->Father()->Label();
        TDF_Label target;
        if (const TDF_Label *known = m_done.Seek(source)) {
            target = *known;
        } else {
            Handle(TCollection_HAsciiString) texts[4];
            double density = 0;
            if (!m_from.substances->GetMaterial(source, texts[0], texts[1], density, texts[2], texts[3]))
                return;
            target = m_to.substances->AddMaterial(texts[0], texts[1], density, texts[2], texts[3]);
            m_done.Bind(source, target);
        }
        m_to.substances->SetMaterial(to, target);
    }

    void copyLayers(const TDF_Label &from, const TDF_Label &to)
    {
        TDF_LabelSequence layers;
        m_from.layers->GetLayers(from, layers);
        for (const TDF_Label &layer : layers) {
            TCollection_ExtendedString name;
            if (!m_from.layers->GetLayer(layer, name))
                continue;
            m_to.layers->SetLayer(to, name);
            TDF_Label target;
            if (!m_from.layers->IsVisible(layer) && m_to.layers->FindLayer(name, target))
                m_to.layers->SetVisibility(target, Standard_False);
        }
    }

    void copyMaterial(const TDF_Label &from, const TDF_Label &to)
    {
        TDF_Label source;
        if (!XCAFDoc_VisMaterialTool::GetShapeMaterial(from, source))
            return;
        const Handle(XCAFDoc_VisMaterial) material = m_from.materials->GetMaterial(source);
        if (material.IsNull())
            return;
        if (const TDF_Label *known = m_done.Seek(source))
            return m_to.materials->SetShapeMaterial(to, *known);

        const Handle(XCAFDoc_VisMaterial) target = new XCAFDoc_VisMaterial;
        if (material->HasCommonMaterial())
            target->SetCommonMaterial(material->CommonMaterial());
        if (material->HasPbrMaterial())
            target->SetPbrMaterial(material->PbrMaterial());
        target->SetAlphaMode(material->AlphaMode(), material->AlphaCutOff());
        target->SetFaceCulling(material->FaceCulling());
        Handle(TDataStd_Name) name;
        TCollection_AsciiString text;
        if (source.FindAttribute(TDataStd_Name::GetID(), name))
            text = name->Get();
        const TDF_Label label = m_to.materials->AddMaterial(target, text);
        m_done.Bind(source, label);
        m_to.materials->SetShapeMaterial(to, label);
    }

    const olDocumentCopy &m_how;
    Tools m_from;
    Tools m_to;
    TDF_LabelDataMap m_done;
};

olScene::Document olDocumentCopy::copy(const olScene::Document &source) const
{
    const olScene::Document target = olScene::newDocument();
    copyInto(source, target);
    return target;
}

void olDocumentCopy::copyInto(const olScene::Document &source, const olScene::Document &target) const
{
    Run(*this, source, target).copy();
}
