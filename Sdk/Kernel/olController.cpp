#include "Kernel/olController.h"

#include "Kernel/olWebInterface.h"
#include "State/olHostCalls.h"
#include "Utilities/olMessage.h"

namespace
{

using State = olHostState;

constexpr olHostCalls calls("olController");

} // namespace

bool olController::isOrloEssentials() { return olHostState::the().edition == olEdition::Essentials; }

bool olController::isOrloDesign() { return olHostState::the().edition == olEdition::Design; }

bool olController::isOrloProfessional() { return olHostState::the().edition == olEdition::Professional; }

bool olController::isOrloEnterprise() { return olHostState::the().edition == olEdition::Enterprise; }

bool olController::isViewer() { return olHostState::the().viewer; }
bool olController::isOServerNode() { return olHostState::the().renderServerNode; }
bool olController::getAnalysisMode() { return olHostState::the().analysisMode; }
int olController::getDisplayLanguage() { return olHostState::the().displayLanguage; }
void olController::setSleepTime(unsigned milliseconds) { calls.set("setSleepTime", &State::sleepTime, milliseconds); }
void olController::showFPS(bool show) { calls.set("showFPS", &State::fpsShown, show); }
void olController::setWindowOpacity(double opacity) { calls.set("setWindowOpacity", &State::windowOpacity, opacity); }
void olController::setMainWindowDocking(bool enable)
{
    calls.set("setMainWindowDocking", &State::mainWindowDocking, enable);
}
void olController::showButtonText(bool show) { calls.set("showButtonText", &State::buttonTextShown, show); }

void olController::setJoystickNavigation(int id, bool enable)
{
    olJournal::call("olController::setJoystickNavigation", id, enable);
    olHostState &state = olHostState::the();
    state.joystickId = id;
    state.joystickNavigation = enable;
}

void olController::setShowImportOptions(bool show)
{
    calls.set("setShowImportOptions", &State::importOptionsShown, show);
}
void olController::setImportOptionsCenterInOrigin(bool center)
{
    calls.set("setImportOptionsCenterInOrigin", &State::importCenteredInOrigin, center);
}
void olController::setImportOptionsPutOnGround(bool put)
{
    calls.set("setImportOptionsPutOnGround", &State::importPutOnGround, put);
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
    calls.set("enableWebInterface", &State::webInterfaceWanted, enable);
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
