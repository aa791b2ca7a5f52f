#pragma once

#include "Framework/olPageWidget.h"

#include <memory>

namespace Ui
{
class olNavigatorPreferencesGUI;
}

/// The page of the navigation settings.
class olNavigatorPreferencesGUIW : public olPageWidget
{
    Q_OBJECT

public:
    olNavigatorPreferencesGUIW();
    ~olNavigatorPreferencesGUIW() override;

    [[nodiscard]] const Ui::olNavigatorPreferencesGUI &form() const { return *m_form; }

    /// Enables and disables what depends on other controls, by what these hold now.
    void updateEnabling();

public slots:
    void toggledAnimateCameraChange(bool on);
    void changedInteractionMode(int index);
    void toggledPivotBasedPanning(bool on);
    void changedNavigationSpeedMode(int index);
    void toggledOrbitMode(bool on);

private:
    void fillCombos();
    void connectRules();
    void updatePanning();

    std::unique_ptr<Ui::olNavigatorPreferencesGUI> m_form;
};
