#include "Viewer/olVirtualRealityPreferencesGUII.h"

#include "Display/olStarVRHandler.h"
#include "Framework/olServiceStore.h"
#include "Kernel/olOSGWidget.h"
#include "KernelServices/olImmersiveInteractionService.h"
#include "KernelServices/olKernelServiceFactory.h"
#include "Viewer/olVirtualRealityPreferencesGUIW.h"
#include "ui_olVirtualRealityPreferencesGUI.h"

#include <algorithm>

namespace
{

const olServiceSetting<int> groundMode{"VR Teleport Ground Mode", 1};
const olServiceSetting<float> teleportRange{"VR Teleport Range", 15000.0f, atLeast(0.0).inUnit("mm")};
const olServiceSetting<int> visualiseHands{"VR Visualise Hands", 1};
const olServiceSetting<bool> createCollisionObjects{"VR Auto Create Collision Objects", true};
const olServiceSetting<bool> showTooltips{"VR Show Tooltips on start", true};
const olServiceSetting<bool> foveatedRendering{"StarVR Foveated Rendering Enabled", false};
const olServiceSetting<float> foveatedFovFactor{"StarVR Foveated FOV Factor", 0.35f, asShare()};
const olServiceSetting<float> foveatedScale{"StarVR Foveated Resolution Scale", 0.6f, asShare()};
const olServiceSetting<float> nonFoveatedScale{"StarVR Non-Foveated Resolution Scale", 0.4f, asShare()};
const olServiceSetting<float> frontViewScale{"StarVR Front View Resolution Scale", 1.0f, asShare()};
const olServiceSetting<float> sideViewScale{"StarVR Side View Resolution Scale", 1.0f, asShare()};
const olServiceSetting<bool> singleTexture{"StarVR Single Texture Per Eye", false};

/// What the headset takes over only when it starts. The field-of-view factor is not among them: it changes on a
/// running display.
const olSettingBase *const restarting[] = {&foveatedRendering, &foveatedScale, &nonFoveatedScale,
                                           &frontViewScale,    &sideViewScale, &singleTexture};

constexpr int fallbackDisplay = 0;
constexpr int starVRDisplay = 6;

/// The render mode's combo box over a flag: foveated rendering is its first item.
struct RenderMode {
    QComboBox *widget;
    olVirtualRealityPreferencesGUIW *page;
};

void showOn(const RenderMode &mode, bool foveated)
{
    {
        const QSignalBlocker blocker(mode.widget);
        mode.widget->setCurrentIndex(foveated ? 0 : 1);
    }
    mode.page->followRenderMode();
}

void takeFrom(const RenderMode &mode, bool &foveated) { foveated = mode.widget->currentIndex() == 0; }

void tellChoices(const RenderMode &mode, olChoices<bool> &choices)
{
    choices = {{true, mode.widget->itemText(0)}, {false, mode.widget->itemText(1)}};
}

bool isInverted(const RenderMode &) { return true; }

} // namespace

olVirtualRealityPreferencesGUII::olVirtualRealityPreferencesGUII() : olModule(tr("Virtual Reality"))
{
    const auto &form = page().form();
    settings().add(groundMode, form.groundMode);
    settings().add(teleportRange, form.range);
    settings().add(visualiseHands, form.defaultVisualization);
    settings().add(createCollisionObjects, form.createCollisionObjects);
    settings().add(showTooltips, form.showTooltips);
    settings().add(foveatedRendering, RenderMode{form.renderMode, &page()});
    settings().add(foveatedFovFactor, form.foveatedFovFactor);
    settings().add(foveatedScale, form.foveatedResolutionScale);
    settings().add(nonFoveatedScale, form.nonFoveatedResolutionScale);
    settings().add(frontViewScale, form.frontViewResolutionScale);
    settings().add(sideViewScale, form.sideViewResolutionScale);
    settings().add(singleTexture, form.singleTexturePerEye);

    registerCategory();
    handOverPage();
}

void olVirtualRealityPreferencesGUII::applyPreferences()
{
    applyToSessions();
    applyToHeadset();
}

template <class T, class Call>
void olVirtualRealityPreferencesGUII::applyIfChanged(const olSetting<T> &setting, Call &&call) const
{
    if (isChanged(setting.key().c_str()))
        call(olServiceStore::value(setting));
}

void olVirtualRealityPreferencesGUII::applyToSessions() const
{
    auto &sessions = *olKernelServiceFactory::the<olImmersiveInteractionService>();
    applyIfChanged(groundMode, [&](int mode) { sessions.setTeleportGroundMode(mode); });
    applyIfChanged(teleportRange, [&](float range) { sessions.setTeleportRange(range); });
    applyIfChanged(visualiseHands, [&](int mode) { sessions.setVisualiseHands(mode); });
    applyIfChanged(createCollisionObjects, [&](bool create) { sessions.setAutoCreateCollisionObjects(create); });
    applyIfChanged(showTooltips, [&](bool show) { sessions.setShowTooltipsOnStart(show); });
}

void olVirtualRealityPreferencesGUII::applyToHeadset() const
{
    olStarVRHandler *headset = olStarVRHandler::getHandler();
    if (!headset)
        return;

    // The headset takes most values over when it starts, so the display leaves it while they are set.
    const int display = olOSGWidget::getDisplayType();
    if (display == starVRDisplay && mustHeadsetRestart())
        olOSGWidget::setDisplayType(fallbackDisplay);

    applyIfChanged(foveatedRendering, [&](bool enable) { headset->setFoveatedRendering(enable); });
    applyIfChanged(foveatedFovFactor, [&](float factor) { headset->setFoveatedFovFactor(factor); });
    applyIfChanged(foveatedScale, [&](float scale) { headset->setFoveatedResolutionScale(scale); });
    applyIfChanged(nonFoveatedScale, [&](float scale) { headset->setNonFoveatedResolutionScale(scale); });
    applyIfChanged(frontViewScale, [&](float scale) { headset->setFrontViewResolutionScale(scale); });
    applyIfChanged(sideViewScale, [&](float scale) { headset->setSideViewResolutionScale(scale); });
    applyIfChanged(singleTexture, [&](bool use) { headset->setUseSingleTexture(use); });

    // Asked anew: whoever switched it meanwhile, it goes back to where it was.
    if (olOSGWidget::getDisplayType() != display)
        olOSGWidget::setDisplayType(display);
}

bool olVirtualRealityPreferencesGUII::mustHeadsetRestart() const
{
    return std::any_of(std::begin(restarting), std::end(restarting),
                       [this](const olSettingBase *setting) { return isChanged(setting->key().c_str()); });
}
