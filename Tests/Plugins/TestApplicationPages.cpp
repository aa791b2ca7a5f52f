#include "Embedded/olHostState.h"
#include "Preferences/olPreferencesRegistry.h"
#include "Support/PluginTest.h"
#include "Utilities/olPlatform.h"

#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <QMessageBox>
#include <QTimer>
#include <QToolButton>

// What scripts do not see of the pages for main window, devices and help.

namespace
{

class ApplicationPages : public PluginTest
{
};

/// Answers the next message box and remembers what it was.
class BoxWatch
{
public:
    BoxWatch()
    {
        QObject::connect(&m_timer, &QTimer::timeout, [this] { look(); });
        m_timer.start(0);
    }

    QWidget *parent = nullptr;
    QMessageBox::StandardButtons buttons;
    bool wasModal = false;
    boost::any opacityWhileOpen;
    boost::any languageWhileOpen;
    int count = 0;

private:
    void look()
    {
        auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
        if (!box)
            return;
        ++count;
        parent = box->parentWidget();
        buttons = box->standardButtons();
        wasModal = box->isModal();
        const olMessage &record = olPreferencesRegistry::the().record();
        opacityWhileOpen = record.get("MainWindow window opacity");
        languageWhileOpen = record.get("MainWindow user language");
        box->accept();
    }

    QTimer m_timer;
};

TEST_F(ApplicationPages, TheRestartBoxBelongsToThePageAndOpensBetweenTheStores)
{
    olPreferencesEntry &entry = module("MainWindow");
    entry.setDefaults(true);
    entry.updateGUI();
    control<QComboBox>("MainWindow", "userLanguage").setCurrentIndex(2);
    record().set("MainWindow window opacity", boost::any(0.75), true);

    BoxWatch watch;
    entry.updateData();
    EXPECT_EQ(watch.count, 1);
    EXPECT_EQ(watch.parent, entry.page());
    EXPECT_EQ(watch.buttons, QMessageBox::Ok);
    EXPECT_TRUE(watch.wasModal);
    EXPECT_EQ(boost::any_cast<int>(watch.languageWhileOpen), 2);
    EXPECT_EQ(boost::any_cast<double>(watch.opacityWhileOpen), 0.75);
    EXPECT_EQ(boost::any_cast<double>(record().get("MainWindow window opacity")), 1.0);
}

TEST_F(ApplicationPages, TheBrowseButtonHasTheHostsMediumIconSize)
{
    const auto &browse = control<QToolButton>("Help", "browsePath");
    const QSize size(olPlatform::getMediumIconSizeX(), olPlatform::getMediumIconSizeY());
    EXPECT_FALSE(browse.icon().isNull());
    EXPECT_EQ(browse.iconSize(), size);
    EXPECT_EQ(browse.minimumSize(), size);
    EXPECT_EQ(browse.maximumSize(), size);
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

    const auto before = record().entries().size();
    EXPECT_TRUE(QMetaObject::invokeMethod(help.page(), "indexChangedPopup", Q_ARG(int, 1)));
    EXPECT_EQ(record().entries().size(), before);
    EXPECT_GE(help.page()->metaObject()->indexOfSlot("clickedGetHelpPath()"), 0);
    EXPECT_TRUE(calls.take().empty());
}

TEST_F(ApplicationPages, SevenControlsOfTheDevicesAreAtLeast130Wide)
{
    int wide = 0;
    const auto widgets = module("Devices").page()->findChildren<QWidget *>();
    for (const QWidget *widget : widgets)
        wide += widget->minimumWidth() == 130 && widget->property("olSettingKeys").isValid() ? 1 : 0;
    EXPECT_EQ(wide, 7);
}

TEST_F(ApplicationPages, TheEditionIsAskedWhenValuesAreStoredNotWhenThePageIsBuilt)
{
    olPreferencesEntry &devices = module("Devices");
    devices.setDefaults(true);
    devices.updateGUI();
    olHostState::the().edition = olEdition::Essentials;
    devices.updateData();
    EXPECT_TRUE(boost::any_cast<bool>(record().get("Devices spacemouse two axis")));
    EXPECT_FALSE(boost::any_cast<bool>(record().get("Devices joystick")));

    devices.applyPreferences();
    EXPECT_EQ(calls.take().at(1), "olOSGWidget::setSpacemouseTwoAxis(true)");
}

TEST_F(ApplicationPages, WhatTheHostIsToldIsItsStateAfterwards)
{
    record().set("MainWindow disable docking", boost::any(true), true);
    record().set("MainWindow window opacity", boost::any(0.5), true);
    module("MainWindow").applyPreferences();
    record().set("Devices joystick", boost::any(true), true);
    record().set("Devices joystick id", boost::any(3), true);
    module("Devices").applyPreferences();
    record().set("Help Popup", boost::any(1), true);
    module("Help").applyPreferences();

    const olHostState &host = olHostState::the();
    EXPECT_FALSE(host.mainWindowDocking);
    EXPECT_EQ(host.windowOpacity, 0.5);
    EXPECT_TRUE(host.joystickNavigation);
    EXPECT_EQ(host.joystickId, 3);
    EXPECT_TRUE(host.simpleToolclips);
}

} // namespace
