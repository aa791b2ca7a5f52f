#include "Widgets/olFoldHeader.h"

#include "Widgets/olBlended.h"
#include "Widgets/olInnerParts.h"

#include <QKeyEvent>
#include <QPainter>
#include <QStyleOption>

olFoldHeader::olFoldHeader(QWidget *parent) : QAbstractButton(parent)
{
    olInnerParts::mark(this);
    setFocusPolicy(Qt::StrongFocus);
    setAttribute(Qt::WA_Hover);
    QFont bold = font();
    bold.setBold(true);
    setFont(bold);
}

void olFoldHeader::showState(const QString &caption, bool folded)
{
    m_caption = caption;
    m_folded = folded;
    setAccessibleName(caption);
    setAccessibleDescription(folded ? tr("Folded") : tr("Unfolded"));
    updateGeometry();
    update();
}

QSize olFoldHeader::sizeHint() const
{
    const QFontMetrics metrics = fontMetrics();
    return {metrics.horizontalAdvance(m_caption) + metrics.height() + 3 * padding(), metrics.height() + 2 * padding()};
}

void olFoldHeader::keyPressEvent(QKeyEvent *event)
{
    switch (event->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        if (!event->isAutoRepeat())
            click();
        return;
    case Qt::Key_Left:
        Q_EMIT foldAsked(!isRightToLeft());
        return;
    case Qt::Key_Right:
        Q_EMIT foldAsked(isRightToLeft());
        return;
    default:
        QAbstractButton::keyPressEvent(event);
    }
}

void olFoldHeader::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    paintBand(painter);

    QStyleOption arrow;
    arrow.initFrom(this);
    arrow.rect = arrowRect();
    const auto aside = isRightToLeft() ? QStyle::PE_IndicatorArrowLeft : QStyle::PE_IndicatorArrowRight;
    style()->drawPrimitive(m_folded ? aside : QStyle::PE_IndicatorArrowDown, &arrow, &painter, this);

    const QRect place = textRect();
    painter.setPen(palette().color(QPalette::WindowText));
    painter.drawText(place, int(QStyle::visualAlignment(layoutDirection(), Qt::AlignLeft) | Qt::AlignVCenter),
                     fontMetrics().elidedText(m_caption, Qt::ElideRight, place.width()));
}

QRect olFoldHeader::arrowRect() const
{
    const QRect leading(padding(), 0, fontMetrics().height(), height());
    return QStyle::visualRect(layoutDirection(), rect(), leading);
}

QRect olFoldHeader::textRect() const
{
    const int start = fontMetrics().height() + 2 * padding();
    return QStyle::visualRect(layoutDirection(), rect(), rect().adjusted(start, 0, -padding(), 0));
}

void olFoldHeader::paintBand(QPainter &painter) const
{
    const QColor window = palette().color(QPalette::Window);
    const QColor ink = palette().color(QPalette::WindowText);
    painter.setRenderHint(QPainter::Antialiasing);
    const double line = hasFocus() ? 2.0 : 0.0;
    painter.setPen(hasFocus() ? QPen(palette().color(QPalette::Highlight), line) : QPen(Qt::NoPen));
    painter.setBrush(olBlended(window, ink, underMouse() ? 0.16 : 0.08));
    const double radius = padding() / 2.0;
    painter.drawRoundedRect(QRectF(rect()).adjusted(line / 2, line / 2, -line / 2, -line / 2), radius, radius);
}
