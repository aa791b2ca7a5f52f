#include "View/olProgressWheel.h"

#include "State/olHostState.h"
#include "Widgets/exCursorProgress.h"

#include <QCursor>
#include <QPainter>

#include <algorithm>

namespace
{

constexpr int plainSize = 32;
constexpr int largestSize = 512;
constexpr int margin = 8;
constexpr int fullCircle = 360 * 16;

} // namespace

olProgressWheel::olProgressWheel(QWidget &view) : QWidget(&view), m_view(view)
{
    setAttribute(Qt::WA_TransparentForMouseEvents);
    hide();
}

void olProgressWheel::setProgress(double progress)
{
    m_progress = progress;
    const bool shown = olHostState::the().progressVisible && progress < 1.0;
    if (shown)
        place();
    setVisible(shown);
    update();
}

void olProgressWheel::place()
{
    const olHostState &state = olHostState::the();
    const int wanted = state.progressBaseSize > 0 ? state.progressBaseSize.get() : plainSize;
    const int side = std::min(wanted, largestSize);
    QPoint where(margin, m_view.height() - side - margin);
    const QPoint cursor = m_view.mapFromGlobal(QCursor::pos());
    if (state.progressPosition == exCursorProgress::AtCursor && m_view.rect().contains(cursor))
        where = cursor + QPoint(margin, margin);
    setGeometry(QRect(where, QSize(side, side)));
}

void olProgressWheel::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const double width = std::max(2.0, this->width() / 8.0);
    const QRectF ring = QRectF(rect()).adjusted(width, width, -width, -width);
    painter.setPen(QPen(QColor(0, 0, 0, 120), width * 1.4));
    painter.drawEllipse(ring);
    painter.setPen(QPen(QColor(255, 255, 255), width, Qt::SolidLine, Qt::FlatCap));
    painter.drawArc(ring, fullCircle / 4, -int(m_progress * fullCircle));
}
