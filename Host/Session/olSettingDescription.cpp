#include "Session/olSettingDescription.h"

#include "Session/olModuleAccess.h"
#include "Session/olNumberText.h"
#include "State/olListed.h"
#include "State/olPreferencesEntry.h"
#include "State/olValue.h"

#include <OpenSG/OSGColor.h>
#include <QCoreApplication>
#include <QVariantMap>

#include <algorithm>
#include <cmath>

namespace
{

struct Words {
    Q_DECLARE_TR_FUNCTIONS(olSettingDescription)
};

QString json(const boost::any &value) { return QString::fromStdString(olValue::toJson(value)); }

/// A message is read on one line or a few.
QString shortened(const QString &text)
{
    constexpr int longest = 80;
    return text.size() > longest ? text.left(longest - 1) + QChar(0x2026) : text;
}

std::optional<int> wholeNumber(const QVariant &variant)
{
    return variant.isValid() ? std::optional<int>(variant.toInt()) : std::nullopt;
}

std::vector<olSettingChoice> choicesFrom(const QVariantList &list, const std::string &type)
{
    std::vector<olSettingChoice> choices;
    for (const QVariant &item : list) {
        const QVariantMap choice = item.toMap();
        choices.push_back({olValue::fromVariant(type, choice.value(QStringLiteral("value"))),
                           choice.value(QStringLiteral("text")).toString()});
    }
    return choices;
}

std::optional<olSettingWarning> warningFrom(const QVariantMap &map, const std::string &type)
{
    if (map.isEmpty())
        return std::nullopt;
    const auto text = [&map](const char *name) { return map.value(QLatin1String(name)).toString(); };
    return olSettingWarning{olValue::fromVariant(type, map.value(QStringLiteral("value"))),
                            text("title"),
                            text("text"),
                            text("informative"),
                            text("accept"),
                            text("reject")};
}

int textLength(const boost::any &value)
{
    if (const auto *text = boost::any_cast<QString>(&value))
        return text->size();
    const auto *bytes = boost::any_cast<std::string>(&value);
    return bytes ? QString::fromStdString(*bytes).size() : 0;
}

/// Of a number itself, of a colour its channels.
std::vector<double> numbersOf(const boost::any &value)
{
    if (const auto *color = boost::any_cast<osg::Color3f>(&value))
        return {double(color->red()), double(color->green()), double(color->blue())};
    const std::optional<double> number = olValue::asNumber(value);
    return number ? std::vector<double>{*number} : std::vector<double>();
}

} // namespace

olSettingDescription olSettingDescription::of(const olPreferencesEntry &entry, const std::string &key)
{
    olSettingDescription description;
    const olOfferedDefault *offered = entry.findDefault(key);
    if (offered)
        description.type = olValue::typeName(offered->value);
    const QVariantMap map = olModuleAccess(entry).describe(key);
    const auto told = [&map](const char *name) { return map.value(QLatin1String(name)); };
    if (!map.isEmpty())
        description.type = told("type").toString().toStdString();
    description.standard = olValue::fromVariant(description.type, told("default"));
    if (description.standard.empty() && offered)
        description.standard = offered->value;
    if (map.isEmpty())
        return description;
    description.minimum = map.value(QStringLiteral("minimum"), description.minimum).toDouble();
    description.maximum = map.value(QStringLiteral("maximum"), description.maximum).toDouble();
    description.decimals = wholeNumber(told("decimals"));
    description.maximumLength = wholeNumber(told("maximumLength"));
    description.unit = told("unit").toString();
    description.isShare = told("share").toBool();
    description.choices = choicesFrom(told("choices").toList(), description.type);
    description.isEditable = told("editable").toBool();
    description.effect = map.value(QStringLiteral("effect"), description.effect).toString();
    description.canBePreviewed = told("preview").toBool();
    description.warning = warningFrom(told("warning").toMap(), description.type);
    description.label = told("label").toString();
    description.toolTip = told("toolTip").toString();
    description.captions = told("captions").toStringList();
    return description;
}

QString olSettingDescription::expectation() const
{
    if (isChoice()) {
        QStringList values;
        for (const olSettingChoice &choice : choices)
            values << json(choice.value);
        return Words::tr("one of %1").arg(olListed(values));
    }
    if (maximumLength)
        return Words::tr("at most %1 characters").arg(*maximumLength);
    const bool isBounded = !std::isinf(minimum) || !std::isinf(maximum);
    if (type == "color" && isBounded)
        return Words::tr("three numbers from %1 to %2")
            .arg(QString::fromStdString(olNumberText(minimum)), QString::fromStdString(olNumberText(maximum)));
    if (type == "int" && isBounded) {
        constexpr auto limits = std::numeric_limits<int>();
        return olWholeNumbersBetween(int(std::max(minimum, double(limits.min()))),
                                     int(std::min(maximum, double(limits.max()))));
    }
    return isBounded ? olNumbersBetween(minimum, maximum) : QString::fromStdString(olValue::expectation(type));
}

QString olSettingDescription::whyNot(const boost::any &value) const
{
    if (olValue::identical(value, standard))
        return {};
    // A value that only calls itself by another type would not be understood from its text alone.
    const std::string actual = olValue::typeName(value);
    if (actual != type && !olValue::fromJson(type, json(value).toUtf8()).empty())
        return Words::tr("is of the type %1, not %2").arg(QString::fromStdString(actual), QString::fromStdString(type));
    const QString refusal = Words::tr("cannot be %1: expected %2").arg(shortened(json(value)), expectation());
    if (actual != type)
        return refusal;
    if (isChoice()) {
        const bool isAmong = std::any_of(choices.begin(), choices.end(), [&value](const olSettingChoice &choice) {
            return olValue::equal(choice.value, value);
        });
        return isAmong ? QString() : refusal;
    }
    const std::vector<double> numbers = numbersOf(value);
    const bool isWithin = std::all_of(numbers.begin(), numbers.end(), [this](double number) {
        return std::isfinite(number) && number >= minimum && number <= maximum;
    });
    const bool isShort = !maximumLength || textLength(value) <= *maximumLength;
    return isWithin && isShort ? QString() : refusal;
}

boost::any olSettingDescription::fromTyped(const QString &typed) const
{
    boost::any value = olValue::fromTyped(type, typed);
    for (const char *other : {"bool", "int", "double", "floats", "colors"}) {
        if (value.empty())
            value = olValue::fromJson(other, typed.toUtf8());
    }
    return value.empty() ? boost::any(typed) : value;
}
