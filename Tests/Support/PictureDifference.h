#pragma once

#include <QImage>

/// The share of the pixels that differ by more than what rounding explains; 1 for pictures of different sizes.
[[nodiscard]] double pictureDifference(const QImage &left, const QImage &right);
