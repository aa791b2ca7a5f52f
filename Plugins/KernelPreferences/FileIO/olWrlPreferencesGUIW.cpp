#include "FileIO/olWrlPreferencesGUIW.h"

#include "Framework/olPageLayout.h"
#include "ui_olWrlPreferencesGUI.h"

olWrlPreferencesGUIW::olWrlPreferencesGUIW() : m_form(std::make_unique<Ui::olWrlPreferencesGUI>())
{
    m_form->setupUi(this);
    alignFields(*this);
}

olWrlPreferencesGUIW::~olWrlPreferencesGUIW() = default;
