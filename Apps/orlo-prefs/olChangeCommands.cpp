// The commands that give one setting another value, or take them back.

#include "State/olValue.h"
#include "olKnownSettings.h"
#include "olPrefsCommands.h"
#include "olPrefsTool.h"
#include "olToolError.h"

namespace
{

void requireUnlocked(const olPreferencesSession &session, const std::string &key)
{
    if (const auto reason = session.lockReason(key))
        throw olToolError(olToolError::tr("\"%1\" is locked: %2").arg(QString::fromStdString(key), *reason));
}

void restore(olPrefsTool &tool, const olKnownSetting &setting)
{
    if (const auto warning = tool.session().warning(setting.key, setting.standard))
        tool.requireConsent(setting.key, *warning);
    setting.setValue(setting.standard);
    tool.session().restore(setting.key);
}

} // namespace

void olPrefsCommands::set(olPrefsTool &tool)
{
    tool.requireArguments(2);
    tool.open(olStoreUse::Own);
    const olKnownSettings settings;
    const olKnownSetting &setting = settings.named(tool.arguments().at(0));
    const boost::any value = olPreferencesSession::description(setting.key).fromTyped(tool.arguments().at(1));
    const QString reason = tool.session().whyNot(setting.key, value);
    if (!reason.isEmpty())
        throw olToolError(QStringLiteral("\"%1\" %2").arg(QString::fromStdString(setting.key), reason));
    if (const auto warning = tool.session().warning(setting.key, value))
        tool.requireConsent(setting.key, *warning);
    setting.setValue(value);
    tool.session().choose(setting.key);
    tool.save();
}

void olPrefsCommands::reset(olPrefsTool &tool)
{
    tool.requireArguments(1);
    const QString &asked = tool.arguments().first();
    tool.open(olStoreUse::Own);
    const olKnownSettings settings;
    if (asked == QLatin1String("--all")) {
        // What is locked has its default already.
        for (const olKnownSetting &setting : settings.all())
            restore(tool, setting);
    } else {
        const olKnownSetting &setting = settings.named(asked);
        requireUnlocked(tool.session(), setting.key);
        restore(tool, setting);
    }
    tool.save();
}
