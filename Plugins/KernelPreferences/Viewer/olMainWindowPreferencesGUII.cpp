#include "Viewer/olMainWindowPreferencesGUII.h"

#include "Framework/olApply.h"
#include "Kernel/olController.h"
#include "Viewer/olMainWindowPreferencesGUIW.h"
#include "ui_olMainWindowPreferencesGUI.h"

#include <QMessageBox>

namespace
{

bool isDesignOrEssentials() { return olController::isOrloDesign() || olController::isOrloEssentials(); }

const olSetting<bool> showToolButtonsText{"MainWindow show tool buttons text", &isDesignOrEssentials, atNextStart()};
const olSetting<bool> showButtonText{"MainWindow show button text", true, atNextStart()};
const olSetting<bool> showFps{"MainWindow show fps", false};
const olSetting<bool> redirectOsgLog{"MainWindow redirect osg log", false, atNextStart()};
// A window that lets everything shine through could not be found again.
const olSetting<double> windowOpacity{"MainWindow window opacity", 1.0, between(0.1, 1.0).asShare()};
const olSetting<bool> disableDocking{"MainWindow disable docking", false};
// On a page that was never filled no language was chosen: it must not be taken for a change.
const olSetting<int> userLanguage{"MainWindow user language", -1, atNextStart().asFormHasIt()};

constexpr int english = 0;

/// The host's number of a stored language; what it does not know is English.
int displayLanguage(int stored) { return stored >= 1 && stored <= 3 ? stored : english; }

} // namespace

olMainWindowPreferencesGUII::olMainWindowPreferencesGUII() : olModule(tr("MainWindow"), QString())
{
    const auto &form = page().form();
    settings().addWithoutControl(showToolButtonsText);
    settings().add(showButtonText, form.showButtonText);
    settings().add(showFps, form.showFps);
    settings().add(redirectOsgLog, form.redirectOsgLog);
    settings().add(windowOpacity, form.windowOpacity);
    settings().add(disableDocking, form.disableDocking);
    settings().add(userLanguage, form.userLanguage);

    handOverPage();
}

void olMainWindowPreferencesGUII::setDefaults(olMessage &, bool flag)
{
    settings().writeDefaults(flag);

    // Read back, as a language that was stored before may have stayed.
    const auto language = read(userLanguage);
    if (language && displayLanguage(*language) != olController::getDisplayLanguage())
        askForRestart();
}

// Deliberately without asking what changed: the window always becomes what the record says. The log and the language
// are not applied, the host reads them when it starts. The fallback for the button text is not its default.
void olMainWindowPreferencesGUII::applyPreferences()
{
    olController::showFPS(readOr(showFps, false));
    olController::setWindowOpacity(readOr(windowOpacity, 1.0));
    olController::setMainWindowDocking(!readOr(disableDocking, false));
    olController::showButtonText(readOr(showButtonText, false));
}

void olMainWindowPreferencesGUII::updateData()
{
    // Stored plainly, and nothing is reported unchanged: apply does not ask.
    settings().storeFromPage({&showFps, &redirectOsgLog, &showButtonText});

    // The indices themselves count here: from a language never chosen to English is a change as well. Opacity and
    // docking are stored once the box is closed.
    const int before = readOr(userLanguage, english);
    settings().storeFromPage({&userLanguage});
    if (readOr(userLanguage, before) != before)
        askForRestart();

    settings().storeFromPage({&windowOpacity, &disableDocking});
}

void olMainWindowPreferencesGUII::askForRestart()
{
    QMessageBox::information(&page(), tr("Language Preferences Change"),
                             tr("Please restart ORLO so that your language changes can take effect."), QMessageBox::Ok);
}
