#include "Viewer/olMainWindowPreferencesGUIW.h"

#include "ui_olMainWindowPreferencesGUI.h"

olMainWindowPreferencesGUIW::olMainWindowPreferencesGUIW() { m_form->windowOpacity->setSteps(0.01, 0.1); }

olMainWindowPreferencesGUIW::~olMainWindowPreferencesGUIW() = default;
