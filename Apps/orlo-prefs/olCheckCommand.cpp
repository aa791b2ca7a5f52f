#include "olPrefsCommands.h"
#include "olPrefsTool.h"
#include "olToolError.h"

void olPrefsCommands::check(olPrefsTool &tool)
{
    tool.requireArguments(0);
    // The store is not loaded: what is wrong with it is no reason to stop but what is asked for.
    tool.loadPlugin();
    tool.fillDefaults();
    const QStringList findings = tool.session().check();
    for (const QString &finding : findings)
        tool.print(finding.toStdString() + '\n');
    if (!findings.isEmpty())
        throw olToolError(QStringLiteral("%1 found")
                              .arg(findings.size() == 1 ? QStringLiteral("1 fault was")
                                                        : QStringLiteral("%1 faults were").arg(findings.size())));
}
