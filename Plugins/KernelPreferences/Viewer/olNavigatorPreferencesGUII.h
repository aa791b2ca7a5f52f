#pragma once

#include "Framework/olModule.h"

class olNavigatorPreferencesGUIW;

/// How the mouse moves the camera in the render view.
class olNavigatorPreferencesGUII : public olModule<olNavigatorPreferencesGUIW>
{
    Q_OBJECT

public:
    olNavigatorPreferencesGUII();

    void applyPreferences() override;
    void updateGUI() override;
};
