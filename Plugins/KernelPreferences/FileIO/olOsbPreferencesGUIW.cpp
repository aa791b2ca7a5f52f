#include "FileIO/olOsbPreferencesGUIW.h"

#include "ui_olOsbPreferencesGUI.h"

olOsbPreferencesGUIW::olOsbPreferencesGUIW() : m_form(std::make_unique<Ui::olOsbPreferencesGUI>())
{
    m_form->setupUi(this);
}

olOsbPreferencesGUIW::~olOsbPreferencesGUIW() = default;
