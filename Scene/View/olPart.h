#pragma once

#include <TopoDS_Face.hxx>
#include <XCAFPrs_AISObject.hxx>
#include <XCAFPrs_Style.hxx>

#include <optional>
#include <vector>

struct XCAFPrs_DocumentNode;

/// One part of the scene where it stands, in the colours that it inherits from the assemblies around it. It is drawn
/// with one of its levels of detail, and either the whole part or one level is what gets selected.
class olPart : public XCAFPrs_AISObject
{
    DEFINE_STANDARD_RTTI_INLINE(olPart, XCAFPrs_AISObject)

public:
    explicit olPart(const XCAFPrs_DocumentNode &node);

    /// The part's place in the document, as the document's explorer names it.
    [[nodiscard]] const TCollection_AsciiString &id() const { return m_id; }

    [[nodiscard]] bool isFullyTransparent() const;

    [[nodiscard]] int levels() const { return m_levels; }

    /// The display mode in which one of the levels is drawn.
    [[nodiscard]] static int displayModeOf(int level);

    /// The level that suits a part of that many pixels.
    [[nodiscard]] int levelFor(double pixels) const;

    [[nodiscard]] unsigned triangles() const { return m_triangles; }

    /// Whether fewer triangles can stand for its own while speed counts, which what has colours at its nodes or levels
    /// of its own does without; and with how many it is drawn then, in the other display mode.
    [[nodiscard]] bool canBeCoarse() const { return m_colored.empty() && m_levels == 1 && m_triangles > 0; }
    void setCoarseTriangles(double triangles) { m_coarseTriangles = triangles; }
    [[nodiscard]] static int coarseDisplayMode();

    /// Whether it is drawn so now.
    bool isCoarse = false;

    /// Which level is drawn now.
    int shownLevel = 0;

    /// Whether it was told to hide what is behind it although one sees through it; nothing where that is to be done.
    std::optional<bool> writesDepth;

    /// Whether the mouse finds it.
    bool isSelectable = false;

    /// Which level is selected where it is not the whole part.
    std::optional<int> selectedLevel;

    /// Whether the borders of its surfaces are drawn; takes effect when it is displayed anew.
    void setEdges(bool on);

    /// Whether one sees through any of what is displayed of it.
    [[nodiscard]] bool isTransparent() const;

    /// Whether it counts as solid for the depth, although one sees through it.
    void setWritesDepth(bool writes);

protected:
    void DefaultStyle(XCAFPrs_Style &style) const override;
    Standard_Boolean AcceptDisplayMode(Standard_Integer mode) const override;
    void Compute(const Handle(PrsMgr_PresentationManager) & manager, const Handle(Prs3d_Presentation) & presentation,
                 Standard_Integer mode) override;

private:
    [[nodiscard]] static int levelOf(int displayMode);
    void addColored(const Handle(Prs3d_Presentation) & presentation, const TopoDS_Face &face);

    TCollection_AsciiString m_id;
    XCAFPrs_Style m_style;
    TopoDS_Shape m_source;

    /// Faces whose nodes have colours of their own, which the library does not draw.
    std::vector<TopoDS_Face> m_colored;
    int m_levels;
    unsigned m_triangles = 0;
    double m_coarseTriangles = 0;
};
