#pragma once

#include "Framework/olModule.h"
#include "Framework/olSettingList.h"

#include <memory>

class olWebInterfacePreferencesGUIW;

/// The host's built-in web server: whether it runs, where it listens and whom it answers.
class olWebInterfacePreferencesGUII : public olModule
{
    Q_OBJECT

public:
    olWebInterfacePreferencesGUII();
    ~olWebInterfacePreferencesGUII() override;

    void setDefaults(olMessage &, bool flag) override;
    void applyPreferences() override;
    void updateGUI() override;
    void updateData() override;

private:
    std::unique_ptr<olWebInterfacePreferencesGUIW> m_page;
    olSettingList m_settings;
    const bool m_disabledByEnvironment;
};
