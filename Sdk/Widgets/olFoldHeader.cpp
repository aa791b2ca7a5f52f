#include "Widgets/olFoldHeader.h"

#include "Widgets/olCaptionBand.h"
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

int olFoldHeader::padding() const { return olCaptionBand::padding(fontMetrics()); }

QSize olFoldHeader::sizeHint() const
{
    const QFontMetrics metrics = fontMetrics();
    return {metrics.horizontalAdvance(m_caption) + metrics.height() + 3 * padding(), olCaptionBand::height(metrics)};
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
    olCaptionBand::paint(painter, rect(), palette(), underMouse(), hasFocus());

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
