#include "Viewer/olDevicesPreferencesGUII.h"

#include "Framework/olApply.h"
#include "Kernel/olController.h"
#include "Kernel/olOSGWidget.h"
#include "Kernel/olSpacemouse.h"
#include "Viewer/olDevicesPreferencesGUIW.h"
#include "ui_olDevicesPreferencesGUI.h"

#include <QCoreApplication>

namespace
{

// Deliberate: Essentials starts with the 3D mouse searched for, and with two axes and helicopter mode on.
const olSetting<bool> searchSpacemouse{"Devices search spacemouse", &olController::isOrloEssentials};
const olSetting<int> view{"Devices spacemouse view", 0};
const olSetting<int> rotationPivot{"Devices spacemouse rotation pivot", 0};
const olSetting<bool> twoAxis{"Devices spacemouse two axis", &olController::isOrloEssentials};
const olSetting<bool> helicopter{"Devices spacemouse helicopter", &olController::isOrloEssentials};
const olSetting<bool> fixedHeight{"Devices spacemouse fixed height", false};
const olSetting<float> height{"Devices spacemouse height", 0.0f};
const olSetting<bool> joystick{"Devices joystick", false};
const olSetting<int> joystickId{"Devices joystick id", 0};

/// A check box that stores true in Essentials, whatever it shows.
struct olTrueInEssentials {
    QCheckBox *widget;
};

void showOn(const olTrueInEssentials &box, bool value) { showOn(box.widget, value); }
void takeFrom(const olTrueInEssentials &box, bool &value)
{
    value = box.widget->isChecked() || olController::isOrloEssentials();
}

/// For what Essentials always has on: there the record is not even read, so neither a missing nor a faulty value
/// matters.
template <class Call> void applyTrueInEssentials(const olSetting<bool> &setting, Call &&call)
{
    if (olController::isOrloEssentials())
        call(true);
    else
        applyIfRead(setting, call);
}

void useSpacemouse(bool use)
{
    if (use)
        olSpacemouse::init();
    else
        olSpacemouse::terminate();
}

QString name() { return QCoreApplication::translate("olPreferences", "Devices"); }

} // namespace

olDevicesPreferencesGUII::olDevicesPreferencesGUII()
    : olModule(name(), name()), m_page(std::make_unique<olDevicesPreferencesGUIW>()), m_settings(*m_page)
{
    const auto &form = m_page->form();
    m_settings.add(searchSpacemouse, olTrueInEssentials{form.searchSpacemouse});
    m_settings.add(view, form.viewMode);
    m_settings.add(rotationPivot, form.rotationPivot);
    m_settings.add(twoAxis, olTrueInEssentials{form.twoAxis});
    m_settings.add(helicopter, olTrueInEssentials{form.helicopter});
    m_settings.add(fixedHeight, form.useFixedHeight);
    m_settings.add(height, form.height);
    m_settings.add(joystick, form.useJoystick);
    m_settings.add(joystickId, form.joystickId);

    addPreferencesGUI(m_page.get());
}

olDevicesPreferencesGUII::~olDevicesPreferencesGUII()
{
    m_settings.removeKeys();
    subPreferencesGUI(m_page.get());
}

void olDevicesPreferencesGUII::setDefaults(olMessage &, bool flag) { m_settings.writeDefaults(flag); }

// Deliberately without asking what changed: a device that was plugged in meanwhile is found by applying once more. The
// search alone can be off in Essentials.
void olDevicesPreferencesGUII::applyPreferences()
{
    applyIfRead(searchSpacemouse, &useSpacemouse);
    applyTrueInEssentials(twoAxis, &olOSGWidget::setSpacemouseTwoAxis);
    applyTrueInEssentials(helicopter, &olOSGWidget::setSpacemouseHelicopter);
    applyIfRead(fixedHeight, &olOSGWidget::setSpacemouseUseFixedHeight);
    applyIfRead(height, &olOSGWidget::setSpacemouseFixedHeight);
    applyIfRead(view, &olOSGWidget::setSpacemouseViewMode);
    applyIfRead(rotationPivot, &olOSGWidget::setSpacemousePivotMode);

    // Without a number it is the first joystick.
    const int id = readOr(joystickId, 0);
    applyIfRead(joystick, [id](bool use) { olController::setJoystickNavigation(id, use); });
}

void olDevicesPreferencesGUII::updateGUI()
{
    m_settings.showOnPage({&searchSpacemouse, &twoAxis, &helicopter, &fixedHeight, &height, &view, &rotationPivot,
                           &joystick, &joystickId});
}

void olDevicesPreferencesGUII::updateData() { m_settings.takeFromPage(*this); }
