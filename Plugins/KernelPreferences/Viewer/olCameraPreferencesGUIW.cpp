#include "Viewer/olCameraPreferencesGUIW.h"

#include "Framework/olValidators.h"
#include "ui_olCameraPreferencesGUI.h"

olCameraPreferencesGUIW::olCameraPreferencesGUIW() : m_form(std::make_unique<Ui::olCameraPreferencesGUI>())
{
    m_form->setupUi(this);
    m_form->fieldOfView->setRange(1.0, 100.0);
    m_form->fieldOfView->setSteps(1.0, 10.0);
    for (QLineEdit *field : {m_form->eyeSeparation, m_form->zeroParallaxDistance, m_form->projectionWidth,
                             m_form->projectionHeight, m_form->projectionDistance})
        acceptNumbers(field);
}

olCameraPreferencesGUIW::~olCameraPreferencesGUIW() = default;
