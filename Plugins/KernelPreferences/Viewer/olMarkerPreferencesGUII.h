#pragma once

#include "Framework/olModule.h"
#include "Framework/olSettingList.h"

#include <memory>

class olMarkerPreferencesGUIW;

/// How the render view marks what is selected, and what a click there selects.
class olMarkerPreferencesGUII : public olModule
{
    Q_OBJECT

public:
    olMarkerPreferencesGUII();
    ~olMarkerPreferencesGUII() override;

    void setDefaults(olMessage &, bool flag) override;
    void applyPreferences() override;
    void updateGUI() override;
    void updateData() override;

private:
    std::unique_ptr<olMarkerPreferencesGUIW> m_page;
    olSettingList m_settings;
};
