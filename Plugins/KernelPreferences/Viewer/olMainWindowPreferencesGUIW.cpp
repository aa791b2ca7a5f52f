#include "Viewer/olMainWindowPreferencesGUIW.h"

#include "ui_olMainWindowPreferencesGUI.h"

olMainWindowPreferencesGUIW::olMainWindowPreferencesGUIW() : m_form(std::make_unique<Ui::olMainWindowPreferencesGUI>())
{
    m_form->setupUi(this);
    m_form->windowOpacity->setSteps(0.01, 0.1);
}

olMainWindowPreferencesGUIW::~olMainWindowPreferencesGUIW() = default;
