#pragma once

#include "Framework/olSettingList.h"
#include "Kernel/olPreferences.h"

#include <QObject>

#include <memory>

class olMarkerPreferencesGUIW;

/// How the render view marks what is selected, and what a click there selects.
class olMarkerPreferencesGUII : public QObject, public olPreferences
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
