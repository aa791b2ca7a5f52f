#include "Viewer/olCameraPreferencesGUII.h"

#include "Framework/olApply.h"
#include "Kernel/olController.h"
#include "Kernel/olOSGWidget.h"
#include "Viewer/olCameraPreferencesGUIW.h"
#include "ui_olCameraPreferencesGUI.h"

namespace
{

const olSetting<float> fov{"Camera fov", 45.0f, between(1.0, 100.0).inUnit("°")};
const olSetting<float> eyeSeparation{"Stereo eye separation", 63.0f, inUnit("mm")};
const olSetting<float> zeroParallaxDistance{"Stereo zero plane parallaxe", 1500.0f, inUnit("mm")};
const olSetting<float> powerwallWidth{"Powerwall width", 1600.0f, inUnit("mm")};
const olSetting<float> powerwallHeight{"Powerwall height", 1200.0f, inUnit("mm")};
const olSetting<float> powerwallDistance{"Powerwall distance", 1000.0f, inUnit("mm")};

constexpr int allViews = -1;

} // namespace

olCameraPreferencesGUII::olCameraPreferencesGUII() : olModule(tr("Camera"), QString())
{
    const auto &form = page().form();
    settings().add(fov, form.fieldOfView);
    settings().add(eyeSeparation, form.eyeSeparation);
    settings().add(zeroParallaxDistance, form.zeroParallaxDistance);
    settings().add(powerwallWidth, form.projectionWidth);
    settings().add(powerwallHeight, form.projectionHeight);
    settings().add(powerwallDistance, form.projectionDistance);
    settings().touchOnlyTheView();

    // Essentials applies the stored camera but has no page to change it on.
    if (!olController::isOrloEssentials())
        handOverPage();
}

void olCameraPreferencesGUII::applyPreferences()
{
    const olApply apply(*this);
    apply.ifChanged(fov, [](float degrees) { olOSGWidget::setFov(allViews, degrees); });
    apply.ifChanged(eyeSeparation, &olOSGWidget::setGlobalEyeSeparation);
    apply.ifChanged(zeroParallaxDistance, &olOSGWidget::setGlobalZeroParallaxDistance);

    // The powerwall is set as a whole or not at all. Each of the three is read even when another cannot be, so that
    // every faulty one is reported.
    if (apply.anyChanged(powerwallWidth, powerwallHeight, powerwallDistance)) {
        const auto width = read(powerwallWidth);
        const auto height = read(powerwallHeight);
        const auto distance = read(powerwallDistance);
        if (width && height && distance)
            olOSGWidget::setPowerwallWindow(allViews, *width, *height, *distance);
    }
}
