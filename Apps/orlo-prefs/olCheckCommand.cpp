#include "State/olHostState.h"
#include "olPrefsCommands.h"
#include "olPrefsTool.h"

void olPrefsCommands::check(olPrefsTool &tool)
{
    tool.requireArguments(0);
    // A site's file is for all editions, and the largest has every setting.
    olHostState::the().edition = olEdition::Enterprise;
    // The store is not loaded: what is wrong with it is no reason to stop but what is asked for.
    tool.loadPlugin();
    tool.fillDefaults();
    const QStringList findings = tool.session().check();
    for (const QString &finding : findings)
        tool.print(finding.toStdString() + '\n');
    if (!findings.isEmpty())
        tool.setStatus(1);
}
