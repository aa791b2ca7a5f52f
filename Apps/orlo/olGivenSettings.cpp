#include "olGivenSettings.h"

#include "Session/olPreferencesSession.h"
#include "State/olPreferencesEntry.h"

#include <QCoreApplication>

namespace
{

struct Words {
    Q_DECLARE_TR_FUNCTIONS(olGivenSettings)
};

QString setOne(const olPreferencesSession &session, const QString &setting)
{
    const int equals = setting.indexOf(QLatin1Char('='));
    if (equals < 1)
        return Words::tr("\"%1\" is no setting: expected \"KEY=VALUE\"").arg(setting);
    const QString name = setting.left(equals).trimmed();
    const std::string key = name.toStdString();
    olPreferencesEntry *owner = olPreferencesSession::moduleOf(key);
    if (!owner)
        return Words::tr("there is no setting \"%1\"").arg(name);
    const boost::any value = olPreferencesSession::description(key).fromTyped(setting.mid(equals + 1).trimmed());
    const QString reason = session.whyNot(key, value);
    if (!reason.isEmpty())
        return QStringLiteral("\"%1\" %2").arg(name, reason);
    if (const auto warning = session.warning(key, value))
        return olRefusalUnasked(key, *warning);
    owner->setValue(key, value);
    return {};
}

} // namespace

QString olRefusalUnasked(const std::string &key, const olSettingWarning &question)
{
    return Words::tr("\"%1\" is only set where somebody can be asked: %2")
        .arg(QString::fromStdString(key), QString(question.text).replace(QLatin1Char('\n'), QLatin1Char(' ')));
}

QString olSetGivenSettings(const olPreferencesSession &session, const QStringList &settings)
{
    for (const QString &setting : settings) {
        const QString fault = setOne(session, setting);
        if (!fault.isEmpty())
            return fault;
    }
    return {};
}
