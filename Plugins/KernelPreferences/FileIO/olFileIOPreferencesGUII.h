#pragma once

#include "Framework/olModule.h"
#include "Framework/olSettingList.h"

#include <memory>

class olFileIOPreferencesGUIW;

/// What holds for every import, whatever the format, and where textures are searched.
class olFileIOPreferencesGUII : public olModule
{
    Q_OBJECT

public:
    olFileIOPreferencesGUII();
    ~olFileIOPreferencesGUII() override;

    void setDefaults(olMessage &, bool flag) override;
    void applyPreferences() override;
    void updateGUI() override;
    void updateData() override;

private:
    void applyTmpPath() const;

    std::unique_ptr<olFileIOPreferencesGUIW> m_page;
    olSettingList m_settings;
};
