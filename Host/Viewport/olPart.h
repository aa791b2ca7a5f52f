#pragma once

#include <XCAFPrs_AISObject.hxx>
#include <XCAFPrs_Style.hxx>

struct XCAFPrs_DocumentNode;

/// One part of the scene where it stands, in the colours that it inherits from the assemblies around it.
class olPart : public XCAFPrs_AISObject
{
    DEFINE_STANDARD_RTTI_INLINE(olPart, XCAFPrs_AISObject)

public:
    explicit olPart(const XCAFPrs_DocumentNode &node);

    /// The part's place in the document, as the document's explorer names it.
    [[nodiscard]] const TCollection_AsciiString &id() const { return m_id; }

    [[nodiscard]] bool isFullyTransparent() const;

    /// Whether one sees through any of what is displayed of it.
    [[nodiscard]] bool isTransparent() const;

    /// Whether it counts as solid for the depth, although one sees through it.
    void setWritesDepth(bool writes);

protected:
    void DefaultStyle(XCAFPrs_Style &style) const override;

private:
    TCollection_AsciiString m_id;
    XCAFPrs_Style m_style;
};
