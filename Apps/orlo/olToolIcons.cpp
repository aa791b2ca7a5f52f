#include "olToolIcons.h"

#include <QPainter>
#include <QPainterPath>
#include <QPalette>
#include <QPixmap>
#include <QPolygonF>

namespace
{

/// On a field of 24 by 24, in every size that a tool bar has, on screens of any density.
template <class Draw> QIcon drawn(const QPalette &palette, const Draw &draw)
{
    QIcon icon;
    for (const auto &[mode, group] :
         {std::pair(QIcon::Normal, QPalette::Active), {QIcon::Disabled, QPalette::Disabled}}) {
        for (const int side : {16, 24, 32, 48, 64, 96}) {
            QPixmap pixmap(side, side);
            pixmap.fill(Qt::transparent);
            QPainter painter(&pixmap);
            painter.setRenderHint(QPainter::Antialiasing);
            painter.scale(side / 24.0, side / 24.0);
            painter.setPen(
                QPen(palette.color(group, QPalette::ButtonText), 2.0, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
            draw(painter, palette.color(group, QPalette::Highlight));
            painter.end();
            icon.addPixmap(pixmap, mode);
        }
    }
    return icon;
}

/// A nut, as in the program's own icon.
void drawPart(QPainter &painter, const QPointF &middle, double size, const QColor &color)
{
    painter.save();
    painter.setPen(Qt::NoPen);
    painter.setBrush(color);
    QPainterPath part;
    QPolygonF hexagon;
    for (const auto &[x, y] : {std::pair(-1.0, 0.0), {-0.5, -0.8}, {0.5, -0.8}, {1.0, 0.0}, {0.5, 0.8}, {-0.5, 0.8}})
        hexagon << middle + size * QPointF(x, y);
    part.addPolygon(hexagon);
    part.addEllipse(middle, size * 0.4, size * 0.4);
    painter.drawPath(part);
    painter.restore();
}

} // namespace

QIcon olToolIcons::showAll(const QPalette &palette)
{
    return drawn(palette, [](QPainter &painter, const QColor &color) {
        for (const auto &[x, y] : {std::pair(3.0, 3.0), {21.0, 3.0}, {21.0, 21.0}, {3.0, 21.0}}) {
            const QPointF corner(x, y);
            painter.drawLine(corner, corner + QPointF(x < 12.0 ? 5.0 : -5.0, 0.0));
            painter.drawLine(corner, corner + QPointF(0.0, y < 12.0 ? 5.0 : -5.0));
        }
        drawPart(painter, {12.0, 12.0}, 6.5, color);
    });
}

QIcon olToolIcons::zoomTo(const QPalette &palette)
{
    return drawn(palette, [](QPainter &painter, const QColor &color) {
        drawPart(painter, {10.0, 10.0}, 5.0, color);
        painter.drawEllipse(QPointF(10.0, 10.0), 7.5, 7.5);
        painter.drawLine(QPointF(15.5, 15.5), QPointF(21.5, 21.5));
    });
}
