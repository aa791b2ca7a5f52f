// The commands that only show what there is.

#include "State/olValue.h"
#include "olKnownSettings.h"
#include "olPrefsCommands.h"
#include "olPrefsTool.h"
#include "olSettingsCatalogue.h"
#include "olSettingsList.h"
#include "olSettingsSchema.h"

void olPrefsCommands::list(olPrefsTool &tool)
{
    const QString form = tool.arguments().value(0);
    const bool isJson = form == QLatin1String("--json");
    const bool isMarkdown = form == QLatin1String("--markdown");
    tool.requireArguments(isJson || isMarkdown ? 1 : 0);
    tool.open(olStoreUse::LookAt);
    if (isJson)
        tool.print(olSettingsList::json(tool.session()));
    else if (isMarkdown)
        tool.print(olSettingsCatalogue());
    else
        tool.print(olSettingsList::table());
}

void olPrefsCommands::schema(olPrefsTool &tool)
{
    tool.requireArguments(0);
    tool.open(olStoreUse::LookAt);
    tool.print(olSettingsSchema());
}

void olPrefsCommands::get(olPrefsTool &tool)
{
    tool.requireArguments(1);
    tool.open(olStoreUse::LookAt);
    const olKnownSettings settings;
    tool.print(olSettingsList::valueText(settings.named(tool.arguments().first()).value()) + '\n');
}

void olPrefsCommands::diff(olPrefsTool &tool)
{
    tool.requireArguments(0);
    tool.open(olStoreUse::LookAt);
    const olKnownSettings settings;
    std::vector<olPreferencesImport::Change> changes;
    for (const olKnownSetting &setting : settings.all()) {
        const boost::any value = setting.value();
        if (!olValue::identical(value, setting.standard))
            changes.push_back({setting.key, setting.standard, value});
    }
    tool.print(olSettingsList::changes(changes));
}
