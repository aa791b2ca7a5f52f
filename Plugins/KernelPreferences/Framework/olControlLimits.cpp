#include "Framework/olControlLimits.h"

#include "Widgets/QOLColorManipulator.h"
#include "Widgets/QOLSlider.h"
#include "Widgets/QOLWheelPrec.h"

#include <QDoubleValidator>
#include <QLineEdit>
#include <QLocale>
#include <QSpinBox>
#include <QVariant>

#include <cmath>
#include <limits>

namespace
{

constexpr double unbounded = std::numeric_limits<double>::infinity();

/// Takes numbers of the C locale with point or comma as the decimal sign, and writes the point at once. There is no
/// telling what a second sign, a blank or an apostrophe is to mean: none of these gets in.
class NumberValidator : public QDoubleValidator
{
public:
    explicit NumberValidator(QObject *parent) : QDoubleValidator(parent) { setLocale(QLocale::c()); }

    State validate(QString &text, int &position) const override
    {
        if (text.count(QLatin1Char('.')) + text.count(QLatin1Char(',')) > 1 || text.contains(QLatin1Char(' ')))
            return Invalid;
        text.replace(QLatin1Char(','), QLatin1Char('.'));
        return QDoubleValidator::validate(text, position);
    }
};

/// What a control tells of itself; a host's widgets need not have such a property.
double told(const QWidget &control, const char *property, double otherwise)
{
    const QVariant value = control.property(property);
    return value.isValid() ? value.toDouble() : otherwise;
}

olControlLimits toldLimits(const QWidget &control, const char *lowest, const char *highest)
{
    const int decimals = int(told(control, "decimals", -1.0));
    return {told(control, lowest, -unbounded),
            told(control, highest, unbounded),
            decimals < 0 ? std::nullopt : std::optional<int>(decimals),
            {}};
}

template <class Box> void pushBounds(const olSettingTraits &traits, Box &box)
{
    using Number = decltype(box.minimum());
    if (!std::isinf(traits.lowest))
        box.setMinimum(Number(traits.lowest));
    if (!std::isinf(traits.highest))
        box.setMaximum(Number(traits.highest));
}

} // namespace

olControlLimits olControlLimits::of(const QWidget &control)
{
    if (qobject_cast<const QSpinBox *>(&control) || qobject_cast<const QOLWheelPrec *>(&control))
        return toldLimits(control, "minimum", "maximum");
    if (qobject_cast<const QOLSlider *>(&control))
        return toldLimits(control, "hardMinValue", "hardMaxValue");
    if (qobject_cast<const QOLColorManipulator *>(&control))
        return {0.0, 1.0, {}, {}};
    if (const auto *field = qobject_cast<const QLineEdit *>(&control)) {
        if (const auto *numbers = qobject_cast<const QDoubleValidator *>(field->validator()))
            return {numbers->bottom(), numbers->top(), {}, {}};
        return {-unbounded, unbounded, {}, field->maxLength()};
    }
    return {-unbounded, unbounded, {}, {}};
}

void olControlLimits::push(const olSettingTraits &traits, QWidget &control)
{
    if (auto *box = qobject_cast<QSpinBox *>(&control)) {
        pushBounds(traits, *box);
    } else if (auto *slider = qobject_cast<QOLSlider *>(&control)) {
        if (!std::isinf(traits.lowest) && !std::isinf(traits.highest))
            slider->setRange(traits.lowest, traits.highest);
        if (traits.decimals)
            slider->setDecimals(*traits.decimals);
    } else if (auto *wheel = qobject_cast<QOLWheelPrec *>(&control)) {
        pushBounds(traits, *wheel);
        if (traits.decimals)
            wheel->setDecimals(*traits.decimals);
    } else if (auto *field = qobject_cast<QLineEdit *>(&control)) {
        auto *numbers = const_cast<QDoubleValidator *>(qobject_cast<const QDoubleValidator *>(field->validator()));
        if (numbers && !std::isinf(traits.lowest))
            numbers->setBottom(traits.lowest);
        if (numbers && !std::isinf(traits.highest))
            numbers->setTop(traits.highest);
    }
}

void olControlLimits::acceptNumbers(QLineEdit &field)
{
    field.setValidator(new NumberValidator(&field)); // owned by the field
}
