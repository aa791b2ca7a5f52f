#include "State/olHostState.h"
#include "Support/BoxWatch.h"
#include "Support/PluginTest.h"

#include <QComboBox>
#include <QLineEdit>

// What scripts do not see of the pages for main window, devices and help.

namespace
{

using ApplicationPages = PluginTest;

TEST_F(ApplicationPages, TheRestartBoxBelongsToThePageAndOpensBetweenTheStores)
{
    olPreferencesEntry &entry = module("MainWindow");
    fill("MainWindow");
    control<QComboBox>("MainWindow", "userLanguage").setCurrentIndex(2);
    record().set("MainWindow window opacity", boost::any(0.75), true);

    const BoxWatch watch([&entry](QMessageBox &box) {
        EXPECT_EQ(box.parentWidget(), entry.page());
        EXPECT_EQ(boost::any_cast<int>(record().get("MainWindow user language")), 2);
        EXPECT_EQ(boost::any_cast<double>(record().get("MainWindow window opacity")), 0.75);
        box.accept();
    });
    entry.updateData();
    EXPECT_EQ(watch.count, 1);
    EXPECT_EQ(boost::any_cast<double>(record().get("MainWindow window opacity")), 1.0);
}

TEST_F(ApplicationPages, TheSlotsOfTheHelpPageAreFoundByName)
{
    olPreferencesEntry &help = module("Help");
    auto &location = control<QComboBox>("Help", "location");
    auto &path = control<QLineEdit>("Help", "path");
    // The slot asks the box, not its argument.
    path.show();
    EXPECT_TRUE(QMetaObject::invokeMethod(help.page(), "indexChangedLocation", Q_ARG(int, 1)));
    EXPECT_TRUE(path.isHidden());
    location.setCurrentIndex(-1);
    EXPECT_FALSE(path.isHidden());

    EXPECT_TRUE(QMetaObject::invokeMethod(help.page(), "indexChangedPopup", Q_ARG(int, 1)));
    EXPECT_TRUE(record().entries().empty());
    EXPECT_GE(help.page()->metaObject()->indexOfSlot("clickedGetHelpPath()"), 0);
    EXPECT_TRUE(calls.take().empty());
}

TEST_F(ApplicationPages, TheEditionIsAskedWhenValuesAreStoredNotWhenThePageIsBuilt)
{
    olPreferencesEntry &devices = module("Devices");
    fill("Devices");
    olHostState::the().edition = olEdition::Essentials;
    devices.updateData();
    EXPECT_TRUE(boost::any_cast<bool>(record().get("Devices spacemouse two axis")));
    EXPECT_FALSE(boost::any_cast<bool>(record().get("Devices joystick")));

    devices.applyPreferences();
    EXPECT_EQ(calls.take().at(1), "olOSGWidget::setSpacemouseTwoAxis(true)");
}

} // namespace
