#include "Widgets/olColorSwatch.h"

#include <QPainter>
#include <QStyleOptionButton>

olColorSwatch::olColorSwatch(QWidget *parent) : QPushButton(parent)
{
    // In a dialog, Enter in a field near by must not open the picker.
    setAutoDefault(false);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

void olColorSwatch::setColor(const QColor &color)
{
    m_color = color;
    setAccessibleDescription(color.name());
    update();
}

QSize olColorSwatch::sizeHint() const
{
    const int height = QPushButton::sizeHint().height();
    return {height * 2, height};
}

QSize olColorSwatch::minimumSizeHint() const { return sizeHint(); }

void olColorSwatch::paintEvent(QPaintEvent *event)
{
    QPushButton::paintEvent(event);
    QStyleOptionButton option;
    initStyleOption(&option);
    const int inset = style()->pixelMetric(QStyle::PM_ButtonMargin, &option, this) / 2 + 2;
    const QRect patch = rect().adjusted(inset, inset, -inset, -inset);
    QPainter painter(this);
    if (!isEnabled())
        painter.setOpacity(0.4);
    painter.setPen(palette().color(QPalette::ButtonText));
    painter.setBrush(m_color);
    painter.drawRect(patch.adjusted(0, 0, -1, -1));
}
