// The commands that keep preferences in a file and take them from one.

#include "Editing/olPreferencesImport.h"
#include "Session/olArguments.h"
#include "Session/olPreferencesFile.h"
#include "Session/olProfiles.h"
#include "State/olPreferencesEntry.h"
#include "State/olValue.h"
#include "olKnownSettings.h"
#include "olNearest.h"
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
    if (!isStandardStream(name)) {
        const auto contents = olPreferencesFile::read(name);
        olPrefsTool::requireSuccess(contents);
        return *contents;
    }
    QFile input;
    if (!input.open(stdin, QIODevice::ReadOnly))
        throw olToolError(olToolError::tr("Cannot read the standard input: %1.").arg(input.errorString()));
    const auto contents = olPreferencesFile::fromJson(input.readAll());
    if (!contents.isOk())
        throw olToolError(olToolError::tr("Cannot import the standard input. %1").arg(contents.error()));
    return *contents;
}

/// Stores what the file changes, or only shows it.
void take(olPrefsTool &tool, const olPreferencesFile::Contents &contents, bool isDryRun)
{
    tool.open(isDryRun ? olStoreUse::LookAt : olStoreUse::Own);
    const olKnownSettings settings;
    const olPreferencesImport import(tool.session(), contents, [&settings](const std::string &key) {
        const olKnownSetting *setting = settings.find(key);
        return setting ? setting->value() : boost::any();
    });
    for (const olSkippedSetting &skipped : import.skipped)
        std::fprintf(
            stderr, "%s\n",
            qPrintable(olToolError::tr("skipped: \"%1\" %2").arg(QString::fromStdString(skipped.key), skipped.reason)));
    if (isDryRun)
        return tool.print(olSettingsList::changes(import.changes));
    for (const olPreferencesImport::Warning &warning : import.warnings)
        tool.requireConsent(warning.key, warning.question);
    for (const olPreferencesImport::Change &change : import.changes)
        settings.find(change.key)->setValue(change.after);
    tool.save();
}

void requireModule(const QString &name, const olKnownSettings &settings)
{
    QStringList modules;
    for (const olKnownSetting &setting : settings.all())
        modules << setting.entry->name();
    if (!modules.contains(name))
        throw olToolError(olDidYouMean(olToolError::tr("there is no module \"%1\"").arg(name), name, modules));
}

/// All settings, those that differ from their defaults, or those of one module.
olSettingValues valuesToKeep(const QStringList &which)
{
    const olKnownSettings settings;
    const bool isChangedOnly = which.value(0) == QLatin1String("--changed");
    if (which.size() == 2)
        requireModule(which.last(), settings);
    olSettingValues values;
    for (const olKnownSetting &setting : settings.all()) {
        const bool isOther = which.size() == 2 && setting.entry->name() != which.last();
        if (isOther || (isChangedOnly && olValue::identical(setting.value(), setting.standard)))
            continue;
        values[setting.key] = setting.entry->value(setting.key);
    }
    return values;
}

void listProfiles(olPrefsTool &tool, const olProfiles &profiles)
{
    std::string lines;
    for (const olProfiles::Profile &profile : profiles.list())
        lines +=
            (profile.isSites ? olToolError::tr("%1  (site)").arg(profile.name) : profile.name).toStdString() + '\n';
    tool.print(lines);
}

void applyProfile(olPrefsTool &tool, const olProfiles &profiles, QStringList arguments)
{
    const bool isDryRun = arguments.removeOne(QStringLiteral("--dry-run"));
    if (arguments.size() != 1)
        tool.failUsage();
    const olResult<QString> file = profiles.fileOf(arguments.first());
    olPrefsTool::requireSuccess(file);
    take(tool, read(*file), isDryRun);
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
    const QString file = olArguments::file(tool.arguments().value(0, QStringLiteral("-")));
    if (isStandardStream(file))
        return tool.print(olPreferencesFile::toJson(values).toStdString());
    olPrefsTool::requireSuccess(olPreferencesFile::write(file, values));
}

void olPrefsCommands::importFrom(olPrefsTool &tool)
{
    const bool isDryRun = tool.arguments().value(0) == QLatin1String("--dry-run");
    tool.requireArguments(isDryRun ? 2 : 1);
    take(tool, read(olArguments::file(tool.arguments().last())), isDryRun);
}

void olPrefsCommands::profile(olPrefsTool &tool)
{
    QStringList arguments = tool.arguments();
    const QString action = arguments.isEmpty() ? QString() : arguments.takeFirst();
    const olProfiles profiles(tool.session().store().file(), tool.session().siteFiles());
    const QString which = arguments.value(1);
    if (action == QLatin1String("list") && arguments.isEmpty())
        return listProfiles(tool, profiles);
    if (action == QLatin1String("apply"))
        return applyProfile(tool, profiles, arguments);
    if (action == QLatin1String("delete") && arguments.size() == 1)
        return olPrefsTool::requireSuccess(profiles.remove(arguments.first()));
    const bool isAll = arguments.size() == 1;
    const bool isChanged = arguments.size() == 2 && which == QLatin1String("--changed");
    const bool isModules = arguments.size() == 3 && which == QLatin1String("--module");
    const bool isSave = action == QLatin1String("save") && (isAll || isChanged || isModules);
    if (!isSave || arguments.first().startsWith(QLatin1String("--")))
        tool.failUsage();
    tool.open(olStoreUse::LookAt);
    olPrefsTool::requireSuccess(profiles.save(arguments.first(), valuesToKeep(arguments.mid(1))));
}
