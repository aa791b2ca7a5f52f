#pragma once

#include "Framework/olPageWidget.h"

#include <memory>

namespace Ui
{
class olCameraPreferencesGUI;
}

/// The page of the camera settings.
class olCameraPreferencesGUIW : public olPageWidget
{
    Q_OBJECT

public:
    olCameraPreferencesGUIW();
    ~olCameraPreferencesGUIW() override;

    [[nodiscard]] const Ui::olCameraPreferencesGUI &form() const { return *m_form; }

private:
    std::unique_ptr<Ui::olCameraPreferencesGUI> m_form;
};
