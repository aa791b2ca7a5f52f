#include "olGivenSettings.h"

#include "Session/olPreferencesSession.h"
#include "State/olPreferencesEntry.h"

#include <QCoreApplication>

namespace
{

struct Words {
    Q_DECLARE_TR_FUNCTIONS(olGivenSettings)
};

olResult<> setOne(const olPreferencesSession &session, const QString &setting)
{
    const int equals = setting.indexOf(QLatin1Char('='));
    if (equals < 1)
        return olFailure{Words::tr("\"%1\" is no setting: expected \"KEY=VALUE\"").arg(setting)};
    const QString name = setting.left(equals).trimmed();
    const std::string key = name.toStdString();
    olPreferencesEntry *owner = olPreferencesSession::moduleOf(key);
    if (!owner)
        return olFailure{Words::tr("there is no setting \"%1\"").arg(name)};
    const boost::any value = olPreferencesSession::description(key).fromTyped(setting.mid(equals + 1).trimmed());
    const QString reason = session.whyNot(key, value);
    if (!reason.isEmpty())
        return olFailure{Words::tr("\"%1\" %2").arg(name, reason)};
    if (const auto warning = session.warning(key, value))
        return olFailure{olRefusalUnasked(key, *warning)};
    owner->setValue(key, value);
    return {};
}

} // namespace

QString olRefusalUnasked(const std::string &key, const olSettingWarning &question)
{
    return Words::tr("\"%1\" is only set where somebody can be asked: %2")
        .arg(QString::fromStdString(key), QString(question.text).replace(QLatin1Char('\n'), QLatin1Char(' ')));
}

olResult<> olSetGivenSettings(const olPreferencesSession &session, const QStringList &settings)
{
    for (const QString &setting : settings) {
        olResult<> set = setOne(session, setting);
        if (!set.isOk())
            return set;
    }
    return {};
}
