#include "Session/olArguments.h"
#include "State/olHostState.h"
#include "olPrefsCommands.h"
#include "olPrefsTool.h"
#include "olScriptRunner.h"
#include "olToolError.h"

#include <QFile>

#include <cstdio>

void olPrefsCommands::script(olPrefsTool &tool)
{
    tool.requireArguments(1);
    const QString name = olArguments::file(tool.arguments().first());
    QFile file(name);
    const bool isOpen =
        name == QLatin1String("-") ? file.open(stdin, QIODevice::ReadOnly) : file.open(QIODevice::ReadOnly);
    if (!isOpen)
        throw olToolError(olToolError::tr("Cannot read the script %1: %2.").arg(name, file.errorString()));
    if (!tool.options().store.isEmpty())
        tool.loadStore(olStoreUse::LookAt);
    // The language that was stored is that of a start, which a script does not run; its controls go by the names of
    // the untranslated pages.
    olHostState::the().displayLanguage.reset();
    tool.loadPlugin();
    olScriptRunner(tool.session(), stdout).run(file);
}
