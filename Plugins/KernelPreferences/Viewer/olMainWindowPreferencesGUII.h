#pragma once

#include "Framework/olModule.h"
#include "Framework/olSettingList.h"

#include <memory>

class olMainWindowPreferencesGUIW;

/// The main window: frame rate, opacity, docking, texts of tool buttons, and the language of the user interface.
class olMainWindowPreferencesGUII : public olModule
{
    Q_OBJECT

public:
    olMainWindowPreferencesGUII();
    ~olMainWindowPreferencesGUII() override;

    void setDefaults(olMessage &, bool flag) override;
    void applyPreferences() override;
    void updateGUI() override;
    void updateData() override;

private:
    void askForRestart();

    std::unique_ptr<olMainWindowPreferencesGUIW> m_page;
    olSettingList m_settings;
};
