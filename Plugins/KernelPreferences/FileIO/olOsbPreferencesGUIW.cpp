#include "FileIO/olOsbPreferencesGUIW.h"

#include "ui_olOsbPreferencesGUI.h"

olOsbPreferencesGUIW::olOsbPreferencesGUIW() = default;

olOsbPreferencesGUIW::~olOsbPreferencesGUIW() = default;
