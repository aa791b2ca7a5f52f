#include "olBatch.h"
#include "olFormerSettings.h"
#include "olGivenSettings.h"
#include "olImportChoice.h"
#include "olMainWindow.h"
#include "olStartFault.h"
#include "olTour.h"

#include "Devices/olJoystickLink.h"
#include "Devices/olSpacemouseLink.h"
#include "Dialog/olConsentBox.h"
#include "Dialog/olPageStyle.h"
#include "Dialog/olPreferencesDialog.h"
#include "Exchange/olFileNames.h"
#include "Model/olScene.h"
#include "Session/olArguments.h"
#include "Session/olPreferencesSession.h"
#include "State/olEdition.h"
#include "State/olHostState.h"
#include "View/olViewport.h"
#include "WebServer/olWebServer.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QCoreApplication>
#include <QFont>
#include <QFontDatabase>
#include <QIcon>
#include <QMessageBox>
#include <QProcess>
#include <QTemporaryDir>

#include <algorithm>
#include <cstdio>
#include <iterator>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace
{

struct Words {
    Q_DECLARE_TR_FUNCTIONS(orlo)
};

int fail(const QString &error)
{
    std::fprintf(stderr, "orlo: %s\n", qPrintable(error));
    return 1;
}

/// For what the caller got wrong.
int refuse(const QString &fault)
{
    fail(fault);
    return 2;
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
    auto *box = new QMessageBox(QMessageBox::Warning, Words::tr("Preferences"), notices.join(QStringLiteral("\n\n")),
                                QMessageBox::Ok, window);
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->setTextFormat(Qt::PlainText);
    box->setModal(false);
    box->show();
}

/// How the model is meant, where its format does not say it; nothing where an option makes no sense.
std::optional<olImportChoice> choiceOf(const QCommandLineParser &options)
{
    static const std::map<QString, double> units{{QStringLiteral("mm"), 1.0},
                                                 {QStringLiteral("cm"), 10.0},
                                                 {QStringLiteral("m"), 1000.0},
                                                 {QStringLiteral("in"), 25.4},
                                                 {QStringLiteral("ft"), 304.8}};
    const auto unit = units.find(options.value(QStringLiteral("unit")));
    const QString up = options.value(QStringLiteral("up"));
    if (unit == units.end() || (up != QLatin1String("y") && up != QLatin1String("z")))
        return std::nullopt;
    return olImportChoice{false, unit->second, up == QLatin1String("y")};
}

/// Whether another program's value shall hold here, too.
void ask(olPreferencesSession &session, const olOutsideChange &change, const olSettingWarning &question,
         QWidget &window)
{
    auto *box = new olConsentBox(question, &window);
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->setModal(false);
    box->setInformativeText(
        QCoreApplication::translate("orlo", "%1 has stored this.")
            .arg(change.program.isEmpty() ? QCoreApplication::translate("orlo", "Another program") : change.program) +
        QStringLiteral("\n\n") + question.informative);
    QObject::connect(box, &QDialog::finished, &session,
                     [&session, box, key = change.key] { session.answer(key, box->isAgreed()); });
    box->show();
}

/// What was given for an option that takes the name of a file or folder.
QString fileOf(const QCommandLineParser &options, const char *option)
{
    return olArguments::file(options.value(QLatin1String(option)));
}

QString modelOf(const QCommandLineParser &options) { return olArguments::file(options.positionalArguments().value(0)); }

bool isBatch(const QCommandLineParser &options)
{
    return options.isSet(QStringLiteral("render")) || options.isSet(QStringLiteral("save"));
}

/// An option that would do nothing without another, or beside it; empty where there is none.
QString uselessOption(const QCommandLineParser &options)
{
    const bool isRendering = options.isSet(QStringLiteral("render"));
    for (const char *option : {"output", "size", "aids", "edges"}) {
        if (!isRendering && options.isSet(QLatin1String(option)))
            return Words::tr("--%1 needs --render").arg(QLatin1String(option));
    }
    if (!isBatch(options) && options.isSet(QStringLiteral("set")))
        return Words::tr("--set needs --render or --save");
    for (const char *option : {"sample", "save"}) {
        if (isRendering && options.isSet(QLatin1String(option)))
            return Words::tr("--%1 does not go with --render").arg(QLatin1String(option));
    }
    for (const char *option : {"preferences", "setting", "tour"}) {
        if (isBatch(options) && options.isSet(QLatin1String(option)))
            return Words::tr("--%1 needs a window, which --render and --save do without").arg(QLatin1String(option));
    }
    return {};
}

/// What stands on the command line but makes no sense; empty where all does.
QString misuse(const QCommandLineParser &options)
{
    const QString edition = options.value(QStringLiteral("edition"));
    if (!olEditionNamed(edition))
        return Words::tr("there is no edition %1; there are essentials, design, professional and enterprise")
            .arg(edition);
    const QString useless = uselessOption(options);
    if (!useless.isEmpty())
        return useless;
    // Names of files may have any bytes, which stand in the text as they can; the rest is text.
    for (const char *option : {"set", "setting", "edition", "app-name"}) {
        const QStringList values = options.values(QLatin1String(option));
        for (const QString &value : values) {
            if (!olArguments::text(value.toLocal8Bit().constData()))
                return Words::tr("\"%1\" is no UTF-8").arg(QString::fromUtf8(value.toLocal8Bit()));
        }
    }
    const bool isRendering = options.isSet(QStringLiteral("render"));
    if (isRendering && !options.isSet(QStringLiteral("output")))
        return Words::tr("--render needs --output PICTURE");
    if (isRendering && !olBatch::sizeFrom(options.value(QStringLiteral("size"))))
        return Words::tr("%1 is no size: expected WIDTHxHEIGHT, each from 1 to 8192")
            .arg(options.value(QStringLiteral("size")));
    const QStringList models = options.positionalArguments();
    const bool isSample = options.isSet(QStringLiteral("sample"));
    if (options.isSet(QStringLiteral("save")) && isSample == !models.isEmpty())
        return Words::tr("--save needs either a model or --sample");
    if (isRendering && !models.isEmpty())
        return Words::tr("%1 does not go with --render").arg(models.first());
    if (models.size() > 1 && isBatch(options))
        return Words::tr("only one model can be converted at a time");
    if (!choiceOf(options))
        return Words::tr("expected --unit mm, cm, m, in or ft, and --up y or z");
    return {};
}

/// Without a window, and without storing anything.
int runBatch(const QCommandLineParser &options)
{
    if (options.isSet(QStringLiteral("render")))
        return olBatch::render(fileOf(options, "render"), fileOf(options, "output"),
                               *olBatch::sizeFrom(options.value(QStringLiteral("size"))),
                               options.isSet(QStringLiteral("edges")), *choiceOf(options));
    const QString target = fileOf(options, "save");
    if (!options.positionalArguments().isEmpty())
        return olBatch::convert(modelOf(options), target, *choiceOf(options));
    olScene scene;
    scene.loadSample();
    return olBatch::save(scene, target);
}

/// The preferences come up, with those given for this run, and then the work is done.
int startAndRunBatch(olPreferencesSession &session, const QCommandLineParser &options)
{
    const olResult<> loaded = session.loadPlugin(fileOf(options, "plugin"));
    if (!loaded.isOk())
        return fail(loaded.error());
    session.fillDefaults();
    // A picture is of the model alone and as good as can be, where nobody says otherwise; what a site locks stays.
    const bool isClean = options.isSet(QStringLiteral("render")) && !options.isSet(QStringLiteral("aids"));
    for (const char *setting : {"viewcube=false", "show cameras=false", "show lights=false", "show joints=false",
                                "coordinate system=false", "enable antialiase=true"}) {
        if (isClean)
            (void)olSetGivenSettings(session, {QStringLiteral("RenderOptions %1").arg(QLatin1String(setting))});
    }
    if (const olResult<> set = olSetGivenSettings(session, options.values(QStringLiteral("set"))); !set.isOk()) {
        session.stop();
        return refuse(set.error());
    }
    session.start();
    tell(session.takeNotices(), nullptr);
    const int result = runBatch(options);
    session.stop();
    return result;
}

/// The fonts that have the letters of the language, those that draw them in its own manner first.
QStringList fontsOf(int language)
{
    constexpr QFontDatabase::WritingSystem letters[] = {QFontDatabase::Latin, QFontDatabase::SimplifiedChinese,
                                                        QFontDatabase::Japanese, QFontDatabase::Korean};
    constexpr const char *manners[] = {"", " SC", " JP", " KR"};
    QStringList fonts = QFontDatabase().families(letters[language]);
    std::stable_partition(fonts.begin(), fonts.end(), [&](const QString &font) {
        return font.startsWith(QLatin1String("Noto Sans")) && font.endsWith(QLatin1String(manners[language]));
    });
    return fonts;
}

/// Left to itself the toolkit takes each letter from the first font that has it, whatever language that is for.
void useFontOf(int language)
{
    QFont font = QApplication::font();
    const QStringList fonts = fontsOf(language);
    if (language == 0 || fonts.isEmpty())
        return;
    font.setFamilies({font.family(), fonts.first()});
    QApplication::setFont(font);
}

/// What a person is told where no font has the letters of the language: in English, as that can be read.
QStringList missingLetters(int language)
{
    if (!fontsOf(language).isEmpty())
        return {};
    return {QStringLiteral("No font on this system has the letters of the language that is chosen, so many texts show "
                           "boxes in their place. The package fonts-noto-cjk brings such a font.")};
}

/// Whether there is somebody at a window to ask.
bool canAsk(const QCommandLineParser &options) { return !isBatch(options) && !options.isSet(QStringLiteral("tour")); }

/// The one given, else the user's own.
QString storeOf(const QCommandLineParser &options)
{
    const QString given = fileOf(options, "store");
    return given.isEmpty() ? olPreferencesStore::userFile() : given;
}

/// With the store given or chosen, or with one in that folder for this run alone; null where there shall be none.
std::unique_ptr<olPreferencesSession> loadedSession(const QCommandLineParser &options, const QTemporaryDir &passing)
{
    QString file = storeOf(options);
    while (true) {
        auto session = std::make_unique<olPreferencesSession>(file);
        const olResult<> stored = session->loadStore();
        if (stored.isOk())
            return session;
        fail(stored.error());
        const olStartRemedy remedy = canAsk(options) ? olAskAboutStore(stored.error()) : olStartRemedy();
        if (remedy.kind == olStartRemedy::Quit)
            return nullptr;
        file =
            remedy.kind == olStartRemedy::OtherFile ? remedy.file : passing.filePath(QStringLiteral("preferences.db"));
    }
}

bool loadPlugin(olPreferencesSession &session, const QCommandLineParser &options)
{
    QString file = fileOf(options, "plugin");
    while (true) {
        const olResult<> loaded = session.loadPlugin(file);
        if (loaded.isOk())
            return true;
        fail(loaded.error());
        const olStartRemedy remedy = canAsk(options) ? olAskAboutPlugin(loaded.error()) : olStartRemedy();
        if (remedy.kind != olStartRemedy::OtherFile)
            return false;
        file = remedy.file;
    }
}

/// Which host this is, for another run of the same.
QStringList hostArguments(const QCommandLineParser &options)
{
    QStringList arguments;
    for (const char *option : {"edition", "app-name", "store", "plugin"}) {
        if (options.isSet(QLatin1String(option)))
            arguments << QStringLiteral("--%1=%2").arg(QLatin1String(option), options.value(QLatin1String(option)));
    }
    return arguments;
}

/// From the options of the command line to the end of the run. Where another run shall follow, `again` gets what that
/// is to be started with.
int run(const QCommandLineParser &options, QStringList &again)
{
    olHostState &host = olHostState::the();
    host.edition = *olEditionNamed(options.value(QStringLiteral("edition")));
    host.applicationName = options.value(QStringLiteral("app-name"));

    const olWebServer webServer;
    const olSpacemouseLink spacemouse;
    const olJoystickLink joystick;

    olTakeFormerSettingsOver();
    const QTemporaryDir passing;
    const std::unique_ptr<olPreferencesSession> loaded = loadedSession(options, passing);
    if (!loaded)
        return 1;
    olPreferencesSession &session = *loaded;
    session.translations().load(host.displayLanguage);
    session.translations().loadOfToolkit();
    if (isBatch(options))
        return startAndRunBatch(session, options);

    useFontOf(host.displayLanguage);
    olMainWindow window(session);
    if (!loadPlugin(session, options))
        return 1;
    session.start();
    if (options.isSet(QStringLiteral("sample")))
        window.openSample();
    window.show();
    const QStringList models = options.positionalArguments();
    olImportChoice choice = *choiceOf(options);
    for (const QString &model : models) {
        window.openModel(olArguments::file(model), choice);
        choice.addsToScene = true;
    }
    if (options.isSet(QStringLiteral("preferences")))
        window.openPreferences();
    const QString setting = options.value(QStringLiteral("setting"));
    if (!setting.isEmpty() && !window.openPreferences().openAt(setting)) {
        window.closePreferences();
        session.stop();
        return refuse(Words::tr("no page has the setting \"%1\"").arg(setting));
    }

    const QString tourFolder = fileOf(options, "tour");
    tell(session.takeNotices() << missingLetters(host.displayLanguage), tourFolder.isEmpty() ? &window : nullptr);
    QObject::connect(&session, &olPreferencesSession::noticed, &window,
                     [&session, &window] { tell(session.takeNotices(), &window); });
    QObject::connect(&session, &olPreferencesSession::consentWanted, &window,
                     [&](const olOutsideChange &change, const olSettingWarning &question) {
                         if (canAsk(options))
                             ask(session, change, question, window);
                         else
                             tell({olRefusalUnasked(change.key, question)}, nullptr);
                     });
    session.follow();
    const int result = tourFolder.isEmpty() ? QApplication::exec() : olTour(window).run(tourFolder);

    window.closePreferences();
    const olResult<> saved = session.save();
    tell(session.takeNotices(), nullptr);
    session.stop();
    if (!window.restartArguments().isEmpty())
        again = hostArguments(options) + window.restartArguments();
    return saved.isOk() ? result : fail(saved.error());
}

/// The toolkit has an option of this name too and would take "--plugin FILE" for it, but not "--plugin=FILE".
std::vector<std::string> withOwnPlugin(int count, char **values)
{
    std::vector<std::string> arguments(values, values + count);
    const auto plugin = std::find(arguments.begin(), arguments.end(), "--plugin");
    if (std::distance(plugin, arguments.end()) < 2)
        return arguments;
    *plugin += '=' + *std::next(plugin);
    arguments.erase(std::next(plugin));
    return arguments;
}

// The toolkit's own Japanese lacks these.
[[maybe_unused]] constexpr const char *toolkitTexts[] = {
    QT_TRANSLATE_NOOP("QCommandLineParser", "Displays help on commandline options."),
    QT_TRANSLATE_NOOP("QCommandLineParser", "Displays help including Qt specific options.")};

/// What the command line takes, in the language that is spoken.
void describe(QCommandLineParser &options)
{
    options.setApplicationDescription(Words::tr("Views, renders and converts CAD models."));
    options.addHelpOption();
    options.addVersionOption();
    options.addOption({QStringLiteral("edition"), Words::tr("essentials, design, professional or enterprise."),
                       QStringLiteral("name"), QStringLiteral("professional")});
    options.addOption({QStringLiteral("app-name"), Words::tr("The application's name."), QStringLiteral("name"),
                       QStringLiteral("orlo")});
    options.addOption(
        {QStringLiteral("store"), Words::tr("The file that keeps the preferences."), QStringLiteral("file")});
    options.addOption(
        {QStringLiteral("plugin"), Words::tr("The preferences plug-in to load."), QStringLiteral("file")});
    options.addOption({QStringLiteral("sample"), Words::tr("Open a small assembly that the program builds itself.")});
    options.addOption({QStringLiteral("save"),
                       Words::tr("Write the model, or the sample, in the format of the suffix, and end."),
                       QStringLiteral("file")});
    options.addOption({QStringLiteral("render"),
                       Words::tr("Import a model, write one picture of it to --output, and end."),
                       QStringLiteral("model")});
    options.addOption(
        {QStringLiteral("output"), Words::tr("Where --render puts its picture."), QStringLiteral("picture")});
    options.addOption(
        {QStringLiteral("aids"), Words::tr("With --render: show cameras, lights and the cube as the window does.")});
    options.addOption({QStringLiteral("edges"), Words::tr("With --render: draw the borders of surfaces.")});
    options.addOption({QStringLiteral("unit"),
                       Words::tr("The unit of a model that does not say it: mm, cm, m, in or ft."),
                       QStringLiteral("unit"), QStringLiteral("mm")});
    options.addOption({QStringLiteral("up"), Words::tr("What is up in a model that does not say it: y or z."),
                       QStringLiteral("axis"), QStringLiteral("z")});
    options.addOption({QStringLiteral("size"), Words::tr("How large the picture is, in pixels."), QStringLiteral("WxH"),
                       QStringLiteral("1280x720")});
    options.addOption({QStringLiteral("set"),
                       Words::tr("A setting for --render and --save, as \"KEY=VALUE\"; nothing is saved."),
                       QStringLiteral("setting")});
    options.addPositionalArgument(QStringLiteral("model"), Words::tr("The model to open."), QStringLiteral("[model]"));
    options.addOption({QStringLiteral("preferences"), Words::tr("Open the preferences beside the view.")});
    options.addOption(
        {QStringLiteral("setting"), Words::tr("Open the preferences at a setting."), QStringLiteral("key")});
    options.addOption({QStringLiteral("tour"),
                       Words::tr("Apply a change in the preferences, leave pictures in the folder, and end."),
                       QStringLiteral("folder")});
}

/// Has help and refusals in the language that the person chose, whose store is read for nothing else; English where it
/// cannot be read.
void speakLanguageOfUser(const QCommandLineParser &options, olTranslations &texts)
{
    if (!olPreferencesSession(storeOf(options)).loadStore(olStoreUse::LookAt).isOk())
        return;
    texts.load(olHostState::the().displayLanguage);
    texts.loadOfToolkit();
}

/// Questions that are answered without a display.
bool asksOnly(const std::vector<std::string> &arguments)
{
    static const std::vector<std::string> questions{"-h", "--help", "--help-all", "-v", "--version"};
    return std::find_first_of(arguments.begin(), arguments.end(), questions.begin(), questions.end()) !=
           arguments.end();
}

} // namespace

int main(int argc, char *argv[])
{
    olKeepFileNames();
    QApplication::setAttribute(Qt::AA_EnableHighDpiScaling);
    QApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
    const bool hasDisplay = olViewport::prepareApplication();
    std::vector<std::string> arguments = withOwnPlugin(argc, argv);
    std::vector<char *> argumentTexts;
    argumentTexts.reserve(arguments.size() + 1);
    for (std::string &argument : arguments)
        argumentTexts.push_back(argument.data());
    argumentTexts.push_back(nullptr);
    int argumentCount = int(arguments.size());
    QCoreApplication::setOrganizationName(QStringLiteral("orlo"));
    QCoreApplication::setApplicationName(QStringLiteral("orlo"));
    QCoreApplication::setApplicationVersion(QStringLiteral(ORLO_VERSION));
    QCommandLineParser options;
    describe(options);
    if (asksOnly(arguments)) {
        const QCoreApplication application(argumentCount, argumentTexts.data());
        options.parse(QCoreApplication::arguments());
        olTranslations texts;
        speakLanguageOfUser(options, texts);
        QCommandLineParser answer;
        describe(answer);
        answer.process(application);
    }
    QApplication application(argumentCount, argumentTexts.data());
    QApplication::setStyle(new olPageStyle); // owned by the application
    QApplication::setDesktopFileName(QStringLiteral("org.example.orlo"));
    QApplication::setWindowIcon(QIcon::fromTheme(QStringLiteral("org.example.orlo")));
    const auto fault = [&options, hasDisplay] {
        if (!options.parse(QApplication::arguments()))
            return options.errorText();
        const QString wrong = misuse(options);
        return wrong.isEmpty() && !hasDisplay && !isBatch(options)
                   ? Words::tr("there is no display to open a window on; --save needs none")
                   : wrong;
    };
    if (!fault().isEmpty()) {
        olTranslations texts;
        speakLanguageOfUser(options, texts);
        return refuse(fault());
    }
    options.process(application);
    QStringList again;
    const int result = run(options, again);
    if (!again.isEmpty())
        QProcess::startDetached(QCoreApplication::applicationFilePath(), again);
    return result;
}
