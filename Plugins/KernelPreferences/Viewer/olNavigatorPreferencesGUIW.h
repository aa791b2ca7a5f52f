#pragma once

#include "Framework/olFormPage.h"

namespace Ui
{
class olNavigatorPreferencesGUI;
}

/// The page of the navigation settings.
class olNavigatorPreferencesGUIW : public olFormPage<Ui::olNavigatorPreferencesGUI>
{
    Q_OBJECT

public:
    olNavigatorPreferencesGUIW();
    ~olNavigatorPreferencesGUIW() override;

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
};
