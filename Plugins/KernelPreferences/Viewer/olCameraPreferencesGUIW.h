#pragma once

#include "Framework/olFormPage.h"

namespace Ui
{
class olCameraPreferencesGUI;
}

/// The page of the camera settings.
class olCameraPreferencesGUIW : public olFormPage<Ui::olCameraPreferencesGUI>
{
    Q_OBJECT

public:
    olCameraPreferencesGUIW();
    ~olCameraPreferencesGUIW() override;
};
