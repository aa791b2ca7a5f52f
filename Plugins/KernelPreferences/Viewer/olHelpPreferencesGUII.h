#pragma once

#include "Framework/olModule.h"
#include "Framework/olSettingList.h"

#include <memory>

class olHelpPreferencesGUIW;

/// Where the help comes from, and the kind of help that pops up over controls.
class olHelpPreferencesGUII : public olModule
{
    Q_OBJECT

public:
    olHelpPreferencesGUII();
    ~olHelpPreferencesGUII() override;

    void setDefaults(olMessage &, bool flag) override;
    void applyPreferences() override;
    void updateGUI() override;
    void updateData() override;

private:
    std::unique_ptr<olHelpPreferencesGUIW> m_page;
    olSettingList m_settings;
};
