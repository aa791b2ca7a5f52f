#include "Session/olArguments.h"
#include "olPrefsOptions.h"
#include "olPrefsTool.h"
#include "olToolError.h"

#include <QApplication>

#include <cstdio>
#include <optional>

namespace
{

/// Remarks of the toolkit on what a tool without a screen does not have: a window manager and a login session.
bool isAboutTheScreen(const QString &message)
{
    return message.contains(QLatin1String("does not support propagateSizeHints")) ||
           message.startsWith(QLatin1String("QStandardPaths: "));
}

void passOn(QtMsgType, const QMessageLogContext &, const QString &message)
{
    if (!isAboutTheScreen(message))
        std::fprintf(stderr, "%s\n", qPrintable(message));
}

void prepareApplication()
{
    qInstallMessageHandler(passOn);
    olArguments::useUtf8();
    qputenv("QT_QPA_PLATFORM", "offscreen");
    // A desktop's theme or style would look for that desktop.
    qunsetenv("QT_QPA_PLATFORMTHEME");
    qunsetenv("QT_STYLE_OVERRIDE");
    QCoreApplication::setOrganizationName(QStringLiteral("orlo"));
    QCoreApplication::setApplicationName(QStringLiteral("orlo"));
    QCoreApplication::setApplicationVersion(QStringLiteral(ORLO_VERSION));
}

QStringList arguments(int count, char **values)
{
    QStringList list;
    for (int index = 1; index < count; ++index) {
        const std::optional<QString> text = olArguments::text(values[index]);
        if (!text)
            throw olToolError(olToolError::tr("\"%1\" is no UTF-8").arg(QString::fromUtf8(values[index])));
        list << *text;
    }
    return list;
}

int run(const QStringList &arguments)
{
    const olPrefsOptions options = olPrefsOptions::parsed(arguments);
    if (!options.help && !options.version)
        return olPrefsTool(options).run();
    if (options.help)
        olPrefsTool(options).printHelp();
    else
        olPrefsTool::print("orlo-prefs " ORLO_VERSION "\n");
    return 0;
}

} // namespace

int main(int argumentCount, char **argumentValues)
{
    prepareApplication();
    // The toolkit has options of its own and would take them out of a command's arguments.
    int ownCount = 1;
    const QApplication application(ownCount, argumentValues);
    try {
        return run(arguments(argumentCount, argumentValues));
    } catch (const olToolError &error) {
        std::fflush(stdout);
        std::fprintf(stderr, "%s\n", error.what());
        return error.status();
    }
}
