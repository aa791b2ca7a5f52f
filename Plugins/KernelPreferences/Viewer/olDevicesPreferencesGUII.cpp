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
const olSetting<float> height{"Devices spacemouse height", 0.0f, inUnit("mm")};
const olSetting<bool> joystick{"Devices joystick", false};
const olSetting<int> joystickId{"Devices joystick id", 0, between(0, 99)};

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

olDevicesPreferencesGUII::olDevicesPreferencesGUII() : olModule(name(), name())
{
    const auto &form = page().form();
    settings().add(searchSpacemouse, olTrueInEssentials{form.searchSpacemouse});
    settings().add(view, form.viewMode);
    settings().add(rotationPivot, form.rotationPivot);
    settings().add(twoAxis, olTrueInEssentials{form.twoAxis});
    settings().add(helicopter, olTrueInEssentials{form.helicopter});
    settings().add(fixedHeight, form.useFixedHeight);
    settings().add(height, form.height);
    settings().add(joystick, form.useJoystick);
    settings().add(joystickId, form.joystickId);

    handOverPage();
}

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
    settings().showOnPage({&searchSpacemouse, &twoAxis, &helicopter, &fixedHeight, &height, &view, &rotationPivot,
                           &joystick, &joystickId});
}
