#pragma once

#include "Utilities/olExport.h"

#include <string>

class olMessage;
class olWebInterface;

/// The application: its edition, its main window and what it runs beside the view.
class ORLO_SDK_EXPORT olController
{
public:
    // The process

    /// Exactly one of the four is true.
    static bool isOrloEssentials();
    static bool isOrloDesign();
    static bool isOrloProfessional();
    static bool isOrloEnterprise();

    static bool isViewer();

    /// Whether this process renders for another one.
    static bool isOServerNode();

    static bool getAnalysisMode();

    /// 0 English, 1 Chinese, 2 Japanese, 3 Korean.
    static int getDisplayLanguage();

    /// How long the main thread sleeps between two frames, in milliseconds; 0 never sleeps.
    static void setSleepTime(unsigned milliseconds);

    // Main window

    static void showFPS(bool show);

    /// From 0, invisible, to 1.
    static void setWindowOpacity(double opacity);

    /// Whether panels can be docked.
    static void setMainWindowDocking(bool enable);

    /// Acts when tool bars are next built.
    static void showButtonText(bool show);

    /// The first joystick is 0. Where there is none of that number the log says so and nothing else happens; a second
    /// call looks again.
    static void setJoystickNavigation(int id, bool enable);

    // The import dialog

    static void setShowImportOptions(bool show);
    static void setImportOptionsCenterInOrigin(bool center);
    static void setImportOptionsPutOnGround(bool put);

    // The web server

    /// As given to the process from outside; 0 and empty where nothing was given.
    static int getWebInterfacePort();
    static std::string getWebInterfacePipe();

    /// Owned by the host; null where the host has no web server.
    static olWebInterface *getWebInterface();

    /// Starts the server with what the settings record says then, or stops it.
    static void enableWebInterface(bool enable);

    /// Sends a command with its arguments to whoever in the host knows it; an unknown one is nobody's. `receiver` is 0
    /// for the whole application.
    static void call(const std::string &command, const olMessage &arguments, int receiver);
};
