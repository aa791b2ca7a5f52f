#pragma once

#include "Framework/olFormPage.h"

namespace Ui
{
class olDevicesPreferencesGUI;
}

/// The page of the device settings.
class olDevicesPreferencesGUIW : public olFormPage<Ui::olDevicesPreferencesGUI>
{
    Q_OBJECT

public:
    olDevicesPreferencesGUIW();
    ~olDevicesPreferencesGUIW() override;
};
