#pragma once

#include <QColor>
#include <QFontMetrics>
#include <QPainter>
#include <QPalette>
#include <QRect>

/// The band behind the caption of a group, the same whether the group folds away or not.
namespace olCaptionBand
{

/// Around the caption, within the band.
[[nodiscard]] inline int padding(const QFontMetrics &metrics) { return metrics.height() / 4; }

[[nodiscard]] inline int height(const QFontMetrics &metrics) { return metrics.height() + 2 * padding(metrics); }

inline void paint(QPainter &painter, const QRect &rect, const QPalette &palette, bool isHot, bool hasFocus)
{
    const double line = hasFocus ? 2.0 : 0.0;
    const double radius = padding(painter.fontMetrics()) / 2.0;
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(hasFocus ? QPen(palette.color(QPalette::Highlight), line) : QPen(Qt::NoPen));
    // Whatever lies behind: a tab may be of another shade than the window.
    QColor shade = palette.color(QPalette::WindowText);
    shade.setAlphaF(isHot ? 0.2 : 0.12);
    painter.setBrush(shade);
    painter.drawRoundedRect(QRectF(rect).adjusted(line / 2, line / 2, -line / 2, -line / 2), radius, radius);
}

} // namespace olCaptionBand
