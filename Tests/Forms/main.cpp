#include "Forms/Pictures.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QPalette>
#include <QSettings>
#include <QStyleFactory>
#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace
{

QPalette paletteOf(const QColor &window, const QColor &base, const QColor &ink, const QColor &highlight)
{
    QPalette palette(window);
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::ToolTipText})
        palette.setColor(role, ink);
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        palette.setColor(QPalette::Disabled, role,
                         QColor((ink.red() + window.red()) / 2, (ink.green() + window.green()) / 2,
                                (ink.blue() + window.blue()) / 2));
    palette.setColor(QPalette::Base, base);
    palette.setColor(QPalette::Highlight, highlight);
    palette.setColor(QPalette::HighlightedText, highlight.lightness() < 128 ? Qt::white : Qt::black);
    return palette;
}

} // namespace

// Without arguments a test. `--pictures FOLDER` leaves a picture of every page there, `--palette dark` or
// `--palette contrast` shows them in other colours.
int main(int argc, char *argv[])
{
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    testing::InitGoogleTest(&argc, argv);
    QApplication application(argc, argv);
    QApplication::setOrganizationName(QStringLiteral("ORLO tests"));
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    const QTemporaryDir settings;
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, settings.path());

    QCommandLineParser parser;
    const QCommandLineOption pictures(QStringLiteral("pictures"), {}, QStringLiteral("folder"));
    const QCommandLineOption palette(QStringLiteral("palette"), {}, QStringLiteral("name"));
    parser.addOptions({pictures, palette});
    parser.process(application);
    Pictures::folder() = parser.value(pictures);
    if (parser.value(palette) == QLatin1String("dark"))
        QApplication::setPalette(
            paletteOf(QColor(45, 45, 48), QColor(30, 30, 32), QColor(220, 220, 220), QColor(42, 130, 218)));
    else if (parser.value(palette) == QLatin1String("contrast"))
        QApplication::setPalette(paletteOf(Qt::black, Qt::black, Qt::white, Qt::yellow));
    return RUN_ALL_TESTS();
}
