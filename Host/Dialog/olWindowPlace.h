#pragma once

#include "olHostExport.h"

#include <QFontMetrics>
#include <QRect>
#include <QSize>

/// Where windows open, without what a window manager draws around them. Whatever is asked for, that frame with the
/// title in it is on the screen, too.
namespace olWindowPlace
{

/// Beside the neighbour where there is room for the size. Else at the right edge of the screen, and no wider than
/// leaves the rest of the screen to the neighbour.
[[nodiscard]] ORLO_HOST_EXPORT QRect beside(const QRect &neighbour, const QSize &size, const QRect &screen);

/// The place moved, and made smaller, as far as it takes to be on the screen as a whole.
[[nodiscard]] ORLO_HOST_EXPORT QRect onScreen(const QRect &place, const QRect &screen);

/// Of a letter, by which windows and columns are sized; a font of ideographs takes one of those for the mean.
[[nodiscard]] ORLO_HOST_EXPORT int letterWidth(const QFontMetrics &metrics);

} // namespace olWindowPlace
