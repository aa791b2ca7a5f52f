#include "olToolIcons.h"

#include <QGuiApplication>
#include <QIconEngine>
#include <QPainter>
#include <QPainterPath>
#include <QPalette>
#include <QPixmap>
#include <QPolygonF>

namespace
{

/// Draws on a field of 24 by 24, with the pen set.
using Draw = void (*)(QPainter &painter, const QColor &color);

/// Draws when asked to, in the size and the colours of then.
class ToolIconEngine : public QIconEngine
{
public:
    explicit ToolIconEngine(Draw draw) : m_draw(draw) {}

    [[nodiscard]] QIconEngine *clone() const override { return new ToolIconEngine(m_draw); }

    void paint(QPainter *painter, const QRect &rect, QIcon::Mode mode, QIcon::State) override
    {
        const auto group = mode == QIcon::Disabled ? QPalette::Disabled : QPalette::Active;
        const QPalette palette = QGuiApplication::palette();
        painter->save();
        painter->setRenderHint(QPainter::Antialiasing);
        painter->translate(rect.topLeft());
        painter->scale(rect.width() / 24.0, rect.height() / 24.0);
        painter->setPen(
            QPen(palette.color(group, QPalette::ButtonText), 2.0, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        m_draw(*painter, palette.color(group, QPalette::Highlight));
        painter->restore();
    }

    QPixmap pixmap(const QSize &size, QIcon::Mode mode, QIcon::State state) override
    {
        QPixmap picture(size);
        picture.fill(Qt::transparent);
        QPainter painter(&picture);
        paint(&painter, picture.rect(), mode, state);
        return picture;
    }

private:
    Draw m_draw;
};

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

QIcon olToolIcons::showAll()
{
    return QIcon(new ToolIconEngine([](QPainter &painter, const QColor &color) {
        for (const auto &[x, y] : {std::pair(3.0, 3.0), {21.0, 3.0}, {21.0, 21.0}, {3.0, 21.0}}) {
            const QPointF corner(x, y);
            painter.drawLine(corner, corner + QPointF(x < 12.0 ? 5.0 : -5.0, 0.0));
            painter.drawLine(corner, corner + QPointF(0.0, y < 12.0 ? 5.0 : -5.0));
        }
        drawPart(painter, {12.0, 12.0}, 6.5, color);
    }));
}

QIcon olToolIcons::zoomTo()
{
    return QIcon(new ToolIconEngine([](QPainter &painter, const QColor &color) {
        drawPart(painter, {10.0, 10.0}, 5.0, color);
        painter.drawEllipse(QPointF(10.0, 10.0), 7.5, 7.5);
        painter.drawLine(QPointF(15.5, 15.5), QPointF(21.5, 21.5));
    }));
}
