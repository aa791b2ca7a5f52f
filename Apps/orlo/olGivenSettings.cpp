#include "olGivenSettings.h"

#include "Embedded/olValue.h"
#include "Preferences/olPreferencesEntry.h"
#include "Preferences/olPreferencesRegistry.h"
#include "Preferences/olPreferencesSession.h"

namespace
{

/// A text setting takes any text as it is, so that nobody has to quote within quotes.
boost::any valueFrom(const std::string &type, const QString &text)
{
    boost::any value = olValue::fromJson(type, text.toUtf8());
    if (value.empty() && type == "qstring")
        return text;
    if (value.empty() && type == "string")
        return text.toStdString();
    return value;
}

QString setOne(const olPreferencesSession &session, const QString &setting)
{
    const int equals = setting.indexOf(QLatin1Char('='));
    if (equals < 1)
        return QStringLiteral("\"%1\" is no setting: expected \"KEY=VALUE\"").arg(setting);
    const QString name = setting.left(equals).trimmed();
    const std::string key = name.toStdString();
    olPreferencesEntry *owner = olPreferencesRegistry::the().ownerOf(key);
    if (!owner)
        return QStringLiteral("there is no setting \"%1\"").arg(name);
    if (const std::optional<QString> reason = session.lockReason(key))
        return QStringLiteral("\"%1\" is locked: %2").arg(name, *reason);
    const std::string type = olValue::typeName(owner->findDefault(key)->value);
    const boost::any value = valueFrom(type, setting.mid(equals + 1).trimmed());
    if (value.empty())
        return QStringLiteral("%1 is no value for \"%2\": expected %3")
            .arg(setting.mid(equals + 1).trimmed(), name, QString::fromStdString(olValue::expectation(type)));
    owner->setValue(key, value);
    return {};
}

} // namespace

QString olSetGivenSettings(const olPreferencesSession &session, const QStringList &settings)
{
    for (const QString &setting : settings) {
        const QString fault = setOne(session, setting);
        if (!fault.isEmpty())
            return fault;
    }
    return {};
}
