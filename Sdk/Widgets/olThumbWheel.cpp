#include "Widgets/olThumbWheel.h"

#include "Widgets/olBlended.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QPainterPath>
#include <QStyle>

#include <cmath>

namespace
{

constexpr double pi = 3.14159265358979323846;
constexpr double ribSpacing = pi / 18.0;

double factor(Qt::KeyboardModifiers modifiers)
{
    if (modifiers.testFlag(Qt::ShiftModifier))
        return 0.1;
    return modifiers.testFlag(Qt::ControlModifier) ? 10.0 : 1.0;
}

/// Steps of a key, 0 for a key that turns nothing.
int stepsOfKey(int key, bool rightToLeft)
{
    switch (key) {
    case Qt::Key_Up:
        return 1;
    case Qt::Key_Down:
        return -1;
    case Qt::Key_Right:
        return rightToLeft ? -1 : 1;
    case Qt::Key_Left:
        return rightToLeft ? 1 : -1;
    case Qt::Key_PageUp:
        return 10;
    case Qt::Key_PageDown:
        return -10;
    default:
        return 0;
    }
}

} // namespace

olThumbWheel::olThumbWheel(QWidget *parent) : QWidget(parent)
{
    setFocusPolicy(Qt::ClickFocus);
    setCursor(Qt::SizeHorCursor);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

QSize olThumbWheel::sizeHint() const { return {fontMetrics().averageCharWidth() * 18, fontMetrics().height() * 5 / 4}; }

QSize olThumbWheel::minimumSizeHint() const { return sizeHint(); }

void olThumbWheel::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF rim = QRectF(rect()).adjusted(1.0, 1.0, -1.0, -1.0);
    const QColor face = palette().color(QPalette::Button);
    const QColor ink = palette().color(QPalette::ButtonText);

    // The rim darkens towards both ends, where it curves away from the eye.
    QLinearGradient curve(rim.topLeft(), rim.topRight());
    curve.setColorAt(0.0, olBlended(face, ink, 0.35));
    curve.setColorAt(0.5, face);
    curve.setColorAt(1.0, olBlended(face, ink, 0.35));

    const double radius = rim.height() / 5.0;
    QPainterPath outline;
    outline.addRoundedRect(rim, radius, radius);
    painter.fillPath(outline, curve);
    painter.save();
    painter.setClipPath(outline);
    paintRibs(painter, rim);
    painter.restore();
    painter.setPen(hasFocus() ? QPen(palette().color(QPalette::Highlight), 2.0) : QPen(olBlended(face, ink, 0.5), 1.0));
    painter.drawPath(outline);
}

void olThumbWheel::paintRibs(QPainter &painter, const QRectF &rim) const
{
    const QColor face = palette().color(QPalette::Button);
    const QColor ink = palette().color(QPalette::ButtonText);
    const double inset = rim.height() / 6.0;
    const double first = std::fmod(m_angle, ribSpacing);
    for (double angle = first - pi / 2.0; angle < pi / 2.0; angle += ribSpacing) {
        const double x = rim.center().x() + rim.width() / 2.0 * std::sin(angle);
        painter.setPen(QPen(olBlended(face, ink, 0.3 + 0.3 * std::cos(angle)), 1.0));
        painter.drawLine(QPointF(x, rim.top() + inset), QPointF(x, rim.bottom() - inset));
    }
}

void olThumbWheel::mousePressEvent(QMouseEvent *event)
{
    if (event->button() != Qt::LeftButton) {
        event->ignore();
        return;
    }
    m_lastX = event->localPos().x();
    Q_EMIT grabbed();
}

void olThumbWheel::mouseMoveEvent(QMouseEvent *event)
{
    if (!event->buttons().testFlag(Qt::LeftButton)) {
        event->ignore();
        return;
    }
    const double moved = event->localPos().x() - m_lastX;
    m_lastX = event->localPos().x();
    turnBy(moved, event->modifiers());
}

void olThumbWheel::mouseReleaseEvent(QMouseEvent *event) { event->setAccepted(event->button() == Qt::LeftButton); }

void olThumbWheel::keyPressEvent(QKeyEvent *event)
{
    const bool rightToLeft = layoutDirection() == Qt::RightToLeft;
    const int steps = stepsOfKey(event->key(), rightToLeft);
    if (steps == 0) {
        event->ignore();
        return;
    }
    Q_EMIT grabbed();
    turnBy((rightToLeft ? -steps : steps) * pixelsPerStep(), event->modifiers());
}

void olThumbWheel::focusInEvent(QFocusEvent *event)
{
    QWidget::focusInEvent(event);
    update();
}

void olThumbWheel::focusOutEvent(QFocusEvent *event)
{
    QWidget::focusOutEvent(event);
    update();
}

void olThumbWheel::turnBy(double pixels, Qt::KeyboardModifiers modifiers)
{
    m_angle += pixels / (width() / 2.0);
    update();
    const double forwards = layoutDirection() == Qt::RightToLeft ? -pixels : pixels;
    Q_EMIT turned(forwards / pixelsPerStep() * factor(modifiers));
}

double olThumbWheel::pixelsPerStep() const { return fontMetrics().averageCharWidth(); }
