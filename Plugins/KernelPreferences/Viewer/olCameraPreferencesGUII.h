#pragma once

#include "Framework/olModule.h"

class olCameraPreferencesGUIW;

/// The field of view, the stereo parameters and the powerwall of the render view.
class olCameraPreferencesGUII : public olModule<olCameraPreferencesGUIW>
{
    Q_OBJECT

public:
    olCameraPreferencesGUII();

    void applyPreferences() override;
};
