#pragma once

#include "Framework/olPageWidget.h"

#include <memory>

namespace Ui
{
class olVirtualRealityPreferencesGUI;
}

/// The page of the immersive sessions' and the headset's settings. Only what the chosen render mode uses can be edited.
class olVirtualRealityPreferencesGUIW : public olPageWidget
{
    Q_OBJECT

public:
    olVirtualRealityPreferencesGUIW();
    ~olVirtualRealityPreferencesGUIW() override;

    [[nodiscard]] const Ui::olVirtualRealityPreferencesGUI &form() const { return *m_form; }

public slots:
    void followRenderMode();

private:
    std::unique_ptr<Ui::olVirtualRealityPreferencesGUI> m_form;
};
