#include "olMainWindow.h"
#include "olTour.h"

#include "Embedded/olEdition.h"
#include "Embedded/olHostState.h"
#include "Preferences/olPreferencesSession.h"
#include "Viewport/olScene.h"
#include "Viewport/olViewport.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QMessageBox>

#include <cstdio>

namespace
{

int fail(const QString &error)
{
    std::fprintf(stderr, "orlo: %s\n", qPrintable(error));
    return 1;
}

/// In a box that keeps nobody from working; without a window, on the standard error stream.
void tell(const QStringList &notices, QWidget *window)
{
    if (notices.isEmpty())
        return;
    for (const QString &notice : notices)
        std::fprintf(stderr, "orlo: %s\n", qPrintable(notice));
    if (!window)
        return;
    auto *box = new QMessageBox(QMessageBox::Warning, QCoreApplication::translate("orlo", "Preferences"),
                                notices.join(QStringLiteral("\n\n")), QMessageBox::Ok, window);
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->setTextFormat(Qt::PlainText);
    box->setModal(false);
    box->show();
}

/// From the options of the command line to the end of the run.
int run(const QCommandLineParser &options)
{
    olHostState &host = olHostState::the();
    const auto edition = olEditionNamed(options.value(QStringLiteral("edition")));
    if (!edition) {
        std::fprintf(stderr,
                     "orlo: there is no edition %s; there are essentials, design, professional and enterprise\n",
                     qPrintable(options.value(QStringLiteral("edition"))));
        return 2;
    }
    host.edition = *edition;
    host.applicationName = options.value(QStringLiteral("app-name"));

    const QString given = options.value(QStringLiteral("store"));
    olPreferencesSession session(given.isEmpty() ? olPreferencesStore::userFile() : given);
    const QString storeError = session.loadStore();
    if (!storeError.isEmpty())
        return fail(storeError);

    olMainWindow window(session);
    const QString pluginError = session.loadPlugin(olPluginLoader::locate(options.value(QStringLiteral("plugin"))));
    if (!pluginError.isEmpty())
        return fail(pluginError);
    session.start();
    if (options.isSet(QStringLiteral("sample"))) {
        window.scene().loadSample();
        session.newScene();
    }
    window.show();
    if (options.isSet(QStringLiteral("preferences")))
        window.openPreferences();

    const QString tourFolder = options.value(QStringLiteral("tour"));
    tell(session.takeNotices(), tourFolder.isEmpty() ? &window : nullptr);
    const int result = tourFolder.isEmpty() ? QApplication::exec() : olTour(window).run(tourFolder);

    window.closePreferences();
    const QString saveError = session.save();
    tell(session.takeNotices(), nullptr);
    session.stop();
    return saveError.isEmpty() ? result : fail(saveError);
}

} // namespace

int main(int argc, char *argv[])
{
    QApplication::setAttribute(Qt::AA_EnableHighDpiScaling);
    QApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
    olViewport::prepareApplication();
    QApplication application(argc, argv);
    QApplication::setOrganizationName(QStringLiteral("ORLO"));
    QApplication::setApplicationName(QStringLiteral("orlo"));
    QApplication::setApplicationVersion(QStringLiteral(ORLO_VERSION));

    QCommandLineParser options;
    options.setApplicationDescription(QStringLiteral("Shows the host with its preferences."));
    options.addHelpOption();
    options.addVersionOption();
    options.addOption({QStringLiteral("edition"), QStringLiteral("essentials, design, professional or enterprise."),
                       QStringLiteral("name"), QStringLiteral("professional")});
    options.addOption({QStringLiteral("app-name"), QStringLiteral("The application's name."), QStringLiteral("name"),
                       QStringLiteral("orlo")});
    options.addOption(
        {QStringLiteral("store"), QStringLiteral("The file that keeps the preferences."), QStringLiteral("file")});
    options.addOption(
        {QStringLiteral("plugin"), QStringLiteral("The preferences plug-in to load."), QStringLiteral("file")});
    options.addOption(
        {QStringLiteral("sample"), QStringLiteral("Open a small assembly that the program builds itself.")});
    options.addOption({QStringLiteral("preferences"), QStringLiteral("Open the preferences beside the view.")});
    options.addOption({QStringLiteral("tour"),
                       QStringLiteral("Apply a change in the preferences, leave pictures in the folder, and end."),
                       QStringLiteral("folder")});
    options.process(application);
    return run(options);
}
