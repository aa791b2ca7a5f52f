#pragma once

#include "Framework/olModule.h"
#include "Framework/olSettingList.h"

#include <memory>

class olNavigatorPreferencesGUIW;

/// How the mouse moves the camera in the render view.
class olNavigatorPreferencesGUII : public olModule
{
    Q_OBJECT

public:
    olNavigatorPreferencesGUII();
    ~olNavigatorPreferencesGUII() override;

    void setDefaults(olMessage &, bool flag) override;
    void applyPreferences() override;
    void updateGUI() override;
    void updateData() override;

private:
    std::unique_ptr<olNavigatorPreferencesGUIW> m_page;
    olSettingList m_settings;
};
