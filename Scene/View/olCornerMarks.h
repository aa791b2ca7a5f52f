#pragma once

#include <AIS_InteractiveObject.hxx>
#include <Bnd_Box.hxx>
#include <Quantity_Color.hxx>

#include <vector>

/// The marks at the corners of the bounding boxes of what is selected.
class olCornerMarks : public AIS_InteractiveObject
{
    DEFINE_STANDARD_RTTI_INLINE(olCornerMarks, AIS_InteractiveObject)

public:
    /// The size is a factor of the plain one. What changes shows with the next display.
    void setMarks(const std::vector<Bnd_Box> &boxes, double size, const Quantity_Color &color);

protected:
    void Compute(const Handle(PrsMgr_PresentationManager) & manager, const Handle(Prs3d_Presentation) & presentation,
                 Standard_Integer mode) override;
    void ComputeSelection(const Handle(SelectMgr_Selection) &, const Standard_Integer) override {}

private:
    std::vector<Bnd_Box> m_boxes;
    double m_size = 1.0;
    Quantity_Color m_color;
};
