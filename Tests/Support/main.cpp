#include <QApplication>
#include <QSettings>
#include <QTemporaryDir>
#include <QtGlobal>
#include <gtest/gtest.h>

int main(int argc, char *argv[])
{
    // Tests of widgets never need a screen.
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    // Sizes in pixels are compared with what they are on a plain screen.
    if (!qEnvironmentVariableIsSet("QT_FONT_DPI"))
        qputenv("QT_FONT_DPI", "96");
    testing::InitGoogleTest(&argc, argv);
    if (testing::GTEST_FLAG(list_tests))
        return RUN_ALL_TESTS();
    QApplication application(argc, argv);
    QApplication::setOrganizationName(QStringLiteral("ORLO tests"));
    // What a dialog remembers is no test's concern but its own, nor the user's.
    const QTemporaryDir settings;
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, settings.path());
    return RUN_ALL_TESTS();
}
