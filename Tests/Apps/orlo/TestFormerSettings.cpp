#include "olFormerSettings.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QSettings>
#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace
{

const QString key = QStringLiteral("importDialog/closeOnSuccess");

TEST(FormerSettings, AreTakenOverOnceAndNeverInPlaceOfNewerOnes)
{
    const QString organization = QCoreApplication::organizationName();
    const QString application = QCoreApplication::applicationName();
    const QTemporaryDir folder;
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, folder.path());
    QCoreApplication::setOrganizationName(QStringLiteral("orlo"));
    QCoreApplication::setApplicationName(QStringLiteral("orlo"));

    const auto writeFormer = [](int value) {
        QSettings former(QStringLiteral("ORLO"), QStringLiteral("orlo"));
        former.setValue(key, value);
    };
    writeFormer(1);
    olTakeFormerSettingsOver();
    EXPECT_EQ(QSettings().value(key), 1);
    EXPECT_FALSE(QFileInfo::exists(folder.filePath(QStringLiteral("ORLO"))));

    writeFormer(2);
    olTakeFormerSettingsOver();
    EXPECT_EQ(QSettings().value(key), 1);

    QCoreApplication::setOrganizationName(organization);
    QCoreApplication::setApplicationName(application);
}

} // namespace
