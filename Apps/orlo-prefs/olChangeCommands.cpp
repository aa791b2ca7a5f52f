// The commands that give one setting another value, or take them back.

#include "Editing/olControlBounds.h"
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
        throw olToolError(QStringLiteral("\"%1\" is locked: %2").arg(QString::fromStdString(key), *reason));
}

void requireExpected(const QString &expected, const olKnownSetting &setting, const QString &written)
{
    if (!expected.isEmpty())
        throw olToolError(QStringLiteral("%1 is no value for \"%2\": expected %3")
                              .arg(written, QString::fromStdString(setting.key), expected));
}

void restore(olPrefsTool &tool, const olKnownSetting &setting)
{
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
    requireUnlocked(tool.session(), setting.key);
    const QString &written = tool.arguments().at(1);
    const boost::any value = olValue::fromTyped(setting.type, written);
    if (value.empty())
        requireExpected(QString::fromStdString(olValue::expectation(setting.type)), setting, written);
    requireExpected(olControlBounds(setting.control, setting.key, setting.standard, value), setting, written);
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
