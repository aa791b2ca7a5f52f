#include "Viewer/olWebInterfacePreferencesGUII.h"

#include "Framework/olApply.h"
#include "Kernel/olController.h"
#include "Kernel/olWebInterface.h"
#include "Viewer/olWebInterfacePreferencesGUIW.h"
#include "ui_olWebInterfacePreferencesGUI.h"

namespace
{

// The 2 keeps the value of a former generation from opening a server.
const olSetting<bool> enableWebServer{"WebInterface enable web server2", false,
                                      warned(&olWebInterfacePreferencesGUIW::enablingQuestion).asFormHasIt()};
const olSetting<int> port{"WebInterface port", 8888, atLeast(0)};
const olSetting<int> sslPort{"WebInterface ssl port", 8444, atLeast(0)};
const olSetting<bool> localhostOnly{"WebInterface localhost only", false, atNextStart()};
const olSetting<bool> debugMode{"WebInterface debug mode", false};
const olSetting<bool> useWhiteList{"WebInterface use white list", false};
const olSetting<std::string> whiteList{"WebInterface white list", std::string()};
const olSetting<bool> securePython{"WebInterface secure python", true};

/// Whoever starts the process can keep the server off for good. Only the exact value counts.
bool isDisabledByEnvironment()
{
    const QByteArray mrvn = qgetenv("MRVN_ORLO_DISABLE_WEBINTERFACE");
    const QByteArray own = qgetenv("ORLO_DISABLE_WEBINTERFACE");
    return mrvn == "1" || own == "1";
}

/// Whether this process cannot do without the server, or was told to have it, whatever the settings say.
bool isServerRequired()
{
    return olController::isOServerNode() || olController::isViewer() || olController::getAnalysisMode() ||
           olController::getWebInterfacePort() > 0 || !olController::getWebInterfacePipe().empty();
}

void startServer()
{
    if (isServerRequired())
        olController::enableWebInterface(true);
    else
        applyIfRead(enableWebServer, &olController::enableWebInterface);
}

} // namespace

olWebInterfacePreferencesGUII::olWebInterfacePreferencesGUII()
    : olModule(tr("WebInterface"), QString()), m_disabledByEnvironment(isDisabledByEnvironment())
{
    const auto &form = page().form();
    settings().add(enableWebServer, form.enableWebServer);
    settings().add(port, form.port);
    settings().add(sslPort, form.sslPort);
    settings().add(localhostOnly, form.localhostOnly);
    settings().add(debugMode, form.debugMode);
    settings().add(useWhiteList, form.allowedHosts);
    settings().add(whiteList, form.whiteList);
    settings().add(securePython, form.securePython);

    // What the environment forbids is not offered: the page exists, but stays away from the dialog.
    if (m_disabledByEnvironment) {
        page().neverAsk();
        settings().askNothing();
        return;
    }
    handOverPage();
    // On a render server node the server runs in any case: there is nothing to confirm.
    if (olController::isOServerNode())
        settings().askNothing();
    else
        page().connectSlots();
}

void olWebInterfacePreferencesGUII::applyPreferences()
{
    const olApply apply(*this);
    if (!apply.anyChanged(enableWebServer, port, sslPort, localhostOnly, debugMode, useWhiteList, whiteList,
                          securePython))
        return;

    // The server reads its settings from the record when it starts, so any change stops it first. This also holds it
    // down where the environment forbids it.
    olController::enableWebInterface(false);
    if (!m_disabledByEnvironment)
        startServer();

    if (const auto debug = read(debugMode)) {
        if (olWebInterface *server = olController::getWebInterface())
            server->setDebugMode(*debug);
    }
}

void olWebInterfacePreferencesGUII::updateGUI()
{
    const olWebInterfacePreferencesGUIW::Filling filling(page());
    // A list that cannot be read shows as none, never as the one before.
    page().form().whiteList->clear();
    settings().showOnPage();
}
