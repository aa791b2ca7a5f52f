#include "Viewer/olDevicesPreferencesGUIW.h"

#include "Framework/olPageLayout.h"
#include "ui_olDevicesPreferencesGUI.h"

olDevicesPreferencesGUIW::olDevicesPreferencesGUIW() : m_form(std::make_unique<Ui::olDevicesPreferencesGUI>())
{
    m_form->setupUi(this);
    alignFields(*this);
}

olDevicesPreferencesGUIW::~olDevicesPreferencesGUIW() = default;
