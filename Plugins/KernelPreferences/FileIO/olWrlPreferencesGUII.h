#pragma once

#include "Framework/olModule.h"
#include "Framework/olSettingList.h"

#include <memory>

class olWrlPreferencesGUIW;

/// The options of the VRML reader and writer.
class olWrlPreferencesGUII : public olModule
{
    Q_OBJECT

public:
    olWrlPreferencesGUII();
    ~olWrlPreferencesGUII() override;

    void setDefaults(olMessage &, bool flag) override;
    void applyPreferences() override;
    void updateGUI() override;
    void updateData() override;

private:
    std::unique_ptr<olWrlPreferencesGUIW> m_page;
    olSettingList m_settings;
};
