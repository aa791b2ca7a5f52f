#pragma once

#include "Framework/olModule.h"
#include "Framework/olSettingList.h"

#include <memory>

class olCameraPreferencesGUIW;

/// The field of view, the stereo parameters and the powerwall of the render view.
class olCameraPreferencesGUII : public olModule
{
    Q_OBJECT

public:
    olCameraPreferencesGUII();
    ~olCameraPreferencesGUII() override;

    void setDefaults(olMessage &, bool flag) override;
    void applyPreferences() override;
    void updateGUI() override;
    void updateData() override;

private:
    std::unique_ptr<olCameraPreferencesGUIW> m_page;
    olSettingList m_settings;
};
