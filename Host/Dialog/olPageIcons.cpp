#include "Dialog/olPageIcons.h"

#include <QGuiApplication>
#include <QIconEngine>
#include <QPainter>
#include <QPalette>
#include <QPixmap>
#include <QPolygonF>

#include <map>

namespace
{

/// Draws on a field of 24 by 24, with the pen set.
using Draw = void (*)(QPainter &painter);

void drawFile(QPainter &painter)
{
    painter.drawPolygon(QPolygonF({{6, 3}, {14, 3}, {19, 8}, {19, 21}, {6, 21}}));
    painter.drawPolyline(QPolygonF({{14, 3}, {14, 8}, {19, 8}}));
}

void drawFolder(QPainter &painter)
{
    painter.drawPolygon(QPolygonF({{3, 5}, {9, 5}, {11, 8}, {21, 8}, {21, 19}, {3, 19}}));
}

void drawCamera(QPainter &painter)
{
    painter.drawPolygon(QPolygonF({{3, 8}, {7, 8}, {9, 5}, {15, 5}, {17, 8}, {21, 8}, {21, 19}, {3, 19}}));
    painter.drawEllipse(QPointF(12, 13), 3.5, 3.5);
}

void drawDevices(QPainter &painter)
{
    painter.drawRoundedRect(QRectF(7, 3, 10, 18), 5, 5);
    painter.drawLine(QPointF(12, 7), QPointF(12, 10));
}

void drawWindow(QPainter &painter)
{
    painter.drawRect(QRectF(3, 4, 18, 16));
    painter.drawLine(QPointF(3, 8), QPointF(21, 8));
}

void drawArrow(QPainter &painter)
{
    painter.drawPolygon(QPolygonF({{6, 3}, {18, 13}, {12.5, 13.5}, {16, 20}, {13, 21}, {10, 15}, {6, 18}}));
}

void drawCompass(QPainter &painter)
{
    painter.drawEllipse(QPointF(12, 12), 9, 9);
    painter.drawPolygon(QPolygonF({{16, 8}, {13.5, 13.5}, {8, 16}, {10.5, 10.5}}));
}

void drawCube(QPainter &painter)
{
    painter.drawPolygon(QPolygonF({{12, 3}, {20, 7.5}, {20, 16.5}, {12, 21}, {4, 16.5}, {4, 7.5}}));
    painter.drawPolyline(QPolygonF({{4, 7.5}, {12, 12}, {20, 7.5}}));
    painter.drawLine(QPointF(12, 12), QPointF(12, 21));
}

void drawMesh(QPainter &painter)
{
    painter.drawPolygon(QPolygonF({{3, 19}, {12, 4}, {21, 19}}));
    painter.drawPolygon(QPolygonF({{7.5, 11.5}, {16.5, 11.5}, {12, 19}}));
}

void drawGlobe(QPainter &painter)
{
    painter.drawEllipse(QPointF(12, 12), 9, 9);
    painter.drawEllipse(QPointF(12, 12), 4, 9);
    painter.drawLine(QPointF(3, 12), QPointF(21, 12));
}

void drawHelp(QPainter &painter)
{
    painter.drawEllipse(QPointF(12, 12), 9, 9);
    painter.drawArc(QRectF(9, 6.5, 6, 6), -80 * 16, 260 * 16);
    painter.drawLine(QPointF(12, 12.5), QPointF(12, 14));
    painter.drawPoint(QPointF(12, 17.2));
}

void drawHeadset(QPainter &painter)
{
    painter.drawRoundedRect(QRectF(3, 8, 18, 10), 3, 3);
    painter.drawPolyline(QPolygonF({{9, 18}, {12, 15}, {15, 18}}));
    painter.drawArc(QRectF(4, 3, 16, 10), 20 * 16, 140 * 16);
}

/// Draws when asked to, in the size and the colours of then.
class PageIconEngine : public QIconEngine
{
public:
    explicit PageIconEngine(Draw draw) : m_draw(draw) {}

    [[nodiscard]] QIconEngine *clone() const override { return new PageIconEngine(m_draw); }

    void paint(QPainter *painter, const QRect &rect, QIcon::Mode mode, QIcon::State) override
    {
        const auto role = mode == QIcon::Selected ? QPalette::HighlightedText : QPalette::Text;
        painter->save();
        painter->setRenderHint(QPainter::Antialiasing);
        painter->translate(rect.topLeft());
        painter->scale(rect.width() / 24.0, rect.height() / 24.0);
        painter->setPen(QPen(QGuiApplication::palette().color(role), 1.8, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        painter->setBrush(Qt::NoBrush);
        m_draw(*painter);
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

} // namespace

QIcon olPageIcons::of(const std::string &moduleClass)
{
    static const std::map<std::string, Draw> drawings{
        {"olFileIOPreferencesGUII", drawFolder},         {"olCameraPreferencesGUII", drawCamera},
        {"olDevicesPreferencesGUII", drawDevices},       {"olMainWindowPreferencesGUII", drawWindow},
        {"olMarkerPreferencesGUII", drawArrow},          {"olNavigatorPreferencesGUII", drawCompass},
        {"olRenderOptionsPreferencesGUII", drawCube},    {"olTesselationPreferencesGUII", drawMesh},
        {"olWebInterfacePreferencesGUII", drawGlobe},    {"olHelpPreferencesGUII", drawHelp},
        {"olVirtualRealityPreferencesGUII", drawHeadset}};
    const auto known = drawings.find(moduleClass);
    return QIcon(new PageIconEngine(known == drawings.end() ? drawFile : known->second));
}

QIcon olPageIcons::ofCategory() { return QIcon(new PageIconEngine(drawFolder)); }
