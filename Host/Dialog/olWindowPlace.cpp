#include "Dialog/olWindowPlace.h"

#include <algorithm>

namespace
{

// What a window manager adds to a window, at its most.
constexpr int border = 8;
constexpr int titleBar = 40;

QRect usable(const QRect &screen) { return screen.adjusted(border, titleBar, -border, -border); }

} // namespace

QRect olWindowPlace::onScreen(const QRect &place, const QRect &screen)
{
    const QRect room = usable(screen);
    const QSize size = place.size().boundedTo(room.size());
    return {std::clamp(place.left(), room.left(), room.right() + 1 - size.width()),
            std::clamp(place.top(), room.top(), room.bottom() + 1 - size.height()), size.width(), size.height()};
}

QRect olWindowPlace::beside(const QRect &neighbour, const QSize &size, const QRect &screen)
{
    const QRect room = usable(screen);
    const int top = neighbour.top() + titleBar;
    const int right = neighbour.right() + 1 + border;
    if (right + size.width() <= room.right() + 1)
        return onScreen({QPoint(right, top), size}, screen);
    const int left = neighbour.left() - 2 * border - size.width();
    if (left >= room.left())
        return onScreen({QPoint(left, top), size}, screen);
    const int narrow = std::min(size.width(), room.width() * 3 / 5);
    return onScreen({room.right() + 1 - narrow, top, narrow, size.height()}, screen);
}

int olWindowPlace::letterWidth(const QFontMetrics &metrics)
{
    return std::min(metrics.averageCharWidth(), metrics.horizontalAdvance(QLatin1Char('x')));
}
