#include "Model/olPlainLook.h"

#include "Model/olDocumentCopy.h"

#include <Quantity_ColorRGBA.hxx>
#include <TDF_Label.hxx>
#include <TDF_LabelSequence.hxx>
#include <TDocStd_Document.hxx>
#include <XCAFDoc_ColorTool.hxx>
#include <XCAFDoc_DocumentTool.hxx>
#include <XCAFDoc_ShapeTool.hxx>
#include <XCAFDoc_VisMaterial.hxx>
#include <XCAFDoc_VisMaterialTool.hxx>

#include <functional>
#include <map>
#include <sstream>
#include <string>

namespace
{

// What the view makes of a bare colour: so much of it shines in the shade and in the light, and nothing is mirrored.
constexpr double ambientShare = 0.15;
constexpr double diffuseShare = 0.65;

Quantity_Color share(const Quantity_Color &color, double share)
{
    return {color.Red() * share, color.Green() * share, color.Blue() * share, Quantity_TOC_RGB};
}

/// The look of a material that says nothing of its own about the light.
XCAFDoc_VisMaterialCommon commonOf(const Quantity_ColorRGBA &color)
{
    XCAFDoc_VisMaterialCommon common;
    common.AmbientColor = share(color.GetRGB(), ambientShare);
    common.DiffuseColor = share(color.GetRGB(), diffuseShare);
    common.SpecularColor = Quantity_NOC_BLACK;
    common.Shininess = 0.0f;
    common.Transparency = 1.0f - color.Alpha();
    return common;
}

XCAFDoc_VisMaterialPBR dullOf(const Quantity_ColorRGBA &color)
{
    XCAFDoc_VisMaterialPBR pbr;
    pbr.BaseColor = color;
    pbr.Metallic = 0.0f;
    return pbr;
}

bool isBare(const XCAFDoc_VisMaterial &material)
{
    if (material.HasPbrMaterial())
        return material.PbrMaterial().IsEqual(dullOf(material.PbrMaterial().BaseColor)) &&
               material.AlphaMode() != Graphic3d_AlphaMode_Mask &&
               material.FaceCulling() == Graphic3d_TypeOfBackfacingModel_Auto;
    if (!material.HasCommonMaterial())
        return false;
    const XCAFDoc_VisMaterialCommon &common = material.CommonMaterial();
    return common.DiffuseTexture.IsNull() && common.SpecularColor.IsEqual(Quantity_NOC_BLACK) &&
           common.EmissiveColor.IsEqual(Quantity_NOC_BLACK);
}

/// Parts, groups, instances and pieces.
void eachShape(const olScene::Document &document, const std::function<void(const TDF_Label &)> &visit)
{
    TDF_LabelSequence labels;
    XCAFDoc_DocumentTool::ShapeTool(document->Main())->GetShapes(labels);
    for (const TDF_Label &label : labels) {
        visit(label);
        TDF_LabelSequence pieces;
        XCAFDoc_ShapeTool::GetComponents(label, pieces);
        XCAFDoc_ShapeTool::GetSubShapes(label, pieces);
        for (const TDF_Label &piece : pieces)
            visit(piece);
    }
}

/// Puts materials in the place of colours.
class Painter
{
public:
    explicit Painter(const olScene::Document &document)
        : m_colors(XCAFDoc_DocumentTool::ColorTool(document->Main())),
          m_materials(XCAFDoc_DocumentTool::VisMaterialTool(document->Main()))
    {
    }

    void paint(const TDF_Label &label)
    {
        TDF_Label own;
        Quantity_ColorRGBA color;
        if (XCAFDoc_VisMaterialTool::GetShapeMaterial(label, own))
            return;
        if (m_colors->GetColor(label, XCAFDoc_ColorSurf, color) || m_colors->GetColor(label, XCAFDoc_ColorGen, color))
            m_materials->SetShapeMaterial(label, materialOf(color));
    }

private:
    TDF_Label materialOf(const Quantity_ColorRGBA &color)
    {
        std::ostringstream key;
        key << color.GetRGB().Red() << ' ' << color.GetRGB().Green() << ' ' << color.GetRGB().Blue() << ' '
            << color.Alpha();
        TDF_Label &label = m_made[key.str()];
        if (label.IsNull()) {
            const Handle(XCAFDoc_VisMaterial) material = new XCAFDoc_VisMaterial;
            material->SetCommonMaterial(olPlainLook::bareLook(color));
            material->SetPbrMaterial(dullOf(color));
            label = m_materials->AddMaterial(material, TCollection_AsciiString());
        }
        return label;
    }

    Handle(XCAFDoc_ColorTool) m_colors;
    Handle(XCAFDoc_VisMaterialTool) m_materials;
    std::map<std::string, TDF_Label> m_made;
};

} // namespace

Quantity_Color olPlainLook::bare() { return {0.86, 0.88, 0.9, Quantity_TOC_sRGB}; }

XCAFDoc_VisMaterialCommon olPlainLook::bareLook(const Quantity_ColorRGBA &color)
{
    XCAFDoc_VisMaterialCommon common = commonOf(color);
    // Formats that keep one colour keep the diffuse one, so that it stands there whole.
    common.DiffuseColor = color.GetRGB();
    return common;
}

void olPlainLook::addTo(const olScene::Document &document)
{
    const Handle(XCAFDoc_VisMaterialTool) tool = XCAFDoc_DocumentTool::VisMaterialTool(document->Main());
    TDF_LabelSequence labels;
    tool->GetMaterials(labels);
    for (const TDF_Label &label : labels) {
        const Handle(XCAFDoc_VisMaterial) material = tool->GetMaterial(label);
        if (material.IsNull() || !material->HasPbrMaterial() || material->HasCommonMaterial())
            continue;
        XCAFDoc_VisMaterialCommon common = commonOf(material->PbrMaterial().BaseColor);
        common.DiffuseTexture = material->PbrMaterial().BaseColorTexture;
        material->SetCommonMaterial(common);
    }
    const Handle(XCAFDoc_ColorTool) colors = XCAFDoc_DocumentTool::ColorTool(document->Main());
    eachShape(document, [&](const TDF_Label &label) {
        const Handle(XCAFDoc_VisMaterial) material = tool->GetShapeMaterial(label);
        if (material.IsNull() || !isBare(*material))
            return;
        colors->SetColor(label, material->BaseColor(), XCAFDoc_ColorSurf);
        tool->UnSetShapeMaterial(label);
    });
}

olScene::Document olPlainLook::asMaterials(const olScene::Document &document)
{
    const olScene::Document copy = olDocumentCopy().copy(document);
    Painter painter(copy);
    eachShape(copy, [&painter](const TDF_Label &label) { painter.paint(label); });
    return copy;
}
