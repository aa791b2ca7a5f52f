// The commands that keep preferences in a file and take them from one.

#include "Editing/olPreferencesImport.h"
#include "Session/olFileArgument.h"
#include "Session/olPreferencesFile.h"
#include "State/olPreferencesEntry.h"
#include "State/olValue.h"
#include "olKnownSettings.h"
#include "olPrefsCommands.h"
#include "olPrefsTool.h"
#include "olSettingsList.h"
#include "olToolError.h"

#include <QFile>

#include <cstdio>

namespace
{

bool isStandardStream(const QString &name) { return name == QLatin1String("-"); }

olPreferencesFile::Contents read(const QString &name)
{
    if (!isStandardStream(name))
        return olPreferencesFile::read(name);
    QFile input;
    if (!input.open(stdin, QIODevice::ReadOnly))
        throw olToolError(QStringLiteral("Cannot read the standard input: %1.").arg(input.errorString()));
    olPreferencesFile::Contents contents = olPreferencesFile::fromJson(input.readAll());
    if (!contents.error.isEmpty())
        contents.error.prepend(QStringLiteral("Cannot import the standard input. "));
    return contents;
}

} // namespace

void olPrefsCommands::exportTo(olPrefsTool &tool)
{
    if (tool.arguments().size() > 1)
        tool.failUsage();
    tool.open(olStoreUse::LookAt);
    olSettingValues values;
    const olKnownSettings settings;
    for (const olKnownSetting &setting : settings.all())
        values[setting.key] = setting.entry->value(setting.key);
    const QString file = olFileArgument(tool.arguments().value(0, QStringLiteral("-")));
    if (isStandardStream(file))
        return tool.print(olPreferencesFile::toJson(values).toStdString());
    const QString error = olPreferencesFile::write(file, values);
    if (!error.isEmpty())
        throw olToolError(error);
}

void olPrefsCommands::importFrom(olPrefsTool &tool)
{
    const bool isDryRun = tool.arguments().value(0) == QLatin1String("--dry-run");
    tool.requireArguments(isDryRun ? 2 : 1);
    const olPreferencesFile::Contents contents = read(olFileArgument(tool.arguments().last()));
    if (!contents.error.isEmpty())
        throw olToolError(contents.error);

    tool.open(isDryRun ? olStoreUse::LookAt : olStoreUse::Own);
    const olKnownSettings settings;
    const olPreferencesImport import(tool.session(), contents, [&settings](const std::string &key) {
        const olKnownSetting *setting = settings.find(key);
        return setting ? setting->value() : boost::any();
    });
    for (const olSkippedSetting &skipped : import.skipped)
        std::fprintf(stderr, "skipped: \"%s\" %s\n", skipped.key.c_str(), qPrintable(skipped.reason));
    if (isDryRun)
        return tool.print(olSettingsList::changes(import.changes));
    for (const olPreferencesImport::Warning &warning : import.warnings)
        tool.requireConsent(warning.key, warning.question);
    for (const olPreferencesImport::Change &change : import.changes)
        settings.find(change.key)->setValue(change.after);
    tool.save();
}
