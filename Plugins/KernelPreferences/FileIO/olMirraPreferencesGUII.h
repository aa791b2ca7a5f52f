#pragma once

#include "Framework/olModule.h"
#include "Framework/olSettingList.h"

#include <memory>

class olMirraPreferencesGUIW;

/// The options of the Mirra scene loader.
class olMirraPreferencesGUII : public olModule
{
    Q_OBJECT

public:
    olMirraPreferencesGUII();
    ~olMirraPreferencesGUII() override;

    void setDefaults(olMessage &, bool flag) override;
    void applyPreferences() override;
    void updateGUI() override;
    void updateData() override;

private:
    std::unique_ptr<olMirraPreferencesGUIW> m_page;
    olSettingList m_settings;
};
