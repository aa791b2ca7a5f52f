#include "Dialog/olPageStyle.h"

#include "Widgets/olBlended.h"
#include "Widgets/olCaptionBand.h"

#include <QComboBox>
#include <QGuiApplication>
#include <QPainter>
#include <QStyleOption>

#include <algorithm>

namespace
{

// From the background to the ink: at least 3 to 1 against either side of it wherever the ink itself can be read.
constexpr double borderShare = 0.7;

QFont captionFont(const QWidget *widget)
{
    QFont bold = widget ? widget->font() : QFont();
    bold.setBold(true);
    return bold;
}

QColor borderOf(const QPalette &palette, double share = borderShare)
{
    return olBlended(palette.color(QPalette::Window), palette.color(QPalette::WindowText), share);
}

bool isDark(const QPalette &palette)
{
    return palette.color(QPalette::Window).lightness() < palette.color(QPalette::WindowText).lightness();
}

/// The desktop's own borders are darker than what they stand on, which is little in the dark and nothing on black.
void drawBorder(const QPalette &palette, const QRect &rect, QPainter &painter)
{
    constexpr int nearlyBlack = 16;
    constexpr double shareInTheDark = 0.55; // still 3 to 1, but no glaring lines
    if (!isDark(palette))
        return;
    const bool isBlack = palette.color(QPalette::Window).lightness() <= nearlyBlack;
    painter.save();
    painter.setPen(borderOf(palette, isBlack ? borderShare : shareInTheDark));
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(QRectF(rect).adjusted(0.5, 0.5, -0.5, -0.5));
    painter.restore();
}

} // namespace

void olPageStyle::drawPrimitive(PrimitiveElement element, const QStyleOption *option, QPainter *painter,
                                const QWidget *widget) const
{
    QProxyStyle::drawPrimitive(element, option, painter, widget);
    if (element == PE_FrameLineEdit || element == PE_PanelButtonCommand || element == PE_Frame ||
        element == PE_FrameTabWidget || element == PE_PanelMenu)
        drawBorder(option->palette, option->rect, *painter);
    if (element != PE_IndicatorCheckBox && element != PE_IndicatorRadioButton)
        return;
    painter->save();
    painter->setPen(borderOf(option->palette));
    painter->setBrush(Qt::NoBrush);
    painter->setRenderHint(QPainter::Antialiasing);
    const QRectF border = QRectF(option->rect).adjusted(0.5, 0.5, -0.5, -0.5);
    if (element == PE_IndicatorCheckBox)
        painter->drawRect(border);
    else
        painter->drawEllipse(border);
    painter->restore();
}

void olPageStyle::drawControl(ControlElement element, const QStyleOption *option, QPainter *painter,
                              const QWidget *widget) const
{
    if (element == CE_TabBarTabShape) {
        QProxyStyle::drawControl(element, option, painter, widget);
        painter->save();
        painter->setClipRect(option->rect);
        // Open to the tab's page.
        drawBorder(option->palette, option->rect.adjusted(0, 0, 0, option->state & State_Selected ? 2 : 0), *painter);
        painter->restore();
        return;
    }
    const auto *shown = qstyleoption_cast<const QStyleOptionComboBox *>(option);
    const auto *box = qobject_cast<const QComboBox *>(widget);
    if (element != CE_ComboBoxLabel || !shown || !box || !shown->currentText.isEmpty() || box->currentIndex() >= 0) {
        QProxyStyle::drawControl(element, option, painter, widget);
        return;
    }
    QStyleOptionComboBox hint = *shown;
    hint.currentText = box->property(hintProperty).toString();
    for (const auto role : {QPalette::Text, QPalette::ButtonText})
        hint.palette.setColor(role, hint.palette.color(QPalette::PlaceholderText));
    QProxyStyle::drawControl(element, &hint, painter, widget);
}

/// The handle, and what lies before and behind it.
void olPageStyle::drawSlider(const QStyleOptionComplex &option, QPainter &painter, const QWidget *widget) const
{
    const QRect handle = proxy()->subControlRect(CC_Slider, &option, SC_SliderHandle, widget);
    const QRect groove = proxy()->subControlRect(CC_Slider, &option, SC_SliderGroove, widget);
    painter.save();
    painter.setClipRegion(QRegion(option.rect) - QRegion(handle));
    drawBorder(option.palette, groove, painter);
    painter.restore();
    drawBorder(option.palette, handle, painter);
}

void olPageStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex *option, QPainter *painter,
                                     const QWidget *widget) const
{
    const auto *box = qstyleoption_cast<const QStyleOptionGroupBox *>(option);
    if (control != CC_GroupBox || !box) {
        QProxyStyle::drawComplexControl(control, option, painter, widget);
        if (control == CC_ComboBox || control == CC_SpinBox)
            drawBorder(option->palette, option->rect, *painter);
        else if (control == CC_ScrollBar)
            drawBorder(option->palette, proxy()->subControlRect(control, option, SC_ScrollBarSlider, widget), *painter);
        else if (control == CC_Slider)
            drawSlider(*option, *painter, widget);
        return;
    }
    painter->save();
    painter->setFont(captionFont(widget));
    const QRect band(box->rect.topLeft(), QSize(box->rect.width(), olCaptionBand::height(painter->fontMetrics())));
    olCaptionBand::paint(*painter, band, box->palette, false, box->state & State_HasFocus);
    const QRect label = proxy()->subControlRect(CC_GroupBox, box, SC_GroupBoxLabel, widget);
    const bool isEnabled = box->state & State_Enabled;
    drawItemText(painter, label, int(Qt::AlignLeft | Qt::AlignVCenter | Qt::TextShowMnemonic), box->palette, isEnabled,
                 box->text, QPalette::WindowText);
    painter->restore();
    if (box->subControls & SC_GroupBoxCheckBox) {
        QStyleOptionButton check;
        check.QStyleOption::operator=(*box);
        check.rect = proxy()->subControlRect(CC_GroupBox, box, SC_GroupBoxCheckBox, widget);
        proxy()->drawPrimitive(PE_IndicatorCheckBox, &check, painter, widget);
    }
}

QRect olPageStyle::subControlRect(ComplexControl control, const QStyleOptionComplex *option, SubControl part,
                                  const QWidget *widget) const
{
    const auto *box = qstyleoption_cast<const QStyleOptionGroupBox *>(option);
    if (control != CC_GroupBox || !box)
        return QProxyStyle::subControlRect(control, option, part, widget);
    const QFontMetrics metrics(captionFont(widget));
    const int padding = olCaptionBand::padding(metrics);
    const int height = olCaptionBand::height(metrics);
    const int side = pixelMetric(PM_IndicatorWidth, option, widget);
    const QRect whole = box->rect;
    const bool isCheckable = box->subControls & SC_GroupBoxCheckBox;
    const int start = 2 * padding + (isCheckable ? side + 2 * padding : 0);
    QRect place = whole;
    switch (part) {
    case SC_GroupBoxCheckBox:
        place = QRect(whole.left() + 2 * padding, whole.top() + (height - side) / 2, side, side);
        break;
    case SC_GroupBoxLabel:
        place.setLeft(whole.left() + start);
        place.setHeight(height);
        place.setWidth(std::min(metrics.horizontalAdvance(box->text) + padding, whole.width() - start));
        break;
    case SC_GroupBoxContents:
        place.setTop(whole.top() + height);
        break;
    default:
        break;
    }
    return visualRect(box->direction, whole, place);
}

QSize olPageStyle::sizeFromContents(ContentsType type, const QStyleOption *option, const QSize &size,
                                    const QWidget *widget) const
{
    const auto *box = qstyleoption_cast<const QStyleOptionGroupBox *>(option);
    if (type != CT_GroupBox || !box)
        return QProxyStyle::sizeFromContents(type, option, size, widget);
    const QFontMetrics metrics(captionFont(widget));
    const int caption = metrics.horizontalAdvance(box->text) + 6 * olCaptionBand::padding(metrics) +
                        (box->subControls & SC_GroupBoxCheckBox ? pixelMetric(PM_IndicatorWidth, option, widget) : 0);
    return size.expandedTo({caption, olCaptionBand::height(metrics)});
}

/// The cross of the toolkit is black, also in the dark.
QIcon olPageStyle::standardIcon(StandardPixmap which, const QStyleOption *option, const QWidget *widget) const
{
    const bool isUnseen = which == SP_DialogCloseButton && isDark(QGuiApplication::palette());
    return isUnseen ? QIcon() : QProxyStyle::standardIcon(which, option, widget);
}
