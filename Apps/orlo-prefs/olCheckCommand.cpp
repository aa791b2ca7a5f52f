#include "olPrefsCommands.h"
#include "olPrefsTool.h"
#include "olToolError.h"

void olPrefsCommands::check(olPrefsTool &tool)
{
    tool.requireArguments(0);
    // The store is not loaded: what is wrong with it is no reason to stop but what is asked for.
    tool.loadPlugin();
    tool.fillDefaults();
    const olPreferencesFindings found = tool.session().check();
    const QStringList lines = found.faults + found.remarks;
    for (const QString &line : lines)
        tool.print(line.toStdString() + '\n');
    const int count = found.faults.size();
    if (count > 0)
        throw olToolError(
            QStringLiteral("%1 found")
                .arg(count == 1 ? QStringLiteral("1 fault was") : QStringLiteral("%1 faults were").arg(count)));
}
