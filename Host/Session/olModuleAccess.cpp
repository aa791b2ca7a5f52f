#include "Session/olModuleAccess.h"

#include "State/olPreferencesEntry.h"
#include "State/olValue.h"

#include <QMetaObject>
#include <QObject>
#include <QStringList>
#include <QWidget>

namespace
{

constexpr auto accessName = "olSettingAccess";

QObject *accessOf(const olPreferencesEntry &entry)
{
    const QString name = QString::fromLatin1(accessName);
    if (const QWidget *page = entry.page())
        return page->findChild<QObject *>(name);
    const QObject *module = entry.object();
    return module ? module->findChild<QObject *>(name, Qt::FindDirectChildrenOnly) : nullptr;
}

/// Calls what not every module has; nothing of that kind is an empty result.
template <class Result, class... Arguments>
Result asked(QObject *access, const char *signature, const char *name, Arguments... arguments)
{
    Result result{};
    if (access && access->metaObject()->indexOfMethod(signature) >= 0)
        QMetaObject::invokeMethod(access, name, Qt::DirectConnection,
                                  QReturnArgument<Result>(QMetaType::typeName(qMetaTypeId<Result>()), result),
                                  arguments...);
    return result;
}

} // namespace

olModuleAccess::olModuleAccess(const olPreferencesEntry &entry) : m_access(accessOf(entry)) {}

std::vector<std::string> olModuleAccess::keys() const
{
    std::vector<std::string> keys;
    const auto names = asked<QStringList>(m_access, "keys()", "keys");
    for (const QString &name : names)
        keys.push_back(name.toStdString());
    return keys;
}

boost::any olModuleAccess::value(const std::string &key, const std::string &type) const
{
    const QString name = QString::fromStdString(key);
    return olValue::fromVariant(type, asked<QVariant>(m_access, "value(QString)", "value", Q_ARG(QString, name)));
}

QVariantMap olModuleAccess::describe(const std::string &key) const
{
    const QString name = QString::fromStdString(key);
    return asked<QVariantMap>(m_access, "describe(QString)", "describe", Q_ARG(QString, name));
}

QString olModuleAccess::text(const std::string &key, const boost::any &value) const
{
    const QString name = QString::fromStdString(key);
    const QVariant variant = olValue::toVariant(value);
    return asked<QString>(m_access, "text(QString,QVariant)", "text", Q_ARG(QString, name), Q_ARG(QVariant, variant));
}
