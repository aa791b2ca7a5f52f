#include "Viewer/olDevicesPreferencesGUIW.h"

#include "ui_olDevicesPreferencesGUI.h"

olDevicesPreferencesGUIW::olDevicesPreferencesGUIW() : m_form(std::make_unique<Ui::olDevicesPreferencesGUI>())
{
    m_form->setupUi(this);
}

olDevicesPreferencesGUIW::~olDevicesPreferencesGUIW() = default;
