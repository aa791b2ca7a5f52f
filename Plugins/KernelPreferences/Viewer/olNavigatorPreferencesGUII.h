#pragma once

#include "Framework/olSettingList.h"
#include "Kernel/olPreferences.h"

#include <QObject>

#include <memory>

class olNavigatorPreferencesGUIW;

/// How the mouse moves the camera in the render view.
class olNavigatorPreferencesGUII : public QObject, public olPreferences
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
