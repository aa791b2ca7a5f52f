#include "State/olValue.h"

#include "State/olJsonText.h"

#include <OpenSG/OSGColor.h>

#include <QByteArray>
#include <QCoreApplication>
#include <QMetaType>
#include <QString>
#include <QVariant>

#include <algorithm>
#include <charconv>
#include <cmath>
#include <limits>
#include <optional>
#include <typeinfo>

namespace
{

using Color = osg::Color3f;

template <class Number> std::string shortest(Number value)
{
    if (std::isnan(value))
        return "nan";
    if (std::isinf(value))
        return value < 0 ? "-inf" : "inf";

    char buffer[64];
    const auto end = std::to_chars(buffer, buffer + sizeof buffer, std::fabs(value), std::chars_format::scientific).ptr;
    const std::string scientific(buffer, end);
    const std::string sign = std::signbit(value) ? "-" : "";
    const auto mark = scientific.find('e');
    const int exponent = std::stoi(scientific.substr(mark + 1));
    if (exponent < -4 || exponent >= 16)
        return sign + scientific;

    std::string digits = scientific.substr(0, mark);
    digits.erase(std::remove(digits.begin(), digits.end(), '.'), digits.end());
    if (exponent < 0)
        return sign + "0." + std::string(std::size_t(-exponent - 1), '0') + digits;
    const std::size_t whole = std::size_t(exponent) + 1;
    if (digits.size() <= whole)
        return sign + digits + std::string(whole - digits.size(), '0');
    return sign + digits.substr(0, whole) + '.' + digits.substr(whole);
}

template <class Number> std::string jsonNumber(Number value)
{
    const std::string text = shortest(value);
    return std::isfinite(value) ? text : '"' + text + '"';
}

std::string json(bool value) { return value ? "true" : "false"; }
std::string json(int value) { return std::to_string(value); }
std::string json(unsigned value) { return std::to_string(value); }
std::string json(float value) { return jsonNumber(value); }
std::string json(double value) { return jsonNumber(value); }
std::string json(const std::string &value) { return olJsonText::quoted(value); }
std::string json(const QString &value) { return olJsonText::quoted(value); }
std::string json(const Color &value)
{
    return '[' + json(value.red()) + ", " + json(value.green()) + ", " + json(value.blue()) + ']';
}
template <class Element> std::string json(const std::vector<Element> &list)
{
    std::string text = "[";
    for (const Element &element : list)
        text += (text.size() > 1 ? ", " : "") + json(element);
    return text + ']';
}

template <class Number> std::optional<Number> exactly(std::string_view digits)
{
    Number value{};
    const auto result = std::from_chars(digits.data(), digits.data() + digits.size(), value);
    return result.ec == std::errc() ? std::optional<Number>(value) : std::nullopt;
}

template <class Number> std::optional<Number> whole(olJsonReader &json)
{
    const auto digits = json.number();
    const auto value = digits ? exactly<double>(*digits) : std::nullopt;
    if (!value || *value != std::floor(*value) || *value < double(std::numeric_limits<Number>::min()) ||
        *value > double(std::numeric_limits<Number>::max()))
        return std::nullopt;
    return Number(*value);
}

template <class Number> std::optional<Number> special(const QString &text)
{
    using Limits = std::numeric_limits<Number>;
    if (text == QLatin1String("nan"))
        return Limits::quiet_NaN();
    if (text == QLatin1String("inf"))
        return Limits::infinity();
    if (text == QLatin1String("-inf"))
        return -Limits::infinity();
    return std::nullopt;
}

template <class Number> std::optional<Number> fraction(olJsonReader &json)
{
    if (const auto text = json.text())
        return special<Number>(*text);
    const auto digits = json.number();
    if (!digits)
        return std::nullopt;
    if (const auto value = exactly<Number>(*digits))
        return value;
    // Out of a float's range is too large for it, or so small that it is nothing.
    const auto value = exactly<double>(*digits);
    return value && std::fabs(*value) < 1 ? std::optional<Number>(Number(*value)) : std::nullopt;
}

template <class T> std::optional<T> parse(olJsonReader &json);

template <class Element> std::optional<std::vector<Element>> parseList(olJsonReader &json)
{
    std::vector<Element> list;
    if (!json.take("["))
        return std::nullopt;
    if (json.take("]"))
        return list;
    do {
        const auto element = parse<Element>(json);
        if (!element)
            return std::nullopt;
        list.push_back(*element);
    } while (json.take(","));
    return json.take("]") ? std::optional<std::vector<Element>>(std::move(list)) : std::nullopt;
}

template <> std::optional<bool> parse(olJsonReader &json)
{
    if (json.take("true"))
        return true;
    return json.take("false") ? std::optional<bool>(false) : std::nullopt;
}
template <> std::optional<int> parse(olJsonReader &json) { return whole<int>(json); }
template <> std::optional<unsigned> parse(olJsonReader &json) { return whole<unsigned>(json); }
template <> std::optional<float> parse(olJsonReader &json) { return fraction<float>(json); }
template <> std::optional<double> parse(olJsonReader &json) { return fraction<double>(json); }
template <> std::optional<QString> parse(olJsonReader &json) { return json.text(); }
template <> std::optional<std::string> parse(olJsonReader &json)
{
    const auto text = json.text();
    return text ? olJsonText::bytes(*text) : std::nullopt;
}
template <> std::optional<std::vector<std::string>> parse(olJsonReader &json) { return parseList<std::string>(json); }
template <> std::optional<std::vector<float>> parse(olJsonReader &json) { return parseList<float>(json); }
template <> std::optional<Color> parse(olJsonReader &json)
{
    const auto channels = parseList<float>(json);
    if (!channels || channels->size() != 3)
        return std::nullopt;
    return Color((*channels)[0], (*channels)[1], (*channels)[2]);
}
template <> std::optional<std::vector<Color>> parse(olJsonReader &json) { return parseList<Color>(json); }

/// Nothing is converted: a variant of another type gives nothing.
template <class T> std::optional<T> fromVariant(const QVariant &variant)
{
    return variant.userType() == qMetaTypeId<T>() ? std::optional<T>(variant.value<T>()) : std::nullopt;
}

template <> std::optional<std::string> fromVariant(const QVariant &variant)
{
    const auto bytes = fromVariant<QByteArray>(variant);
    return bytes ? std::optional<std::string>(bytes->toStdString()) : std::nullopt;
}

template <class Element> std::optional<std::vector<Element>> listFromVariant(const QVariant &variant)
{
    if (variant.userType() != QMetaType::QVariantList)
        return std::nullopt;
    std::vector<Element> list;
    const QVariantList items = variant.toList();
    for (const QVariant &item : items) {
        const auto element = fromVariant<Element>(item);
        if (!element)
            return std::nullopt;
        list.push_back(*element);
    }
    return list;
}

template <> std::optional<Color> fromVariant(const QVariant &variant)
{
    const auto channels = listFromVariant<float>(variant);
    if (!channels || channels->size() != 3)
        return std::nullopt;
    return Color((*channels)[0], (*channels)[1], (*channels)[2]);
}

template <> std::optional<std::vector<std::string>> fromVariant(const QVariant &variant)
{
    return listFromVariant<std::string>(variant);
}
template <> std::optional<std::vector<float>> fromVariant(const QVariant &variant)
{
    return listFromVariant<float>(variant);
}
template <> std::optional<std::vector<Color>> fromVariant(const QVariant &variant)
{
    return listFromVariant<Color>(variant);
}

template <class T> QVariant variantOf(const T &value) { return value; }
QVariant variantOf(const std::string &value) { return QByteArray::fromStdString(value); }
QVariant variantOf(const Color &value) { return QVariantList{value.red(), value.green(), value.blue()}; }
template <class Element> QVariant variantOf(const std::vector<Element> &list)
{
    QVariantList items;
    for (const Element &element : list)
        items.append(variantOf(element));
    return items;
}

template <class T> bool same(const T &left, const T &right) { return left == right; }
bool same(const Color &left, const Color &right)
{
    return left.red() == right.red() && left.green() == right.green() && left.blue() == right.blue();
}
bool same(const std::vector<Color> &left, const std::vector<Color> &right)
{
    return std::equal(left.begin(), left.end(), right.begin(), right.end(),
                      [](const Color &a, const Color &b) { return same(a, b); });
}

// To the last bit, as the texts of the values tell them apart: the zeros by their signs, and what is no number is
// itself.
template <class T> bool exact(const T &left, const T &right) { return left == right; }
template <class T> bool exactNumber(T left, T right)
{
    return left == right ? std::signbit(left) == std::signbit(right) : std::isnan(left) && std::isnan(right);
}
bool exact(float left, float right) { return exactNumber(left, right); }
bool exact(double left, double right) { return exactNumber(left, right); }
bool exact(const Color &left, const Color &right)
{
    return exact(left.red(), right.red()) && exact(left.green(), right.green()) && exact(left.blue(), right.blue());
}
template <class T> bool exact(const std::vector<T> &left, const std::vector<T> &right)
{
    return std::equal(left.begin(), left.end(), right.begin(), right.end(),
                      [](const T &a, const T &b) { return exact(a, b); });
}

/// What can be done with a value of one type.
struct Type {
    const char *name;
    const char *expectation;
    const std::type_info *id;
    std::string (*toJson)(const boost::any &);
    boost::any (*fromJson)(olJsonReader &);
    boost::any (*fromVariant)(const QVariant &);
    QVariant (*toVariant)(const boost::any &);
    bool (*equal)(const boost::any &, const boost::any &);
    bool (*identical)(const boost::any &, const boost::any &);
    boost::any (*adopted)(const boost::any &);
};

template <class T> Type type(const char *name, const char *expectation)
{
    return {name, expectation, &typeid(T),
            [](const boost::any &value) { return json(boost::any_cast<const T &>(value)); },
            [](olJsonReader &json) {
                const auto value = parse<T>(json);
                return value && json.atEnd() ? boost::any(*value) : boost::any();
            },
            [](const QVariant &variant) {
                const auto value = fromVariant<T>(variant);
                return value ? boost::any(*value) : boost::any();
            },
            [](const boost::any &value) { return variantOf(boost::any_cast<const T &>(value)); },
            [](const boost::any &left, const boost::any &right) {
                return same(boost::any_cast<const T &>(left), boost::any_cast<const T &>(right));
            },
            [](const boost::any &left, const boost::any &right) {
                return exact(boost::any_cast<const T &>(left), boost::any_cast<const T &>(right));
            },
            // A copy of the holder would keep the virtual table of the library that made it.
            [](const boost::any &value) { return boost::any(T(boost::any_cast<const T &>(value))); }};
}

/// In this order, a list of three numbers of which nothing says that it is a colour counts as the list.
const std::vector<Type> &types()
{
    static const std::vector<Type> all{
        type<bool>("bool", QT_TRANSLATE_NOOP("olValue", "true or false")),
        type<int>("int", QT_TRANSLATE_NOOP("olValue", "a whole number from -2147483648 to 2147483647")),
        type<unsigned>("uint", QT_TRANSLATE_NOOP("olValue", "a whole number from 0 to 4294967295")),
        type<float>("float", QT_TRANSLATE_NOOP("olValue", "a number")),
        type<double>("double", QT_TRANSLATE_NOOP("olValue", "a number")),
        type<QString>("qstring", QT_TRANSLATE_NOOP("olValue", "a text in double quotes")),
        type<std::string>("string", QT_TRANSLATE_NOOP("olValue", "a text in double quotes")),
        type<std::vector<std::string>>("strings", QT_TRANSLATE_NOOP("olValue", "a list of texts, as [\"a\", \"b\"]")),
        type<std::vector<float>>("floats", QT_TRANSLATE_NOOP("olValue", "a list of numbers, as [1, 0.5]")),
        type<Color>("color", QT_TRANSLATE_NOOP("olValue", "three numbers, as [1, 0.5, 0]")),
        type<std::vector<Color>>("colors", QT_TRANSLATE_NOOP("olValue", "a list of colors, as [[0, 0, 0], [1, 1, 1]]")),
    };
    return all;
}

const Type *typeOf(const boost::any &value)
{
    const std::type_info &id = value.type();
    for (const Type &type : types()) {
        if (id == *type.id)
            return &type;
    }
    return nullptr;
}

const Type *typeNamed(const std::string &name)
{
    for (const Type &type : types()) {
        if (name == type.name)
            return &type;
    }
    return nullptr;
}

} // namespace

namespace olValue
{

std::string typeName(const boost::any &value)
{
    const Type *type = typeOf(value);
    return type ? type->name : "";
}

std::vector<std::string> typeNames()
{
    std::vector<std::string> names;
    for (const Type &type : types())
        names.emplace_back(type.name);
    return names;
}

bool isTypeName(const std::string &type) { return typeNamed(type) != nullptr; }

std::string expectation(const std::string &name)
{
    const Type *type = typeNamed(name);
    return type ? QCoreApplication::translate("olValue", type->expectation).toStdString() : std::string();
}

std::string toJson(const boost::any &value)
{
    const Type *type = typeOf(value);
    return type ? type->toJson(value) : "null";
}

boost::any fromJson(const std::string &name, const QByteArray &text)
{
    const Type *type = typeNamed(name);
    olJsonReader json({text.constData(), std::size_t(text.size())});
    return type ? type->fromJson(json) : boost::any();
}

boost::any fromVariant(const std::string &name, const QVariant &variant)
{
    if (!name.empty()) {
        const Type *type = typeNamed(name);
        return type ? type->fromVariant(variant) : boost::any();
    }
    if (variant.userType() == QMetaType::QVariantList && variant.toList().isEmpty())
        return {};
    for (const Type &type : types()) {
        boost::any value = type.fromVariant(variant);
        if (!value.empty())
            return value;
    }
    return {};
}

QVariant toVariant(const boost::any &value)
{
    const Type *type = typeOf(value);
    return type ? type->toVariant(value) : QVariant();
}

boost::any fromTyped(const std::string &type, const QString &typed)
{
    boost::any value = fromJson(type, typed.toUtf8());
    if (value.empty() && type == "qstring")
        return typed;
    if (value.empty() && type == "string")
        return typed.toStdString();
    return value;
}

bool equal(const boost::any &left, const boost::any &right)
{
    if (left.empty() || right.empty())
        return left.empty() && right.empty();
    const Type *type = typeOf(left);
    return type && right.type() == *type->id && type->equal(left, right);
}

bool identical(const boost::any &left, const boost::any &right)
{
    const Type *type = typeOf(left);
    // What settings cannot hold is nothing here.
    return type ? right.type() == *type->id && type->identical(left, right) : !typeOf(right);
}

boost::any adopted(const boost::any &value)
{
    const Type *type = typeOf(value);
    return type ? type->adopted(value) : boost::any();
}

std::string number(float value) { return shortest(value); }

std::string number(double value) { return shortest(value); }

std::optional<double> asNumber(const boost::any &value)
{
    if (const auto *whole = boost::any_cast<int>(&value))
        return *whole;
    if (const auto *whole = boost::any_cast<unsigned>(&value))
        return *whole;
    if (const auto *fraction = boost::any_cast<float>(&value))
        return QString::fromStdString(number(*fraction)).toDouble();
    if (const auto *fraction = boost::any_cast<double>(&value))
        return *fraction;
    return std::nullopt;
}

std::string quoted(const std::string &text) { return olJsonText::quoted(text); }

} // namespace olValue
