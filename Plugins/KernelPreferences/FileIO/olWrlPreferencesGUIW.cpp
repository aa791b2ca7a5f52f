#include "FileIO/olWrlPreferencesGUIW.h"

#include "ui_olWrlPreferencesGUI.h"

olWrlPreferencesGUIW::olWrlPreferencesGUIW() = default;

olWrlPreferencesGUIW::~olWrlPreferencesGUIW() = default;
