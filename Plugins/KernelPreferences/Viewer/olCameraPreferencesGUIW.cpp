#include "Viewer/olCameraPreferencesGUIW.h"

#include "ui_olCameraPreferencesGUI.h"

olCameraPreferencesGUIW::olCameraPreferencesGUIW() : m_form(std::make_unique<Ui::olCameraPreferencesGUI>())
{
    m_form->setupUi(this);
    m_form->fieldOfView->setSteps(1.0, 10.0);
}

olCameraPreferencesGUIW::~olCameraPreferencesGUIW() = default;
