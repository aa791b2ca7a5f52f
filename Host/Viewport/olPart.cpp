#include "Viewport/olPart.h"

#include <Graphic3d_AspectFillArea3d.hxx>
#include <Graphic3d_Group.hxx>
#include <PrsMgr_Presentation.hxx>
#include <XCAFPrs_DocumentNode.hxx>

olPart::olPart(const XCAFPrs_DocumentNode &node) : XCAFPrs_AISObject(node.RefLabel), m_id(node.Id), m_style(node.Style)
{
    // The scene is triangulated as its import wanted; displaying it must not do that again.
    Attributes()->SetAutoTriangulation(Standard_False);
    SetLocalTransformation(node.Location);
}

bool olPart::isFullyTransparent() const
{
    return m_style.IsSetColorSurf() && m_style.GetColorSurfRGBA().Alpha() <= 0.0f;
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

void olPart::DefaultStyle(XCAFPrs_Style &style) const { style = m_style; }

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
