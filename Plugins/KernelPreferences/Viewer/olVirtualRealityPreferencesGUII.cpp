#include "Viewer/olVirtualRealityPreferencesGUII.h"

#include "Display/olStarVRHandler.h"
#include "Kernel/olOSGWidget.h"
#include "KernelServices/olImmersiveInteractionService.h"
#include "Viewer/olVirtualRealityPreferencesGUIW.h"
#include "ui_olVirtualRealityPreferencesGUI.h"

#include <algorithm>

namespace
{

const olSetting<int> groundMode{"VR Teleport Ground Mode", 1};
const olSetting<float> teleportRange{"VR Teleport Range", 15000.0f};
const olSetting<int> visualiseHands{"VR Visualise Hands", 1};
const olSetting<bool> createCollisionObjects{"VR Auto Create Collision Objects", true};
const olSetting<bool> showTooltips{"VR Show Tooltips on start", true};
const olSetting<bool> foveatedRendering{"StarVR Foveated Rendering Enabled", false};
const olSetting<float> foveatedFovFactor{"StarVR Foveated FOV Factor", 0.35f};
const olSetting<float> foveatedScale{"StarVR Foveated Resolution Scale", 0.6f};
const olSetting<float> nonFoveatedScale{"StarVR Non-Foveated Resolution Scale", 0.4f};
const olSetting<float> frontViewScale{"StarVR Front View Resolution Scale", 1.0f};
const olSetting<float> sideViewScale{"StarVR Side View Resolution Scale", 1.0f};
const olSetting<bool> singleTexture{"StarVR Single Texture Per Eye", false};

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

} // namespace

olVirtualRealityPreferencesGUII::olVirtualRealityPreferencesGUII()
    : olPreferencesCategory(tr("Virtual Reality")),
      m_page(std::make_unique<olVirtualRealityPreferencesGUIW>()),
      m_settings(*m_page)
{
    const auto &form = m_page->form();
    m_settings.add(groundMode, form.groundMode);
    m_settings.add(teleportRange, form.range);
    m_settings.add(visualiseHands, form.defaultVisualization);
    m_settings.add(createCollisionObjects, form.createCollisionObjects);
    m_settings.add(showTooltips, form.showTooltips);
    m_settings.add(foveatedRendering, RenderMode{form.renderMode, m_page.get()});
    m_settings.add(foveatedFovFactor, form.foveatedFovFactor);
    m_settings.add(foveatedScale, form.foveatedResolutionScale);
    m_settings.add(nonFoveatedScale, form.nonFoveatedResolutionScale);
    m_settings.add(frontViewScale, form.frontViewResolutionScale);
    m_settings.add(sideViewScale, form.sideViewResolutionScale);
    m_settings.add(singleTexture, form.singleTexturePerEye);

    registerCategory();
    addPreferencesGUI(m_page.get());
}

// The values stay: they are the service's.
olVirtualRealityPreferencesGUII::~olVirtualRealityPreferencesGUII() { subPreferencesGUI(m_page.get()); }

void olVirtualRealityPreferencesGUII::setDefaults(olMessage &, bool flag) { m_settings.writeDefaults(flag); }

void olVirtualRealityPreferencesGUII::applyPreferences()
{
    applyToSessions();
    applyToHeadset();
}

void olVirtualRealityPreferencesGUII::updateGUI() { m_settings.showOnPage(); }

void olVirtualRealityPreferencesGUII::updateData() { m_settings.storeFromPage(); }

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
