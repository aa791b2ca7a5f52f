#include "Viewer/olWireframePreview.h"

#include <QPainter>

namespace
{

// The greys of a lit object in the view, so that the contrast is that of the view.
const QColor background(53, 53, 53);
const QColor top(200, 200, 200);
const QColor left(150, 150, 150);
const QColor right(110, 110, 110);

} // namespace

olWireframePreview::olWireframePreview(QWidget *parent) : olPageWidget(parent)
{
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

void olWireframePreview::setColor(const QColor &color)
{
    m_color = color;
    update();
}

QSize olWireframePreview::sizeHint() const
{
    const int line = fontMetrics().height();
    return {6 * line, 4 * line};
}

void olWireframePreview::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.fillRect(rect(), background);

    // A cube seen from a corner: around its centre in steps of its edge.
    const QRectF area(rect());
    const qreal edge = area.height() * 0.42;
    const QPointF centre = area.center();
    const QPointF toLeft(-edge * 0.87, -edge * 0.5);
    const QPointF toRight(edge * 0.87, -edge * 0.5);
    const QPointF down(0.0, edge);

    painter.setPen(QPen(m_color, 1.5));
    painter.setBrush(top);
    painter.drawPolygon(QPolygonF({centre, centre + toLeft, centre + toLeft + toRight, centre + toRight}));
    painter.setBrush(left);
    painter.drawPolygon(QPolygonF({centre, centre + toLeft, centre + toLeft + down, centre + down}));
    painter.setBrush(right);
    painter.drawPolygon(QPolygonF({centre, centre + toRight, centre + toRight + down, centre + down}));
}
