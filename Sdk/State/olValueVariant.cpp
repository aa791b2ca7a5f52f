#include "State/olValueVariant.h"

#include <OpenSG/OSGColor.h>

#include <QMetaType>

#include <optional>
#include <vector>

namespace
{

template <class T> std::optional<T> read(const QVariant &variant)
{
    return variant.userType() == qMetaTypeId<T>() ? std::optional<T>(variant.value<T>()) : std::nullopt;
}

template <> std::optional<std::string> read(const QVariant &variant)
{
    const auto bytes = read<QByteArray>(variant);
    return bytes ? std::optional<std::string>(bytes->toStdString()) : std::nullopt;
}

template <class Element> std::optional<std::vector<Element>> readList(const QVariant &variant)
{
    if (variant.userType() != QMetaType::QVariantList)
        return std::nullopt;
    std::vector<Element> list;
    const QVariantList items = variant.toList();
    for (const QVariant &item : items) {
        const auto element = read<Element>(item);
        if (!element)
            return std::nullopt;
        list.push_back(*element);
    }
    return list;
}

template <> std::optional<osg::Color3f> read(const QVariant &variant)
{
    const auto channels = readList<float>(variant);
    if (!channels || channels->size() != 3)
        return std::nullopt;
    return osg::Color3f((*channels)[0], (*channels)[1], (*channels)[2]);
}

template <> std::optional<std::vector<std::string>> read(const QVariant &variant)
{
    return readList<std::string>(variant);
}
template <> std::optional<std::vector<float>> read(const QVariant &variant) { return readList<float>(variant); }
template <> std::optional<std::vector<osg::Color3f>> read(const QVariant &variant)
{
    return readList<osg::Color3f>(variant);
}

template <class T> QVariant written(const T &value) { return value; }
QVariant written(const std::string &value) { return QByteArray::fromStdString(value); }
QVariant written(const osg::Color3f &value) { return QVariantList{value.red(), value.green(), value.blue()}; }
template <class Element> QVariant written(const std::vector<Element> &list)
{
    QVariantList items;
    for (const Element &element : list)
        items.append(written(element));
    return items;
}

struct Reader {
    const char *type;
    boost::any (*read)(const QVariant &);
    QVariant (*write)(const boost::any &);
};

template <class T> Reader reader(const char *type)
{
    return {type,
            [](const QVariant &variant) {
                const auto value = read<T>(variant);
                return value ? boost::any(*value) : boost::any();
            },
            [](const boost::any &value) {
                const auto *held = boost::any_cast<T>(&value);
                return held ? written(*held) : QVariant();
            }};
}

// A list of three floats may be a colour as well; without a name it counts as the list.
const Reader readers[] = {
    reader<bool>("bool"),
    reader<int>("int"),
    reader<unsigned>("uint"),
    reader<float>("float"),
    reader<double>("double"),
    reader<QString>("qstring"),
    reader<std::string>("string"),
    reader<std::vector<std::string>>("strings"),
    reader<std::vector<float>>("floats"),
    reader<osg::Color3f>("color"),
    reader<std::vector<osg::Color3f>>("colors"),
};

bool isEmptyList(const QVariant &variant)
{
    return variant.userType() == QMetaType::QVariantList && variant.toList().isEmpty();
}

} // namespace

boost::any olValue::fromVariant(const std::string &type, const QVariant &variant)
{
    if (type.empty() && isEmptyList(variant))
        return {};
    for (const Reader &reader : readers) {
        if (!type.empty() && type != reader.type)
            continue;
        boost::any value = reader.read(variant);
        if (!value.empty())
            return value;
    }
    return {};
}

QVariant olValue::toVariant(const boost::any &value)
{
    for (const Reader &reader : readers) {
        const QVariant variant = reader.write(value);
        if (variant.isValid())
            return variant;
    }
    return {};
}
