#pragma once

#include "Framework/olFormPage.h"

namespace Ui
{
class olVirtualRealityPreferencesGUI;
}

/// The page of the immersive sessions' and the headset's settings. Only what the chosen render mode uses can be edited.
class olVirtualRealityPreferencesGUIW : public olFormPage<Ui::olVirtualRealityPreferencesGUI>
{
    Q_OBJECT

public:
    olVirtualRealityPreferencesGUIW();
    ~olVirtualRealityPreferencesGUIW() override;

public slots:
    void followRenderMode();
};
