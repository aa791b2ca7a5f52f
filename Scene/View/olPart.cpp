#include "View/olPart.h"

#include "Model/olLevelsOfDetail.h"
#include "Model/olPlainLook.h"

#include <AIS_DisplayMode.hxx>
#include <Graphic3d_AspectFillArea3d.hxx>
#include <Graphic3d_Group.hxx>
#include <PrsMgr_Presentation.hxx>
#include <XCAFDoc_ShapeTool.hxx>
#include <XCAFPrs_DocumentNode.hxx>

namespace
{

/// Behind those that the library knows.
constexpr int firstLevelMode = 100;

} // namespace

olPart::olPart(const XCAFPrs_DocumentNode &node)
    : XCAFPrs_AISObject(node.RefLabel),
      m_id(node.Id),
      m_style(node.Style),
      m_source(XCAFDoc_ShapeTool::GetShape(node.RefLabel)),
      m_levels(olLevelsOfDetail::count(m_source))
{
    // The scene is triangulated as its import wanted; displaying it must not do that again.
    Attributes()->SetAutoTriangulation(Standard_False);
    SetLocalTransformation(node.Location);
}

bool olPart::isFullyTransparent() const
{
    return m_style.IsSetColorSurf() && m_style.GetColorSurfRGBA().Alpha() <= 0.0f;
}

int olPart::displayModeOf(int level) { return level == 0 ? int(AIS_Shaded) : firstLevelMode + level; }

int olPart::levelOf(int displayMode) { return displayMode > firstLevelMode ? displayMode - firstLevelMode : 0; }

int olPart::levelFor(double pixels) const { return olLevelsOfDetail::forSize(pixels, m_levels); }

Standard_Boolean olPart::AcceptDisplayMode(const Standard_Integer mode) const
{
    const int level = levelOf(mode);
    return level > 0 ? level < m_levels : XCAFPrs_AISObject::AcceptDisplayMode(mode);
}

void olPart::Compute(const Handle(PrsMgr_PresentationManager) & manager,
                     const Handle(Prs3d_Presentation) & presentation, const Standard_Integer mode)
{
    const int level = levelOf(mode);
    const olLevelsOfDetail::InUse used(m_source, level);
    XCAFPrs_AISObject::Compute(manager, presentation, level > 0 ? int(AIS_Shaded) : mode);
}

bool olPart::isTransparent() const
{
    for (const Handle(PrsMgr_Presentation) & presentation : myPresentations) {
        for (const Handle(Graphic3d_Group) & group : presentation->Groups()) {
            const Handle(Graphic3d_Aspects) aspects = group->Aspects();
            if (!aspects.IsNull() && aspects->FrontMaterial().Transparency() > 0.0f)
                return true;
        }
    }
    return false;
}

void olPart::DefaultStyle(XCAFPrs_Style &style) const
{
    style = m_style;
    if (style.Material().IsNull() && !style.IsSetColorSurf())
        style.SetColorSurf(olPlainLook::bare());
}

void olPart::setWritesDepth(bool writes)
{
    const Graphic3d_AlphaMode mode = writes ? Graphic3d_AlphaMode_MaskBlend : Graphic3d_AlphaMode_BlendAuto;
    for (const Handle(PrsMgr_Presentation) & presentation : Presentations()) {
        for (const Handle(Graphic3d_Group) & group : presentation->Groups()) {
            const Handle(Graphic3d_Aspects) aspects = group->Aspects();
            if (aspects.IsNull() || aspects->AlphaMode() == mode)
                continue;
            aspects->SetAlphaMode(mode, 0.01f);
            group->SetGroupPrimitivesAspect(aspects);
        }
    }
}
