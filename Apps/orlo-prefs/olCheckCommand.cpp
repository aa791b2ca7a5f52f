#include "Session/olArguments.h"
#include "Session/olSiteDefaults.h"
#include "State/olHostState.h"
#include "olPrefsCommands.h"
#include "olPrefsTool.h"
#include "olToolError.h"

#include <QFileInfo>

namespace
{

/// What is wrong with a file that is not installed yet: whose it is does not count, and nothing but it does.
QStringList siteFindings(const olPreferencesSession &session, const QString &file)
{
    if (!QFileInfo(file).isFile())
        throw olToolError(olToolError::tr("Cannot check %1: there is no such file.").arg(file));
    olSiteDefaults site({file}, olSiteOwner::Anyone);
    site.read();
    session.resolveSite(site);
    return site.takeFaults() << site.unknown();
}

} // namespace

void olPrefsCommands::check(olPrefsTool &tool)
{
    const bool isSite = tool.arguments().value(0) == QLatin1String("--site");
    tool.requireArguments(isSite ? 2 : 0);
    // A site's file is for all editions, and the largest has every setting.
    olHostState::the().edition = olEdition::Enterprise;
    // The store is not loaded: what is wrong with it is no reason to stop but what is asked for.
    tool.loadPlugin();
    tool.fillDefaults();
    const QStringList findings =
        isSite ? siteFindings(tool.session(), olArguments::file(tool.arguments().last())) : tool.session().check();
    for (const QString &finding : findings)
        tool.print(finding.toStdString() + '\n');
    if (!findings.isEmpty())
        tool.setStatus(1);
}
