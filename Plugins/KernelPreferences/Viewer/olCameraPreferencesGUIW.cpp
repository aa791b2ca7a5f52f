#include "Viewer/olCameraPreferencesGUIW.h"

#include "ui_olCameraPreferencesGUI.h"

olCameraPreferencesGUIW::olCameraPreferencesGUIW() { m_form->fieldOfView->setSteps(1.0, 10.0); }

olCameraPreferencesGUIW::~olCameraPreferencesGUIW() = default;
