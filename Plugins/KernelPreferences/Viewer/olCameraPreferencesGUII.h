#pragma once

#include "Framework/olSettingList.h"
#include "Kernel/olPreferences.h"

#include <QObject>

#include <memory>

class olCameraPreferencesGUIW;

/// The field of view, the stereo parameters and the powerwall of the render view.
class olCameraPreferencesGUII : public QObject, public olPreferences
{
    Q_OBJECT

public:
    olCameraPreferencesGUII();
    ~olCameraPreferencesGUII() override;

    void setDefaults(olMessage &, bool flag) override;
    void applyPreferences() override;
    void updateGUI() override;
    void updateData() override;

private:
    std::unique_ptr<olCameraPreferencesGUIW> m_page;
    olSettingList m_settings;
};
