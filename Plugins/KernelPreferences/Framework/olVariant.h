#pragma once

#include <OpenSG/OSGColor.h>

#include <QByteArray>
#include <QMetaType>
#include <QString>
#include <QVariant>
#include <QVariantList>

#include <string>
#include <vector>

// The values of settings as variants of Qt's own types, so that a host can ask for them without knowing this library:
// texts of bytes are byte arrays, a colour is a list of three floats, and a list is a list of these.

inline QVariant toVariant(bool value) { return value; }
inline QVariant toVariant(int value) { return value; }
inline QVariant toVariant(unsigned value) { return value; }
inline QVariant toVariant(float value) { return value; }
inline QVariant toVariant(double value) { return value; }
inline QVariant toVariant(const QString &value) { return value; }
inline QVariant toVariant(const std::string &value) { return QByteArray::fromStdString(value); }
inline QVariant toVariant(const osg::Color3f &value)
{
    return QVariantList{toVariant(value.red()), toVariant(value.green()), toVariant(value.blue())};
}
template <class Element> QVariant toVariant(const std::vector<Element> &list)
{
    QVariantList variants;
    for (const Element &element : list)
        variants.append(toVariant(element));
    return variants;
}

/// What the host calls the type.
inline QString typeName(bool) { return QLatin1String("bool"); }
inline QString typeName(int) { return QLatin1String("int"); }
inline QString typeName(unsigned) { return QLatin1String("uint"); }
inline QString typeName(float) { return QLatin1String("float"); }
inline QString typeName(double) { return QLatin1String("double"); }
inline QString typeName(const QString &) { return QLatin1String("qstring"); }
inline QString typeName(const std::string &) { return QLatin1String("string"); }
inline QString typeName(const std::vector<std::string> &) { return QLatin1String("strings"); }
inline QString typeName(const std::vector<float> &) { return QLatin1String("floats"); }
inline QString typeName(const osg::Color3f &) { return QLatin1String("color"); }
inline QString typeName(const std::vector<osg::Color3f> &) { return QLatin1String("colors"); }

/// False with `value` untouched where the variant is not of the type that toVariant() makes: nothing is converted.
template <class T> bool fromVariant(const QVariant &variant, T &value)
{
    if (variant.userType() != qMetaTypeId<T>())
        return false;
    value = variant.value<T>();
    return true;
}
inline bool fromVariant(const QVariant &variant, std::string &value)
{
    QByteArray bytes;
    if (!fromVariant(variant, bytes))
        return false;
    value = bytes.toStdString();
    return true;
}
template <class Element> bool fromVariant(const QVariant &variant, std::vector<Element> &list)
{
    if (variant.userType() != QMetaType::QVariantList)
        return false;
    std::vector<Element> elements;
    const QVariantList variants = variant.toList();
    for (const QVariant &item : variants) {
        Element element;
        if (!fromVariant(item, element))
            return false;
        elements.push_back(element);
    }
    list = elements;
    return true;
}
inline bool fromVariant(const QVariant &variant, osg::Color3f &value)
{
    std::vector<float> channels;
    if (!fromVariant(variant, channels) || channels.size() != 3)
        return false;
    value.setValuesRGB(channels[0], channels[1], channels[2]);
    return true;
}
