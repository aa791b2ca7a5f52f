#include "Viewer/olHelpPreferencesGUII.h"

#include "Framework/olApply.h"
#include "Kernel/olController.h"
#include "Utilities/olMessage.h"
#include "Utilities/olPlatform.h"
#include "Viewer/olHelpPreferencesGUIW.h"
#include "ui_olHelpPreferencesGUI.h"

namespace
{

// Deliberately plain text: the data directory is taken as it comes, and backslashes follow it on every system.
QString installedHelp() { return "file:///" + olPlatform::getDataDir() + "\\ToolClip\\Help"; }

const olSetting<int> location{"Help Location", 0};
const olSetting<QString> path{"Help Path", &installedHelp, asFormHasIt()};
const olSetting<int> popup{"Help Popup", 0};

constexpr int simpleToolclips = 1;
constexpr int wholeApplication = 0;

void updateToolclips(int popupHelp)
{
    olMessage message;
    message.set("useSimpleToolclips", boost::any(popupHelp == simpleToolclips), true);
    olController::call("updateToolclip", message, wholeApplication);
}

} // namespace

olHelpPreferencesGUII::olHelpPreferencesGUII() : olModule(tr("Help"), QString())
{
    const auto &form = page().form();
    settings().add(location, form.location);
    settings().add(path, form.path);
    settings().add(popup, form.popup);

    handOverPage();
}

void olHelpPreferencesGUII::applyPreferences()
{
    const olApply apply(*this);

    // Deliberately read and not handed on: the host looks them up when help is opened, and here a value of the wrong
    // type gets reported.
    apply.ifChanged(location, [](int) {});
    apply.ifChanged(path, [](const QString &) {});

    apply.ifChanged(popup, &updateToolclips);
}

void olHelpPreferencesGUII::updateGUI()
{
    settings().showOnPage();
    // Also where the index stayed as it was, so that no signal told it.
    page().indexChangedLocation(page().form().location->currentIndex());
}
