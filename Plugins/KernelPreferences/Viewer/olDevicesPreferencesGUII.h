#pragma once

#include "Framework/olModule.h"

class olDevicesPreferencesGUIW;

/// The devices for navigation beside mouse and keyboard: a 3D mouse and a joystick.
class olDevicesPreferencesGUII : public olModule<olDevicesPreferencesGUIW>
{
    Q_OBJECT

public:
    olDevicesPreferencesGUII();

    void applyPreferences() override;
    void updateGUI() override;
};
