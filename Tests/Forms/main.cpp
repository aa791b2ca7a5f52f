#include "Dialog/olPageStyle.h"
#include "Forms/Palettes.h"
#include "Forms/Pictures.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QSettings>
#include <QStyleFactory>
#include <QTemporaryDir>
#include <gtest/gtest.h>

// Without arguments a test. `--pictures FOLDER` leaves a picture of every page there, `--palette dark` or
// `--palette contrast` shows them in other colours.
int main(int argc, char *argv[])
{
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    testing::InitGoogleTest(&argc, argv);
    QApplication application(argc, argv);
    QApplication::setOrganizationName(QStringLiteral("ORLO tests"));
    QApplication::setStyle(new olPageStyle(QStyleFactory::create(QStringLiteral("Fusion"))));
    const QTemporaryDir settings;
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, settings.path());

    QCommandLineParser parser;
    const QCommandLineOption pictures(QStringLiteral("pictures"), {}, QStringLiteral("folder"));
    const QCommandLineOption palette(QStringLiteral("palette"), {}, QStringLiteral("name"));
    parser.addOptions({pictures, palette});
    parser.process(application);
    Pictures::folder() = parser.value(pictures);
    QDir().mkpath(Pictures::folder());
    if (parser.value(palette) == QLatin1String("dark"))
        QApplication::setPalette(Palettes::dark());
    else if (parser.value(palette) == QLatin1String("contrast"))
        QApplication::setPalette(Palettes::contrast());
    return RUN_ALL_TESTS();
}
