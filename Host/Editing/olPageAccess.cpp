#include "Editing/olPageAccess.h"

#include "State/olValue.h"

#include <QMetaObject>
#include <QVariant>
#include <QWidget>

#include <algorithm>
#include <iterator>

namespace
{

/// One value of each type in the form in which pages take it; they take no other type than their own.
struct Sample {
    const char *type;
    QVariant value;
};

const QVariant colour = QVariantList{0.0f, 0.0f, 0.0f};

const Sample samples[] = {
    {"bool", false},
    {"int", 0},
    {"uint", 0u},
    {"float", 0.0f},
    {"double", 0.0},
    {"qstring", QString()},
    {"string", QByteArray()},
    {"strings", QVariantList{QByteArray()}},
    {"floats", QVariantList{0.0f}},
    {"color", colour},
    {"colors", QVariantList{colour}},
};

QObject *accessOf(const QWidget &page) { return page.findChild<QObject *>(QStringLiteral("olSettingAccess")); }

QVariant shown(QObject *access, const std::string &key)
{
    QVariant value;
    QMetaObject::invokeMethod(access, "value", Q_RETURN_ARG(QVariant, value),
                              Q_ARG(QString, QString::fromStdString(key)));
    return value;
}

bool show(QObject *access, const std::string &key, const QVariant &value)
{
    bool isShown = false;
    QMetaObject::invokeMethod(access, "setValue", Q_RETURN_ARG(bool, isShown),
                              Q_ARG(QString, QString::fromStdString(key)), Q_ARG(QVariant, value));
    return isShown;
}

} // namespace

boost::any olPageAccess::value(const QWidget &page, const std::string &key, const std::string &type)
{
    QObject *access = accessOf(page);
    return access ? olValue::fromVariant(type, shown(access, key)) : boost::any();
}

std::string olPageAccess::typeOf(const QWidget &page, const std::string &key)
{
    QObject *access = accessOf(page);
    if (!access)
        return {};
    const QVariant before = shown(access, key);
    const auto *taken = std::find_if(std::begin(samples), std::end(samples),
                                     [&](const Sample &sample) { return show(access, key, sample.value); });
    if (taken == std::end(samples))
        return {};
    show(access, key, before);
    return taken->type;
}
