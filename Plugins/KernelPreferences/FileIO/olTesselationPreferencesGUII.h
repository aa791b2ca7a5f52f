#pragma once

#include "Framework/olModule.h"
#include "Framework/olSettingList.h"

#include <memory>

class olTesselationPreferencesGUIW;

/// How the host's geometry optimizer tessellates imported surfaces anew.
class olTesselationPreferencesGUII : public olModule
{
    Q_OBJECT

public:
    olTesselationPreferencesGUII();
    ~olTesselationPreferencesGUII() override;

    void setDefaults(olMessage &, bool flag) override;
    void applyPreferences() override;
    void updateGUI() override;
    void updateData() override;

private:
    std::unique_ptr<olTesselationPreferencesGUIW> m_page;
    olSettingList m_settings;
};
