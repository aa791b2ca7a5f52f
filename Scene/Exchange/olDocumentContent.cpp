#include "Exchange/olDocumentContent.h"

#include "Exchange/olModelFormat.h"
#include "Model/olColoredMesh.h"
#include "Model/olLibraryMessages.h"

#include <BRep_Tool.hxx>
#include <Poly_Triangulation.hxx>
#include <Quantity_ColorRGBA.hxx>
#include <TDF_LabelSequence.hxx>
#include <TDataStd_TreeNode.hxx>
#include <TDocStd_Document.hxx>
#include <TopExp_Explorer.hxx>
#include <TopLoc_Location.hxx>
#include <TopoDS.hxx>
#include <TopoDS_Face.hxx>
#include <XCAFDoc.hxx>
#include <XCAFDoc_ColorTool.hxx>
#include <XCAFDoc_DocumentTool.hxx>
#include <XCAFDoc_LayerTool.hxx>
#include <XCAFDoc_ShapeTool.hxx>
#include <XCAFDoc_VisMaterial.hxx>
#include <XCAFDoc_VisMaterialTool.hxx>

namespace
{

class Content
{
public:
    explicit Content(const olScene::Document &document)
        : m_shapes(XCAFDoc_DocumentTool::ShapeTool(document->Main())),
          m_colors(XCAFDoc_DocumentTool::ColorTool(document->Main())),
          m_layers(XCAFDoc_DocumentTool::LayerTool(document->Main())),
          m_looks(XCAFDoc_DocumentTool::VisMaterialTool(document->Main()))
    {
        TDF_LabelSequence labels;
        m_shapes->GetShapes(labels);
        for (const TDF_Label &label : labels)
            add(label);
    }

    [[nodiscard]] unsigned bits() const { return m_bits; }

private:
    void add(const TDF_Label &label)
    {
        addLook(label);
        TDF_LabelSequence below;
        XCAFDoc_ShapeTool::GetComponents(label, below);
        XCAFDoc_ShapeTool::GetSubShapes(label, below);
        for (const TDF_Label &piece : below)
            addLook(piece);
        if (XCAFDoc_ShapeTool::IsAssembly(label))
            m_bits |= olModelFormat::Structure;
        else if (XCAFDoc_ShapeTool::IsSimpleShape(label))
            addPart(label);
    }

    void addPart(const TDF_Label &label)
    {
        if (!olNameOf(label).isEmpty())
            m_bits |= olModelFormat::Names;
        const TopoDS_Shape shape = XCAFDoc_ShapeTool::GetShape(label);
        for (TopExp_Explorer each(shape, TopAbs_FACE); each.More(); each.Next()) {
            const TopoDS_Face &face = TopoDS::Face(each.Current());
            TopLoc_Location location;
            const bool isSurface = !BRep_Tool::Surface(face, location).IsNull();
            m_bits |= isSurface ? olModelFormat::Surfaces : olModelFormat::Meshes;
            const Handle(Poly_Triangulation) &mesh = BRep_Tool::Triangulation(face, location);
            if (!mesh.IsNull() && mesh->IsKind(STANDARD_TYPE(olColoredMesh)))
                m_bits |= olModelFormat::CornerColors;
        }
        if (TopExp_Explorer(shape, TopAbs_EDGE, TopAbs_FACE).More())
            m_bits |= olModelFormat::Curves;
    }

    void addLook(const TDF_Label &label)
    {
        constexpr float barelyTransparent = 0.999f;
        Quantity_ColorRGBA color;
        const Handle(XCAFDoc_VisMaterial) look = m_looks->GetShapeMaterial(label);
        bool isColored = false;
        if (!look.IsNull()) {
            isColored = true;
            color = look->BaseColor();
            if ((look->HasCommonMaterial() && !look->CommonMaterial().DiffuseTexture.IsNull()) ||
                (look->HasPbrMaterial() && !look->PbrMaterial().BaseColorTexture.IsNull()))
                m_bits |= olModelFormat::Textures;
        } else {
            isColored = m_colors->GetColor(label, XCAFDoc_ColorSurf, color) ||
                        m_colors->GetColor(label, XCAFDoc_ColorGen, color);
        }
        if (isColored)
            m_bits |= olModelFormat::Colors | (color.Alpha() < barelyTransparent ? olModelFormat::Opacity : 0u);
        TDF_LabelSequence layers;
        if (m_layers->GetLayers(label, layers) && !layers.IsEmpty())
            m_bits |= olModelFormat::Layers;
        if (!m_colors->IsVisible(label))
            m_bits |= olModelFormat::Hidden;
        Handle(TDataStd_TreeNode) substance;
        if (label.FindAttribute(XCAFDoc::MaterialRefGUID(), substance) && substance->HasFather())
            m_bits |= olModelFormat::Substances;
    }

    Handle(XCAFDoc_ShapeTool) m_shapes;
    Handle(XCAFDoc_ColorTool) m_colors;
    Handle(XCAFDoc_LayerTool) m_layers;
    Handle(XCAFDoc_VisMaterialTool) m_looks;
    unsigned m_bits = 0;
};

} // namespace

unsigned olDocumentContent(const olScene::Document &document) { return Content(document).bits(); }
