#include "Viewer/olRenderOptionsPreferencesGUII.h"

#include "Framework/olApply.h"
#include "Kernel/olController.h"
#include "Kernel/olLights.h"
#include "Kernel/olOSGWidget.h"
#include "Kernel/olScenegraph.h"
#include "Utilities/olPlatform.h"
#include "Viewer/olBackgroundTable.h"
#include "Viewer/olRenderOptionsPreferencesGUIW.h"
#include "Widgets/exCursorProgress.h"
#include "ui_olRenderOptionsPreferencesGUI.h"

#include <algorithm>

namespace
{

using Colors = std::vector<osg::Color3f>;
using Positions = std::vector<float>;

/// Dark grey at the top to light grey at the bottom, but black in the medical application.
Colors defaultBackground()
{
    if (olPlatform::getAppName() == QLatin1String("orlomed"))
        return {{0.0f, 0.0f, 0.0f}, {0.0f, 0.0f, 0.0f}};
    return {{0.207843f, 0.207843f, 0.207843f}, {0.74902f, 0.74902f, 0.74902f}};
}

constexpr double lowestPlane = 0.000001;

const olSetting<bool> stillframeAntialiasing{"RenderOptions enable antialiase", false};
const olSetting<unsigned> postprocessAntialiasing{"RenderOptions enable postprocess antialias", 0u};
const olSetting<float> antialiaseDistance{"RenderOptions antialiase distance", 0.2f};
const olSetting<float> antialiaseScale{"RenderOptions antialiase scale", 2.0f};
const olSetting<double> antialiaseTime{"RenderOptions antialiase time", 1.0, inUnit("s")};
const olSetting<bool> highQualityAntialiasing{"RenderOptions antialiase high quality", false};
const olSetting<Colors> backgroundColors{"RenderOptions background colors", &defaultBackground};
const olSetting<Positions> backgroundPositions{"RenderOptions background ints", {1.0f, 0.0f}};
const olSetting<bool> sortTransparency{"RenderOptions sort trans", true};
const olSetting<bool> zWriteTransparency{"RenderOptions zwrite trans", false};
const olSetting<bool> fastFullscreen{"RenderOptions fast fullscreen", true};
// Two of its modes leave the light as another one has switched it.
const olSetting<int> headlightMode{"RenderOptions headlight mode", 3, notPutBack()};
const olSetting<bool> coordinateSystem{"RenderOptions coordinate system", false};
const olSetting<bool> auxiliaryNodes{"RenderOptions auxiliary nodes", true};
const olSetting<bool> navigationCube{"RenderOptions viewcube", true};
const olSetting<bool> glContextSharing{"RenderOptions gl context sharing", true};
const olSetting<bool> cacheGeometry{"RenderOptions cache whole scene", false};
const olSetting<bool> rgb10{"RenderOptions 10bit rgb", false};
const olSetting<bool> rgb16Float{"RenderOptions 16bit float rgb", false};
const olSetting<bool> twoSidedLighting{"RenderOptions correct two sided lighting", true};
const olSetting<bool> singlePassStereo{"RenderOptions single pass stereo", false};
const olSetting<bool> occlusionCulling{"RenderOptions occlusion culling", false};
const olSetting<bool> pointHeadlight{"RenderOptions use point headlight", false};
const olSetting<bool> zUp{"RenderOptions z-up", true};
const olSetting<bool> clippingPlaneAdaption{"RenderOptions clipping plane adaption", false};
const olSetting<bool> forceGLFinish{"RenderOptions force glFinish", false};
const olSetting<int> hardwareSamples{"RenderOptions hardware antialiasing samples", 0};
const olSetting<bool> disableOnCameraMovement{"RenderOptions hardware antialiasing auto", false};
const olSetting<int> antialiasingQuality{"RenderOptions hardware antialiasing quality", 0};

/// What one of the presets of the real-time antialiasing consists of.
struct Preset {
    olSetting<int> multisamples;
    olSetting<bool> pixelfilter;
    olSetting<bool> supersampling;
    olSetting<int> raytracingSamples;
};
const Preset low{{"RenderOptions multisample quality low", 2},
                 {"RenderOptions use pixelfilter low", true},
                 {"RenderOptions supersample factor low", false},
                 {"RenderOptions raytracing supersampling quality low", 2}};
const Preset medium{{"RenderOptions multisample quality medium", 4},
                    {"RenderOptions use pixelfilter medium", true},
                    {"RenderOptions supersample factor medium", false},
                    {"RenderOptions raytracing supersampling quality medium", 4}};
const Preset high{{"RenderOptions multisample quality high", 8},
                  {"RenderOptions use pixelfilter high", true},
                  {"RenderOptions supersample factor high", false},
                  {"RenderOptions raytracing supersampling quality high", 8}};
// Fewer multisamples than high: it supersamples on top of them.
const Preset ultra{{"RenderOptions multisample quality ultra", 4},
                   {"RenderOptions use pixelfilter ultra", true},
                   {"RenderOptions supersample factor ultra", true},
                   {"RenderOptions raytracing supersampling quality ultra", 16}};

const olSetting<bool> enableSli{"RenderOptions nvidia sli enable", false};
const olSetting<int> sliMode{"RenderOptions nvidia sli mode", 1, atNextStart()};
const olSetting<bool> disableSleep{"RenderOptions disable sleep", false};
const olSetting<bool> limitNearFarPlane{"RenderOptions limit near far plane", false};
const olSetting<float> nearPlane{"RenderOptions near plane", 10.0f, atLeast(lowestPlane).inUnit("mm")};
const olSetting<float> farPlane{"RenderOptions far plane", 100000.0f, atLeast(lowestPlane).inUnit("mm")};
const olSetting<bool> downscale{"RenderOptions downscale", false};
const olSetting<int> downscaleQuality{"RenderOptions downscale quality", 0};
const olSetting<bool> fixedResolution{"RenderOptions fixed res", false};
const olSetting<int> fixedWidth{"RenderOptions fixed resx", 1280, atLeast(0).inUnit("px")};
const olSetting<int> fixedHeight{"RenderOptions fixed resy", 720, atLeast(0).inUnit("px")};
const olSetting<bool> materialPreview{"RenderOptions interactive material preview", true};
const olSetting<int> progressSize{"RenderOptions progress cursor size", 32, atLeast(0).inUnit("px")};
const olSetting<bool> progressStatic{"RenderOptions progress cursor static", false};
const olSetting<bool> progressVisible{"RenderOptions progress cursor visible", true};
const olSetting<bool> showCameras{"RenderOptions show cameras", true};
const olSetting<bool> showLights{"RenderOptions show lights", true};
const olSetting<bool> showJoints{"RenderOptions show joints", false};

// Deliberately neither the default nor what apply falls back on: without a stored size the page offers this one.
int widthOnPage() { return 720; }
int heightOnPage() { return 576; }

bool isProgressInCorner() { return exCursorProgress::getPreferredPosition() == exCursorProgress::InCorner; }

/// How far the raytracer shrinks a side, by the index of "Downscale Quality".
unsigned downscaleFactor(int quality)
{
    switch (quality) {
    case 1:
        return 4;
    case 2:
        return 8;
    default:
        return 2;
    }
}

using SetPreset = void (*)(int, bool, bool, int);

void applyPreset(const olApply &apply, const Preset &preset, SetPreset set)
{
    if (!apply.anyChanged(preset.multisamples, preset.pixelfilter, preset.supersampling, preset.raytracingSamples))
        return;
    const int multisamples = readOrDefault(preset.multisamples);
    const bool pixelfilter = readOrDefault(preset.pixelfilter);
    const bool supersampling = readOrDefault(preset.supersampling);
    set(multisamples, pixelfilter, supersampling, readOrDefault(preset.raytracingSamples));
}

// Deliberately without the default gradient: lists that cannot be read go out empty.
void setBackground()
{
    const Colors colors = readOr(backgroundColors, {});
    olOSGWidget::setAllGradientBackgrounds(colors, readOr(backgroundPositions, {}));
}

// Deliberately both: depth writing that cannot be read goes on, although it is off by default.
constexpr bool sortFallback = true;
constexpr bool zWriteFallback = true;

} // namespace

olRenderOptionsPreferencesGUII::olRenderOptionsPreferencesGUII() : olModule(tr("Render Options"), QString())
{
    listSettings();
    handOverPage();
}

void olRenderOptionsPreferencesGUII::applyPreferences()
{
    const olApply apply(*this);
    const bool wasEnabled = olOSGWidget::isRenderEnabled();
    olOSGWidget::enableRender(0);

    applyStillframe(apply);
    applyView(apply);
    applyHeadlight(apply);
    apply.ifChangedOrDefault(zUp, [](bool up) { olOSGWidget::setCameraZUp(up, true); });
    // On every apply: the logo has no setting.
    olOSGWidget::showLogo(false);
    apply.ifChangedOrDefault(forceGLFinish, &olOSGWidget::setForceGLFinish);
    apply.ifChangedOrDefault(disableOnCameraMovement, &olOSGWidget::setAutoSuperSampling);
    applyPresets(apply);
    applyQuality(apply);
    applyGraphicsCards(apply);
    applyPicture(apply);
    applyVisibility(apply);

    olOSGWidget::enableRender(wasEnabled);
    olOSGWidget::updateAllMGLW();
}

// A new scene comes with settings of its own for these, so they are set whether or not anything changed.
void olRenderOptionsPreferencesGUII::preferencesNewScene(olMessage &)
{
    setBackground();
    olOSGWidget::setSortTrans(readOr(sortTransparency, sortFallback));
    olOSGWidget::setZWriteTrans(readOr(zWriteTransparency, zWriteFallback));
}

void olRenderOptionsPreferencesGUII::listSettings()
{
    const auto &form = page().form();
    settings().add(stillframeAntialiasing, form.stillframeAntialiasing);
    settings().add(postprocessAntialiasing, zeroOrOne(form.postprocessAntialiasing));
    settings().add(antialiaseDistance, form.antialiaseDistance);
    settings().add(antialiaseScale, form.antialiaseScale);
    settings().add(antialiaseTime, form.antialiaseTime);
    settings().add(highQualityAntialiasing, form.highQualityAntialiasing);
    settings().add(backgroundColors, olBackgroundColors{form.backgroundTable});
    settings().add(backgroundPositions, olBackgroundPositions{form.backgroundTable});
    settings().add(sortTransparency, form.sortTransparency);
    settings().add(zWriteTransparency, form.zWriteTransparency);
    settings().addWithoutControl(fastFullscreen);
    settings().add(headlightMode, form.headlightMode);
    settings().add(coordinateSystem, form.coordinateSystem);
    settings().add(auxiliaryNodes, form.auxiliaryNodes);
    settings().add(navigationCube, form.navigationCube);
    settings().addWithoutControl(glContextSharing);
    settings().add(cacheGeometry, form.cacheGeometry);
    settings().add(rgb10, form.rgb10);
    settings().add(rgb16Float, form.rgb16Float);
    settings().addWithoutControl(twoSidedLighting);
    settings().add(singlePassStereo, form.singlePassStereo);
    settings().add(occlusionCulling, form.occlusionCulling);
    settings().add(pointHeadlight, form.pointHeadlight);
    settings().add(zUp, form.zUp);
    settings().addWithoutControl(clippingPlaneAdaption);
    settings().add(forceGLFinish, form.forceGLFinish);
    settings().addWithoutControl(hardwareSamples);
    settings().add(disableOnCameraMovement, form.disableOnCameraMovement);
    settings().add(antialiasingQuality, form.antialiasingQuality);
    settings().add(low.multisamples, byData(form.multisamplingLow));
    settings().add(medium.multisamples, byData(form.multisamplingMedium));
    settings().add(high.multisamples, byData(form.multisamplingHigh));
    settings().add(ultra.multisamples, byData(form.multisamplingUltra));
    settings().add(low.pixelfilter, form.pixelfilterLow);
    settings().add(medium.pixelfilter, form.pixelfilterMedium);
    settings().add(high.pixelfilter, form.pixelfilterHigh);
    settings().add(ultra.pixelfilter, form.pixelfilterUltra);
    settings().add(low.supersampling, form.supersamplingLow);
    settings().add(medium.supersampling, form.supersamplingMedium);
    settings().add(high.supersampling, form.supersamplingHigh);
    settings().add(ultra.supersampling, form.supersamplingUltra);
    settings().add(low.raytracingSamples, byData(form.raytracingLow));
    settings().add(medium.raytracingSamples, byData(form.raytracingMedium));
    settings().add(high.raytracingSamples, byData(form.raytracingHigh));
    settings().add(ultra.raytracingSamples, byData(form.raytracingUltra));
    settings().add(enableSli, form.enableSli);
    settings().add(sliMode, form.sliMode);
    settings().add(disableSleep, form.disableSleep);
    settings().add(limitNearFarPlane, form.limitNearFarPlane);
    settings().add(nearPlane, form.nearPlane);
    settings().add(farPlane, form.farPlane);
    settings().add(downscale, form.downscale);
    settings().add(downscaleQuality, form.downscaleQuality);
    settings().add(fixedResolution, form.fixedResolution);
    settings().add(fixedWidth, form.fixedWidth, &widthOnPage);
    settings().add(fixedHeight, form.fixedHeight, &heightOnPage);
    settings().add(materialPreview, form.materialPreview);
    settings().add(progressSize, form.progressSize, &exCursorProgress::getBaseSize);
    settings().add(progressStatic, form.progressStatic, &isProgressInCorner);
    settings().add(progressVisible, form.progressVisible, &exCursorProgress::getPreferredVisibility);
    settings().add(showCameras, form.showCameras, &olOSGWidget::getCamerasVisible);
    settings().add(showLights, form.showLights, &olOSGWidget::getLightsVisible);
    settings().add(showJoints, form.showJoints, &olOSGWidget::getJointsVisible);
    settings().addRetired("RenderOptions local lights");
    settings().addRetired("RenderOptions use back buffer");
    settings().touchOnlyTheView();
}

void olRenderOptionsPreferencesGUII::applyStillframe(const olApply &apply) const
{
    // Essentials always refines still frames; its page does not offer the choice.
    if (!olController::isOrloEssentials())
        apply.ifChanged(stillframeAntialiasing, &olOSGWidget::enableAntialiasing);
    else if (apply.anyChanged(stillframeAntialiasing))
        olOSGWidget::enableAntialiasing(1);

    apply.ifChanged(postprocessAntialiasing, &olOSGWidget::setPostprocessAntialiasing);

    if (apply.anyChanged(antialiaseDistance, antialiaseScale, antialiaseTime)) {
        const float distance = readOrDefault(antialiaseDistance);
        // Deliberately not the default, which is 2.
        const float scale = readOr(antialiaseScale, 1.0f);
        olOSGWidget::setAntialiasing(distance, scale, readOrDefault(antialiaseTime));
    }
    // On every apply: the high quality always goes off. Its setting is kept but deliberately never applied.
    if (olOSGWidget::getHighQualityAntialiasing())
        olOSGWidget::setHighQualityAntialiasing(false);
}

void olRenderOptionsPreferencesGUII::applyView(const olApply &apply) const
{
    if (apply.anyChanged(backgroundColors, backgroundPositions))
        setBackground();
    apply.ifChangedOr(sortTransparency, sortFallback, &olOSGWidget::setSortTrans);
    apply.ifChangedOr(zWriteTransparency, zWriteFallback, &olOSGWidget::setZWriteTrans);
    apply.ifChanged(coordinateSystem, &olOSGWidget::showCoordinateSystem);
    apply.ifChanged(navigationCube, &olOSGWidget::showViewCube);
    apply.ifChanged(auxiliaryNodes, &olOSGWidget::setAuxiliaryNodesVisibleDuringAntialiasing);
    apply.ifChangedOrDefault(rgb10, &olOSGWidget::setRGB10);
    apply.ifChangedOrDefault(rgb16Float, &olOSGWidget::setRGB16F);
    apply.ifChangedOrDefault(singlePassStereo, &olOSGWidget::setUseSinglePassStereo);
    apply.ifChangedOrDefault(occlusionCulling, &olOSGWidget::setOcclusionCulling);
}

void olRenderOptionsPreferencesGUII::applyHeadlight(const olApply &apply) const
{
    apply.ifChangedOrDefault(pointHeadlight, [](bool point) {
        const osg::NodePtr headlight = olScenegraph::getHeadlight();
        if (headlight != osg::NullFC)
            olLights::changeLightType(headlight, point ? "PointLight" : "DirectionalLight");
    });
    apply.ifChanged(headlightMode, [](int mode) {
        constexpr int alwaysOn = 1;
        constexpr int alwaysOff = 2;
        olScenegraph::setHeadlightMode(mode);
        if (mode == alwaysOn)
            olOSGWidget::enableHeadlight(1);
        else if (mode == alwaysOff)
            olOSGWidget::enableHeadlight(0);
    });
}

void olRenderOptionsPreferencesGUII::applyPresets(const olApply &apply) const
{
    applyPreset(apply, low, &olOSGWidget::setAntialiasingQualityLow);
    applyPreset(apply, medium, &olOSGWidget::setAntialiasingQualityMedium);
    applyPreset(apply, high, &olOSGWidget::setAntialiasingQualityHigh);
    applyPreset(apply, ultra, &olOSGWidget::setAntialiasingQualityUltra);
}

void olRenderOptionsPreferencesGUII::applyQuality(const olApply &apply) const
{
    apply.ifChangedOrDefault(antialiasingQuality, [this](int index) {
        const int last = page().form().antialiasingQuality->count() - 1;
        const int step = std::clamp(index, 0, last);
        olOSGWidget::setSuperSampling(step > 0);
        olOSGWidget::setSuperSamplingQuality(step > 0 ? 1u << step : 0u);
    });
}

void olRenderOptionsPreferencesGUII::applyGraphicsCards(const olApply &apply) const
{
    apply.ifChangedOrDefault(enableSli, &olOSGWidget::setSLI);
    apply.ifChangedOrDefault(sliMode, &olOSGWidget::setSLIMode);
    apply.ifChangedOrDefault(disableSleep, [](bool disable) { olController::setSleepTime(disable ? 0 : 1); });
}

void olRenderOptionsPreferencesGUII::applyPicture(const olApply &apply) const
{
    if (apply.anyChanged(limitNearFarPlane, nearPlane, farPlane)) {
        const bool limit = readOrDefault(limitNearFarPlane);
        const float nearest = readOrDefault(nearPlane);
        olOSGWidget::setNearFarPlaneLimit(limit, nearest, readOrDefault(farPlane));
    }

    // Essentials always downscales; its page does not offer the choice.
    if (!olController::isOrloEssentials())
        apply.ifChangedOrDefault(downscale, &olOSGWidget::enableRaytracingDownscale);
    else if (apply.anyChanged(downscale))
        olOSGWidget::enableRaytracingDownscale(1);
    apply.ifChangedOrDefault(downscaleQuality,
                             [](int quality) { olOSGWidget::setRaytracingDownscaleFactor(downscaleFactor(quality)); });

    if (apply.anyChanged(fixedResolution, fixedWidth, fixedHeight)) {
        const bool fixed = readOrDefault(fixedResolution);
        const int width = readOrDefault(fixedWidth);
        const int height = readOrDefault(fixedHeight);
        olOSGWidget::setFixedRenderWindowSize(fixed ? width : -1, fixed ? height : -1);
    }
}

void olRenderOptionsPreferencesGUII::applyVisibility(const olApply &apply) const
{
    apply.ifChanged(materialPreview, &olOSGWidget::showInteractiveMaterialPreview);
    apply.ifChanged(progressSize, &exCursorProgress::setPreferredSize);
    apply.ifChanged(progressStatic, [](bool isStatic) {
        exCursorProgress::setPreferredPosition(isStatic ? exCursorProgress::InCorner : exCursorProgress::AtCursor);
    });
    apply.ifChanged(progressVisible, &exCursorProgress::setPreferredVisibility);
    apply.ifChanged(showCameras, &olOSGWidget::setCamerasVisible);
    apply.ifChanged(showLights, &olOSGWidget::setLightsVisible);
    apply.ifChanged(showJoints, &olOSGWidget::setJointsVisible);
}
