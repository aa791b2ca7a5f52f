#pragma once

#include "Framework/olModule.h"
#include "Framework/olSettingList.h"

#include <memory>

class olDevicesPreferencesGUIW;

/// The devices for navigation beside mouse and keyboard: a 3D mouse and a joystick.
class olDevicesPreferencesGUII : public olModule
{
    Q_OBJECT

public:
    olDevicesPreferencesGUII();
    ~olDevicesPreferencesGUII() override;

    void setDefaults(olMessage &, bool flag) override;
    void applyPreferences() override;
    void updateGUI() override;
    void updateData() override;

private:
    std::unique_ptr<olDevicesPreferencesGUIW> m_page;
    olSettingList m_settings;
};
