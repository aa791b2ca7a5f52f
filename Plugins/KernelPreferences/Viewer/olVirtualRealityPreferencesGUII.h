#pragma once

#include "Framework/olServiceSettingList.h"
#include "KernelServices/olPreferencesCategory.h"

#include <QObject>

#include <memory>

class olVirtualRealityPreferencesGUIW;

/// Immersive sessions and the StarVR headset. A category: its values live in the host's preferences service.
class olVirtualRealityPreferencesGUII : public QObject, public olPreferencesCategory
{
    Q_OBJECT

public:
    olVirtualRealityPreferencesGUII();
    ~olVirtualRealityPreferencesGUII() override;

    void setDefaults(olMessage &, bool flag) override;
    void applyPreferences() override;
    void updateGUI() override;
    void updateData() override;

private:
    template <class T, class Call> void applyIfChanged(const olSetting<T> &setting, Call &&call) const;
    void applyToSessions() const;
    void applyToHeadset() const;
    [[nodiscard]] bool mustHeadsetRestart() const;

    std::unique_ptr<olVirtualRealityPreferencesGUIW> m_page;
    olServiceSettingList m_settings;
};
