#pragma once

#include "Framework/olModule.h"
#include "KernelServices/olPreferencesCategory.h"

class olVirtualRealityPreferencesGUIW;

/// Immersive sessions and the StarVR headset. A category: its values live in the host's preferences service.
class olVirtualRealityPreferencesGUII : public olModule<olVirtualRealityPreferencesGUIW, olPreferencesCategory>
{
    Q_OBJECT

public:
    olVirtualRealityPreferencesGUII();

    void applyPreferences() override;

private:
    template <class T, class Call> void applyIfChanged(const olSetting<T> &setting, Call &&call) const;
    void applyToSessions() const;
    void applyToHeadset() const;
    [[nodiscard]] bool mustHeadsetRestart() const;
};
