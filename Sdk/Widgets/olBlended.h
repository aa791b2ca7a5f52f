#pragma once

#include <QColor>

/// The colour between two, 0 giving the first and 1 the second. Shades made so from a palette keep their contrast in a
/// dark one too.
[[nodiscard]] inline QColor olBlended(const QColor &first, const QColor &second, double share)
{
    const auto mix = [share](double low, double high) { return low + (high - low) * share; };
    return QColor::fromRgbF(mix(first.redF(), second.redF()), mix(first.greenF(), second.greenF()),
                            mix(first.blueF(), second.blueF()));
}
