#include "Kernel/olController.h"

#include "Kernel/olWebInterface.h"
#include "State/olHostState.h"
#include "State/olJournal.h"
#include "Utilities/olMessage.h"

bool olController::isOrloEssentials() { return olHostState::the().edition == olEdition::Essentials; }

bool olController::isOrloDesign() { return olHostState::the().edition == olEdition::Design; }

bool olController::isOrloProfessional() { return olHostState::the().edition == olEdition::Professional; }

bool olController::isOrloEnterprise() { return olHostState::the().edition == olEdition::Enterprise; }

bool olController::isViewer() { return olHostState::the().viewer; }

bool olController::isOServerNode() { return olHostState::the().renderServerNode; }

bool olController::getAnalysisMode() { return olHostState::the().analysisMode; }

int olController::getDisplayLanguage() { return olHostState::the().displayLanguage; }

void olController::setSleepTime(unsigned milliseconds)
{
    olJournal::call("olController::setSleepTime", milliseconds);
    olHostState::the().sleepTime = milliseconds;
}

void olController::showFPS(bool show)
{
    olJournal::call("olController::showFPS", show);
    olHostState::the().fpsShown = show;
}

void olController::setWindowOpacity(double opacity)
{
    olJournal::call("olController::setWindowOpacity", opacity);
    olHostState::the().windowOpacity = opacity;
}

void olController::setMainWindowDocking(bool enable)
{
    olJournal::call("olController::setMainWindowDocking", enable);
    olHostState::the().mainWindowDocking = enable;
}

void olController::showButtonText(bool show)
{
    olJournal::call("olController::showButtonText", show);
    olHostState::the().buttonTextShown = show;
}

void olController::setJoystickNavigation(int id, bool enable)
{
    olJournal::call("olController::setJoystickNavigation", id, enable);
    olHostState &state = olHostState::the();
    state.joystickId = id;
    state.joystickNavigation = enable;
}

void olController::setShowImportOptions(bool show)
{
    olJournal::call("olController::setShowImportOptions", show);
    olHostState::the().importOptionsShown = show;
}

void olController::setImportOptionsCenterInOrigin(bool center)
{
    olJournal::call("olController::setImportOptionsCenterInOrigin", center);
    olHostState::the().importCenteredInOrigin = center;
}

void olController::setImportOptionsPutOnGround(bool put)
{
    olJournal::call("olController::setImportOptionsPutOnGround", put);
    olHostState::the().importPutOnGround = put;
}

int olController::getWebInterfacePort() { return olHostState::the().webInterfacePort; }

std::string olController::getWebInterfacePipe() { return olHostState::the().webInterfacePipe; }

olWebInterface *olController::getWebInterface()
{
    static olWebInterface webInterface;
    const olHostState &host = olHostState::the();
    return host.webInterface || host.webInterfaceRunning ? &webInterface : nullptr;
}

void olController::enableWebInterface(bool enable)
{
    olJournal::call("olController::enableWebInterface", enable);
    olHostState::the().webInterfaceWanted = enable;
}

void olController::call(const std::string &command, const olMessage &arguments, int receiver)
{
    olJournal::call("olController::call", command, arguments, receiver);
    if (command != "updateToolclip")
        return;
    const bool *simple = boost::any_cast<bool>(&arguments.get("useSimpleToolclips"));
    if (simple)
        olHostState::the().simpleToolclips = *simple;
}
