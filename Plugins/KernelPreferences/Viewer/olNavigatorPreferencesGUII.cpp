#include "Viewer/olNavigatorPreferencesGUII.h"

#include "Framework/olApply.h"
#include "Kernel/olController.h"
#include "Kernel/olOSGWidget.h"
#include "Viewer/olNavigatorPreferencesGUIW.h"
#include "ui_olNavigatorPreferencesGUI.h"

namespace
{

// The numbers that a box or another setting enables stand as the form has them until the page is filled.
const olSettingTraits speedTraits = between(0.0, 1000.0).withDecimals(2);

const olSetting<int> navigationMode{"Navigator mode", olOSGWidget::TwoAxis};
const olSetting<bool> autoCenter{"Navigator auto center", false};
const olSetting<bool> invertZoom{"Navigator invert zoom", false};
const olSetting<bool> invertWheelZoom{"Navigator invert wheel zoom", false};
const olSetting<bool> animateCamera{"Navigator animate camera", true, asFormHasIt()};
const olSetting<float> animationDuration{"Navigator animate camera duration", 20.0f, atLeast(0.0).asFormHasIt()};
const olSetting<bool> pivotBasedPanning{"Navigator pivot based panning", false};
const olSetting<float> panningSpeed{"Navigator panning speed", 1.0f, speedTraits.asFormHasIt()};
const olSetting<int> speedMode{"Navigator speed mode", 1};
const olSetting<float> dollySpeed{"Navigator dolly speed", 1.0f, speedTraits};
const olSetting<int> dollyAxis{"Navigator dolly axis", 0};
const olSetting<bool> dollyToPivot{"Navigator dolly to pivot", false};
const olSetting<bool> orbitMode{"Navigator orbit mode", false};
const olSetting<int> orbitDetectionArea{"Navigator orbit detection area", 40,
                                        between(0, 99999).inUnit("px").asFormHasIt()};
const olSetting<int> orbitDetectionTime{"Navigator orbit detection time", 100,
                                        between(0, 99999).inUnit("ms").asFormHasIt()};

// Without the prefix of the others, on purpose: users' stored preferences hold it so.
const olSetting<int> interactionMode{"Interaction mode", olOSGWidget::Orlo};

constexpr int allViews = -1;

/// Both directions are inverted in analysis mode, whatever is stored or missing; the record keeps what it holds.
void applyInversion(const olSetting<bool> &setting, void (*invert)(bool))
{
    if (olController::getAnalysisMode())
        invert(true);
    else
        applyIfRead(setting, invert);
}

} // namespace

olNavigatorPreferencesGUII::olNavigatorPreferencesGUII() : olModule(tr("Navigator"), QString())
{
    const auto &form = page().form();
    settings().add(navigationMode, byData(form.navigationMode));
    settings().add(autoCenter, form.autoCenter);
    settings().add(invertZoom, form.invertDollyAxis);
    settings().add(invertWheelZoom, form.invertWheelDolly);
    settings().add(animateCamera, form.animateCamera);
    settings().add(animationDuration, form.duration);
    settings().add(pivotBasedPanning, form.pivotBasedPanning, &olOSGWidget::getNavUsePivotBasedPanning);
    settings().add(panningSpeed, form.panningSpeed, &olOSGWidget::getNavPanningSpeed);
    settings().add(speedMode, form.speedMode, &olOSGWidget::getNavSpeedMode);
    settings().add(dollySpeed, form.dollySpeed, &olOSGWidget::getNavDollySpeed);
    settings().add(dollyAxis, form.dollyAxis, &olOSGWidget::getNavDollyAxis);
    settings().add(dollyToPivot, form.dollyToPivot, &olOSGWidget::getNavDollyToPivot);
    settings().add(orbitMode, form.orbitMode, &olOSGWidget::getNavOrbitMode);
    settings().add(orbitDetectionArea, form.orbitDetectionArea, &olOSGWidget::getNavOrbitDetectionArea);
    settings().add(orbitDetectionTime, form.orbitDetectionTime, &olOSGWidget::getNavOrbitDetectionTime);

    // Only the user's choice sets off a preset; filling the page must keep what is stored.
    settings().add(interactionMode, quiet(byData(form.interactionMode)));
    settings().touchOnlyTheView();

    handOverPage();
}

void olNavigatorPreferencesGUII::applyPreferences()
{
    // The navigation mode alone is guarded: the user changes it in the view as well, and applying some other page must
    // not throw him out of it.
    const olApply apply(*this);
    apply.ifChanged(navigationMode, [](int mode) { olOSGWidget::setNavMode(allViews, olOSGWidget::Mode(mode)); });

    applyIfRead(autoCenter, &olOSGWidget::setNavAutoCenter);
    applyIfRead(interactionMode, [](int mode) { olOSGWidget::setInteractionMode(olOSGWidget::InteractionMode(mode)); });
    applyInversion(invertZoom, &olOSGWidget::setNavInvertDollyAxis);
    applyInversion(invertWheelZoom, &olOSGWidget::setNavInvertWheelDolly);

    // Deliberately set even when they cannot be read, then to what the host has already.
    olOSGWidget::setNavUsePivotBasedPanning(readOr(pivotBasedPanning, olOSGWidget::getNavUsePivotBasedPanning()));
    olOSGWidget::setNavPanningSpeed(readOr(panningSpeed, olOSGWidget::getNavPanningSpeed()));
    olOSGWidget::setNavSpeedMode(readOr(speedMode, olOSGWidget::getNavSpeedMode()));
    olOSGWidget::setNavDollySpeed(readOr(dollySpeed, olOSGWidget::getNavDollySpeed()));
    olOSGWidget::setNavDollyAxis(readOr(dollyAxis, olOSGWidget::getNavDollyAxis()));
    olOSGWidget::setNavDollyToPivot(readOr(dollyToPivot, olOSGWidget::getNavDollyToPivot()));

    applyIfRead(animateCamera, &olOSGWidget::setAnimateNavCam);
    olOSGWidget::setAnimateNavCamDuration(readOrDefault(animationDuration));

    // Unlike the six above, these are left alone when they cannot be read.
    applyIfRead(orbitMode, &olOSGWidget::setNavOrbitMode);
    applyIfRead(orbitDetectionArea, &olOSGWidget::setNavOrbitDetectionArea);
    applyIfRead(orbitDetectionTime, &olOSGWidget::setNavOrbitDetectionTime);
}

void olNavigatorPreferencesGUII::updateGUI()
{
    settings().showOnPage();
    page().updateEnabling();
}
