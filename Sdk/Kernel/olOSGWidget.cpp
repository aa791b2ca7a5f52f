#include "Kernel/olOSGWidget.h"

#include "State/olHostCalls.h"
#include "Utilities/olLog.h"

#include <QCoreApplication>
#include <QString>

#include <algorithm>
#include <cmath>

namespace
{

using State = olHostState;

constexpr olHostCalls calls("olOSGWidget");

void setPreset(const char *function, olHostState::AntialiasingPreset &preset, int multisamples, bool pixelfilter,
               bool supersample, int raytracingSamples)
{
    olJournal::callOf("olOSGWidget", function, multisamples, pixelfilter, supersample, raytracingSamples);
    preset.multisamples = multisamples;
    preset.pixelfilter = pixelfilter;
    preset.supersampling = supersample;
    preset.raytracingSamples = raytracingSamples;
}

} // namespace

void olOSGWidget::setFov(int view, float degrees)
{
    olJournal::call("olOSGWidget::setFov", view, degrees);
    olHostState::the().fov = degrees;
}

void olOSGWidget::setGlobalEyeSeparation(float separation)
{
    calls.set("setGlobalEyeSeparation", &State::eyeSeparation, separation);
}
void olOSGWidget::setGlobalZeroParallaxDistance(float distance)
{
    calls.set("setGlobalZeroParallaxDistance", &State::zeroParallaxDistance, distance);
}

void olOSGWidget::setPowerwallWindow(int view, float width, float height, float distance)
{
    olJournal::call("olOSGWidget::setPowerwallWindow", view, width, height, distance);
    olHostState &state = olHostState::the();
    state.powerwallWidth = width;
    state.powerwallHeight = height;
    state.powerwallDistance = distance;
}

void olOSGWidget::setCameraZUp(bool zUp, bool openViews)
{
    olJournal::call("olOSGWidget::setCameraZUp", zUp, openViews);
    olHostState::the().cameraZUp = zUp;
}

void olOSGWidget::setNearFarPlaneLimit(bool limit, float nearest, float farthest)
{
    olJournal::call("olOSGWidget::setNearFarPlaneLimit", limit, nearest, farthest);
    olHostState &state = olHostState::the();
    const bool isNearPossible = std::isfinite(nearest) && nearest > 0.0f;
    const bool isFarPossible = std::isfinite(farthest) && farthest > std::max(nearest, 0.0f);
    const bool isPossible = isNearPossible && isFarPossible;
    const QString refusal =
        QCoreApplication::translate("olOSGWidget", "The clipping planes %1 and %2 are refused: expected two numbers "
                                                   "above 0, the far one greater than the near one.")
            .arg(double(nearest))
            .arg(double(farthest));
    state.refuse("RenderOptions near plane", limit && !isNearPossible ? refusal : QString());
    state.refuse("RenderOptions far plane", limit && !isFarPossible ? refusal : QString());
    if (limit && !isPossible) {
        olLog::error(refusal);
        return;
    }
    state.limitNearFarPlane = limit;
    if (!isPossible)
        return;
    state.nearPlane = nearest;
    state.farPlane = farthest;
}

bool olOSGWidget::isRenderEnabled() { return olHostState::the().renderEnabled; }
void olOSGWidget::enableRender(int enable) { calls.set("enableRender", &State::renderEnabled, enable); }

void olOSGWidget::updateAllMGLW()
{
    olJournal::call("olOSGWidget::updateAllMGLW");
    olHostState &state = olHostState::the();
    state.viewUpdates = state.viewUpdates + 1;
}

void olOSGWidget::setAllGradientBackgrounds(const std::vector<osg::Color3f> &colors,
                                            const std::vector<float> &positions)
{
    olJournal::call("olOSGWidget::setAllGradientBackgrounds", colors, positions);
    olHostState &state = olHostState::the();
    state.backgroundColors = colors;
    state.backgroundPositions = positions;
}

void olOSGWidget::setSortTrans(int sort) { calls.set("setSortTrans", &State::sortTransparency, sort); }
void olOSGWidget::setZWriteTrans(int write) { calls.set("setZWriteTrans", &State::zWriteTransparency, write); }
void olOSGWidget::setOcclusionCulling(int enable)
{
    calls.set("setOcclusionCulling", &State::occlusionCulling, enable);
}
void olOSGWidget::enableRaytracingDownscale(int enable)
{
    calls.set("enableRaytracingDownscale", &State::raytracingDownscale, enable);
}
void olOSGWidget::setRaytracingDownscaleFactor(unsigned factor)
{
    calls.set("setRaytracingDownscaleFactor", &State::raytracingDownscaleFactor, factor);
}

void olOSGWidget::setFixedRenderWindowSize(int width, int height)
{
    olJournal::call("olOSGWidget::setFixedRenderWindowSize", width, height);
    olHostState &state = olHostState::the();
    state.fixedRenderWindowWidth = width;
    state.fixedRenderWindowHeight = height;
}

void olOSGWidget::showInteractiveMaterialPreview(bool show)
{
    calls.set("showInteractiveMaterialPreview", &State::interactiveMaterialPreview, show);
}
void olOSGWidget::setRGB10(bool use) { calls.set("setRGB10", &State::rgb10, use); }
void olOSGWidget::setRGB16F(bool use) { calls.set("setRGB16F", &State::rgb16F, use); }
void olOSGWidget::setUseSinglePassStereo(bool use)
{
    calls.set("setUseSinglePassStereo", &State::singlePassStereo, use);
}
void olOSGWidget::setForceGLFinish(bool force) { calls.set("setForceGLFinish", &State::forceGLFinish, force); }
void olOSGWidget::setSLI(bool enable) { calls.set("setSLI", &State::sli, enable); }
void olOSGWidget::setSLIMode(int mode) { calls.set("setSLIMode", &State::sliMode, mode); }
void olOSGWidget::enableAntialiasing(int enable) { calls.set("enableAntialiasing", &State::antialiasing, enable); }
void olOSGWidget::setPostprocessAntialiasing(unsigned quality)
{
    calls.set("setPostprocessAntialiasing", &State::postprocessAntialiasing, quality);
}

void olOSGWidget::setAntialiasing(float distance, float scale, double time)
{
    olJournal::call("olOSGWidget::setAntialiasing", distance, scale, time);
    olHostState &state = olHostState::the();
    state.antialiasingDistance = distance;
    state.antialiasingScale = scale;
    state.antialiasingTime = time;
}

bool olOSGWidget::getHighQualityAntialiasing() { return olHostState::the().highQualityAntialiasing; }
void olOSGWidget::setHighQualityAntialiasing(bool enable)
{
    calls.set("setHighQualityAntialiasing", &State::highQualityAntialiasing, enable);
}
void olOSGWidget::setAuxiliaryNodesVisibleDuringAntialiasing(bool visible)
{
    calls.set("setAuxiliaryNodesVisibleDuringAntialiasing", &State::auxiliaryNodesDuringAntialiasing, visible);
}
void olOSGWidget::setAutoSuperSampling(bool enable)
{
    calls.set("setAutoSuperSampling", &State::autoSuperSampling, enable);
}
void olOSGWidget::setSuperSampling(bool enable) { calls.set("setSuperSampling", &State::superSampling, enable); }
void olOSGWidget::setSuperSamplingQuality(unsigned samples)
{
    calls.set("setSuperSamplingQuality", &State::superSamplingQuality, samples);
}

void olOSGWidget::setAntialiasingQualityLow(int multisamples, bool pixelfilter, bool supersample, int raytracingSamples)
{
    setPreset("setAntialiasingQualityLow", State::the().antialiasingLow, multisamples, pixelfilter, supersample,
              raytracingSamples);
}

void olOSGWidget::setAntialiasingQualityMedium(int multisamples, bool pixelfilter, bool supersample,
                                               int raytracingSamples)
{
    setPreset("setAntialiasingQualityMedium", State::the().antialiasingMedium, multisamples, pixelfilter, supersample,
              raytracingSamples);
}

void olOSGWidget::setAntialiasingQualityHigh(int multisamples, bool pixelfilter, bool supersample,
                                             int raytracingSamples)
{
    setPreset("setAntialiasingQualityHigh", State::the().antialiasingHigh, multisamples, pixelfilter, supersample,
              raytracingSamples);
}

void olOSGWidget::setAntialiasingQualityUltra(int multisamples, bool pixelfilter, bool supersample,
                                              int raytracingSamples)
{
    setPreset("setAntialiasingQualityUltra", State::the().antialiasingUltra, multisamples, pixelfilter, supersample,
              raytracingSamples);
}

void olOSGWidget::enableHeadlight(int enable) { calls.set("enableHeadlight", &State::headlightEnabled, enable); }
void olOSGWidget::showCoordinateSystem(int show) { calls.set("showCoordinateSystem", &State::coordinateSystem, show); }
void olOSGWidget::showViewCube(bool show) { calls.set("showViewCube", &State::viewCube, show); }
void olOSGWidget::showLogo(bool show) { calls.set("showLogo", &State::logo, show); }
bool olOSGWidget::getCamerasVisible() { return olHostState::the().camerasVisible; }
void olOSGWidget::setCamerasVisible(bool visible) { calls.set("setCamerasVisible", &State::camerasVisible, visible); }
bool olOSGWidget::getLightsVisible() { return olHostState::the().lightsVisible; }
void olOSGWidget::setLightsVisible(bool visible) { calls.set("setLightsVisible", &State::lightsVisible, visible); }
bool olOSGWidget::getJointsVisible() { return olHostState::the().jointsVisible; }
void olOSGWidget::setJointsVisible(bool visible) { calls.set("setJointsVisible", &State::jointsVisible, visible); }
void olOSGWidget::setWireframeSelection(bool enable)
{
    calls.set("setWireframeSelection", &State::wireframeSelection, enable);
}
void olOSGWidget::setWireframeAlwaysInFront(bool inFront)
{
    calls.set("setWireframeAlwaysInFront", &State::wireframeAlwaysInFront, inFront);
}

void olOSGWidget::setNavMode(int view, Mode mode)
{
    olJournal::call("olOSGWidget::setNavMode", view, int(mode));
    olHostState::the().navMode = mode;
}

void olOSGWidget::setInteractionMode(InteractionMode mode)
{
    calls.set("setInteractionMode", &State::interactionMode, int(mode));
}
void olOSGWidget::setNavAutoCenter(bool enable) { calls.set("setNavAutoCenter", &State::navAutoCenter, enable); }
void olOSGWidget::setNavInvertDollyAxis(bool invert)
{
    calls.set("setNavInvertDollyAxis", &State::navInvertDollyAxis, invert);
}
void olOSGWidget::setNavInvertWheelDolly(bool invert)
{
    calls.set("setNavInvertWheelDolly", &State::navInvertWheelDolly, invert);
}
void olOSGWidget::setAnimateNavCam(bool animate) { calls.set("setAnimateNavCam", &State::animateNavCam, animate); }
void olOSGWidget::setAnimateNavCamDuration(float duration)
{
    calls.set("setAnimateNavCamDuration", &State::animateNavCamDuration, duration);
}
bool olOSGWidget::getNavUsePivotBasedPanning() { return olHostState::the().navUsePivotBasedPanning; }
void olOSGWidget::setNavUsePivotBasedPanning(bool use)
{
    calls.set("setNavUsePivotBasedPanning", &State::navUsePivotBasedPanning, use);
}
float olOSGWidget::getNavPanningSpeed() { return olHostState::the().navPanningSpeed; }
void olOSGWidget::setNavPanningSpeed(float factor) { calls.set("setNavPanningSpeed", &State::navPanningSpeed, factor); }
int olOSGWidget::getNavSpeedMode() { return olHostState::the().navSpeedMode; }
void olOSGWidget::setNavSpeedMode(int mode) { calls.set("setNavSpeedMode", &State::navSpeedMode, mode); }
float olOSGWidget::getNavDollySpeed() { return olHostState::the().navDollySpeed; }
void olOSGWidget::setNavDollySpeed(float factor) { calls.set("setNavDollySpeed", &State::navDollySpeed, factor); }
int olOSGWidget::getNavDollyAxis() { return olHostState::the().navDollyAxis; }
void olOSGWidget::setNavDollyAxis(int axis) { calls.set("setNavDollyAxis", &State::navDollyAxis, axis); }
bool olOSGWidget::getNavDollyToPivot() { return olHostState::the().navDollyToPivot; }
void olOSGWidget::setNavDollyToPivot(bool enable) { calls.set("setNavDollyToPivot", &State::navDollyToPivot, enable); }
bool olOSGWidget::getNavOrbitMode() { return olHostState::the().navOrbitMode; }
void olOSGWidget::setNavOrbitMode(bool enable) { calls.set("setNavOrbitMode", &State::navOrbitMode, enable); }
int olOSGWidget::getNavOrbitDetectionArea() { return olHostState::the().navOrbitDetectionArea; }
void olOSGWidget::setNavOrbitDetectionArea(int area)
{
    calls.set("setNavOrbitDetectionArea", &State::navOrbitDetectionArea, area);
}
int olOSGWidget::getNavOrbitDetectionTime() { return olHostState::the().navOrbitDetectionTime; }
void olOSGWidget::setNavOrbitDetectionTime(int time)
{
    calls.set("setNavOrbitDetectionTime", &State::navOrbitDetectionTime, time);
}
void olOSGWidget::setSpacemouseViewMode(int mode)
{
    calls.set("setSpacemouseViewMode", &State::spacemouseViewMode, mode);
}
void olOSGWidget::setSpacemousePivotMode(int mode)
{
    calls.set("setSpacemousePivotMode", &State::spacemousePivotMode, mode);
}
void olOSGWidget::setSpacemouseTwoAxis(bool enable)
{
    calls.set("setSpacemouseTwoAxis", &State::spacemouseTwoAxis, enable);
}
void olOSGWidget::setSpacemouseHelicopter(bool enable)
{
    calls.set("setSpacemouseHelicopter", &State::spacemouseHelicopter, enable);
}
void olOSGWidget::setSpacemouseUseFixedHeight(bool use)
{
    calls.set("setSpacemouseUseFixedHeight", &State::spacemouseUseFixedHeight, use);
}
void olOSGWidget::setSpacemouseFixedHeight(float height)
{
    calls.set("setSpacemouseFixedHeight", &State::spacemouseFixedHeight, height);
}
int olOSGWidget::getDisplayType() { return olHostState::the().displayType; }
void olOSGWidget::setDisplayType(int display) { calls.set("setDisplayType", &State::displayType, display); }
