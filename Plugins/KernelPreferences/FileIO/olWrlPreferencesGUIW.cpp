#include "FileIO/olWrlPreferencesGUIW.h"

#include "ui_olWrlPreferencesGUI.h"

olWrlPreferencesGUIW::olWrlPreferencesGUIW() : m_form(std::make_unique<Ui::olWrlPreferencesGUI>())
{
    m_form->setupUi(this);
}

olWrlPreferencesGUIW::~olWrlPreferencesGUIW() = default;
