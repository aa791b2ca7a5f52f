#include "Viewer/olDevicesPreferencesGUIW.h"

#include "ui_olDevicesPreferencesGUI.h"

olDevicesPreferencesGUIW::olDevicesPreferencesGUIW() = default;

olDevicesPreferencesGUIW::~olDevicesPreferencesGUIW() = default;
