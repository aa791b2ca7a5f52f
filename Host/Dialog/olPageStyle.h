#pragma once

#include "olHostExport.h"

#include <QIcon>
#include <QProxyStyle>

/// The style of the desktop, for pages of settings: boxes to be ticked have a border that can be seen in every palette,
/// fields, buttons, menus, sliders and tabs have one in the dark, a box of choices shows its hint while none is made,
/// and a group box bears its caption in a band, as the groups do that fold away.
class ORLO_HOST_EXPORT olPageStyle : public QProxyStyle
{
    Q_OBJECT

public:
    using QProxyStyle::QProxyStyle;

    /// What a box of choices shows in place of a choice. The toolkit's own placeholder makes a choice when it goes.
    static constexpr auto hintProperty = "olHint";

    void drawPrimitive(PrimitiveElement element, const QStyleOption *option, QPainter *painter,
                       const QWidget *widget) const override;
    void drawControl(ControlElement element, const QStyleOption *option, QPainter *painter,
                     const QWidget *widget) const override;
    void drawComplexControl(ComplexControl control, const QStyleOptionComplex *option, QPainter *painter,
                            const QWidget *widget) const override;
    [[nodiscard]] QRect subControlRect(ComplexControl control, const QStyleOptionComplex *option, SubControl part,
                                       const QWidget *widget) const override;
    [[nodiscard]] QSize sizeFromContents(ContentsType type, const QStyleOption *option, const QSize &size,
                                         const QWidget *widget) const override;
    [[nodiscard]] QIcon standardIcon(StandardPixmap which, const QStyleOption *option,
                                     const QWidget *widget) const override;

private:
    void drawSlider(const QStyleOptionComplex &option, QPainter &painter, const QWidget *widget) const;
};
