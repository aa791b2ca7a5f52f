#include "Framework/olPlainText.h"

#include <QStringList>

#include <array>
#include <charconv>
#include <cmath>

namespace
{

/// An exponent only where the plain decimals would be long.
template <class Number> QString shortest(Number value)
{
    constexpr double smallestPlain = 1e-4;
    constexpr double smallestWithExponent = 1e16;
    const double size = std::fabs(double(value));
    const bool isPlain = size == 0.0 || (size >= smallestPlain && size < smallestWithExponent);
    std::array<char, 64> text{};
    const auto format = isPlain ? std::chars_format::fixed : std::chars_format::scientific;
    const auto end = std::to_chars(text.data(), text.data() + text.size(), value, format).ptr;
    return QString::fromLatin1(text.data(), int(end - text.data()));
}

} // namespace

QString olPlainText::of(float value) { return shortest(value); }

QString olPlainText::of(double value) { return shortest(value); }

QString olPlainText::of(const osg::Color3f &value)
{
    const QStringList channels{of(value.red()), of(value.green()), of(value.blue())};
    return QLatin1Char('(') + channels.join(QLatin1String(", ")) + QLatin1Char(')');
}

QString olPlainText::withUnit(const QString &number, const QString &unit)
{
    if (unit.isEmpty())
        return number;
    return unit == QString::fromUtf8("\u00b0") ? number + unit : number + QLatin1Char(' ') + unit;
}
