#include "Framework/olPairing.h"

#include <QComboBox>
#include <QWidget>

#include <cmath>

namespace
{

QString name(olEffect effect)
{
    switch (effect) {
    case olEffect::NextImport:
        return QLatin1String("next import");
    case olEffect::NextStart:
        return QLatin1String("next start");
    case olEffect::Now:
        break;
    }
    return QLatin1String("now");
}

QVariantMap described(const olWarning &warning)
{
    return {{QLatin1String("value"), true},
            {QLatin1String("title"), warning.title},
            {QLatin1String("text"), warning.text},
            {QLatin1String("informative"), warning.informative},
            {QLatin1String("accept"), warning.accept},
            {QLatin1String("reject"), warning.reject}};
}

void describeRange(double lowest, double highest, const std::optional<int> &decimals, QVariantMap &description)
{
    if (!std::isinf(lowest))
        description.insert(QLatin1String("minimum"), lowest);
    if (!std::isinf(highest))
        description.insert(QLatin1String("maximum"), highest);
    if (decimals)
        description.insert(QLatin1String("decimals"), *decimals);
}

} // namespace

QVariantMap describeTraits(const olSettingTraits &traits)
{
    QVariantMap description{{QLatin1String("effect"), name(traits.effect)}};
    if (traits.isPutBack && traits.effect == olEffect::Now)
        description.insert(QLatin1String("preview"), true);
    describeRange(traits.lowest, traits.highest, traits.decimals, description);
    if (*traits.unit)
        description.insert(QLatin1String("unit"), QString::fromUtf8(traits.unit));
    if (traits.isShare)
        description.insert(QLatin1String("share"), true);
    if (traits.warning)
        description.insert(QLatin1String("warning"), described(traits.warning()));
    return description;
}

void describeControl(const QWidget &control, QVariantMap &description)
{
    const olControlLimits limits = olControlLimits::of(control);
    describeRange(limits.lowest, limits.highest, limits.decimals, description);
    if (limits.maximumLength)
        description.insert(QLatin1String("maximumLength"), *limits.maximumLength);
    const auto *combo = qobject_cast<const QComboBox *>(&control);
    if (combo && combo->isEditable())
        description.insert(QLatin1String("editable"), true);
    const olControlPlace place = olControlPlace::of(control);
    description.insert(QLatin1String("label"), place.label);
    description.insert(QLatin1String("captions"), place.captions);
    description.insert(QLatin1String("toolTip"), control.toolTip());
}
