#include "Kernel/olOSGWidget.h"

#include "State/olHostState.h"
#include "State/olJournal.h"
#include "Utilities/olLog.h"

#include <QCoreApplication>
#include <QString>

#include <algorithm>
#include <cmath>

namespace
{

void setPreset(olHostState::AntialiasingPreset &preset, int multisamples, bool pixelfilter, bool supersample,
               int raytracingSamples)
{
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
    olJournal::call("olOSGWidget::setGlobalEyeSeparation", separation);
    olHostState::the().eyeSeparation = separation;
}

void olOSGWidget::setGlobalZeroParallaxDistance(float distance)
{
    olJournal::call("olOSGWidget::setGlobalZeroParallaxDistance", distance);
    olHostState::the().zeroParallaxDistance = distance;
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

void olOSGWidget::enableRender(int enable)
{
    olJournal::call("olOSGWidget::enableRender", enable);
    olHostState::the().renderEnabled = enable != 0;
}

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

void olOSGWidget::setSortTrans(int sort)
{
    olJournal::call("olOSGWidget::setSortTrans", sort);
    olHostState::the().sortTransparency = sort != 0;
}

void olOSGWidget::setZWriteTrans(int write)
{
    olJournal::call("olOSGWidget::setZWriteTrans", write);
    olHostState::the().zWriteTransparency = write != 0;
}

void olOSGWidget::setOcclusionCulling(int enable)
{
    olJournal::call("olOSGWidget::setOcclusionCulling", enable);
    olHostState::the().occlusionCulling = enable != 0;
}

void olOSGWidget::enableRaytracingDownscale(int enable)
{
    olJournal::call("olOSGWidget::enableRaytracingDownscale", enable);
    olHostState::the().raytracingDownscale = enable != 0;
}

void olOSGWidget::setRaytracingDownscaleFactor(unsigned factor)
{
    olJournal::call("olOSGWidget::setRaytracingDownscaleFactor", factor);
    olHostState::the().raytracingDownscaleFactor = factor;
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
    olJournal::call("olOSGWidget::showInteractiveMaterialPreview", show);
    olHostState::the().interactiveMaterialPreview = show;
}

void olOSGWidget::setRGB10(bool use)
{
    olJournal::call("olOSGWidget::setRGB10", use);
    olHostState::the().rgb10 = use;
}

void olOSGWidget::setRGB16F(bool use)
{
    olJournal::call("olOSGWidget::setRGB16F", use);
    olHostState::the().rgb16F = use;
}

void olOSGWidget::setUseSinglePassStereo(bool use)
{
    olJournal::call("olOSGWidget::setUseSinglePassStereo", use);
    olHostState::the().singlePassStereo = use;
}

void olOSGWidget::setForceGLFinish(bool force)
{
    olJournal::call("olOSGWidget::setForceGLFinish", force);
    olHostState::the().forceGLFinish = force;
}

void olOSGWidget::setSLI(bool enable)
{
    olJournal::call("olOSGWidget::setSLI", enable);
    olHostState::the().sli = enable;
}

void olOSGWidget::setSLIMode(int mode)
{
    olJournal::call("olOSGWidget::setSLIMode", mode);
    olHostState::the().sliMode = mode;
}

void olOSGWidget::enableAntialiasing(int enable)
{
    olJournal::call("olOSGWidget::enableAntialiasing", enable);
    olHostState::the().antialiasing = enable != 0;
}

void olOSGWidget::setPostprocessAntialiasing(unsigned quality)
{
    olJournal::call("olOSGWidget::setPostprocessAntialiasing", quality);
    olHostState::the().postprocessAntialiasing = quality;
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
    olJournal::call("olOSGWidget::setHighQualityAntialiasing", enable);
    olHostState::the().highQualityAntialiasing = enable;
}

void olOSGWidget::setAuxiliaryNodesVisibleDuringAntialiasing(bool visible)
{
    olJournal::call("olOSGWidget::setAuxiliaryNodesVisibleDuringAntialiasing", visible);
    olHostState::the().auxiliaryNodesDuringAntialiasing = visible;
}

void olOSGWidget::setAutoSuperSampling(bool enable)
{
    olJournal::call("olOSGWidget::setAutoSuperSampling", enable);
    olHostState::the().autoSuperSampling = enable;
}

void olOSGWidget::setSuperSampling(bool enable)
{
    olJournal::call("olOSGWidget::setSuperSampling", enable);
    olHostState::the().superSampling = enable;
}

void olOSGWidget::setSuperSamplingQuality(unsigned samples)
{
    olJournal::call("olOSGWidget::setSuperSamplingQuality", samples);
    olHostState::the().superSamplingQuality = samples;
}

void olOSGWidget::setAntialiasingQualityLow(int multisamples, bool pixelfilter, bool supersample, int raytracingSamples)
{
    olJournal::call("olOSGWidget::setAntialiasingQualityLow", multisamples, pixelfilter, supersample,
                    raytracingSamples);
    setPreset(olHostState::the().antialiasingLow, multisamples, pixelfilter, supersample, raytracingSamples);
}

void olOSGWidget::setAntialiasingQualityMedium(int multisamples, bool pixelfilter, bool supersample,
                                               int raytracingSamples)
{
    olJournal::call("olOSGWidget::setAntialiasingQualityMedium", multisamples, pixelfilter, supersample,
                    raytracingSamples);
    setPreset(olHostState::the().antialiasingMedium, multisamples, pixelfilter, supersample, raytracingSamples);
}

void olOSGWidget::setAntialiasingQualityHigh(int multisamples, bool pixelfilter, bool supersample,
                                             int raytracingSamples)
{
    olJournal::call("olOSGWidget::setAntialiasingQualityHigh", multisamples, pixelfilter, supersample,
                    raytracingSamples);
    setPreset(olHostState::the().antialiasingHigh, multisamples, pixelfilter, supersample, raytracingSamples);
}

void olOSGWidget::setAntialiasingQualityUltra(int multisamples, bool pixelfilter, bool supersample,
                                              int raytracingSamples)
{
    olJournal::call("olOSGWidget::setAntialiasingQualityUltra", multisamples, pixelfilter, supersample,
                    raytracingSamples);
    setPreset(olHostState::the().antialiasingUltra, multisamples, pixelfilter, supersample, raytracingSamples);
}

void olOSGWidget::enableHeadlight(int enable)
{
    olJournal::call("olOSGWidget::enableHeadlight", enable);
    olHostState::the().headlightEnabled = enable != 0;
}

void olOSGWidget::showCoordinateSystem(int show)
{
    olJournal::call("olOSGWidget::showCoordinateSystem", show);
    olHostState::the().coordinateSystem = show != 0;
}

void olOSGWidget::showViewCube(bool show)
{
    olJournal::call("olOSGWidget::showViewCube", show);
    olHostState::the().viewCube = show;
}

void olOSGWidget::showLogo(bool show)
{
    olJournal::call("olOSGWidget::showLogo", show);
    olHostState::the().logo = show;
}

bool olOSGWidget::getCamerasVisible() { return olHostState::the().camerasVisible; }

void olOSGWidget::setCamerasVisible(bool visible)
{
    olJournal::call("olOSGWidget::setCamerasVisible", visible);
    olHostState::the().camerasVisible = visible;
}

bool olOSGWidget::getLightsVisible() { return olHostState::the().lightsVisible; }

void olOSGWidget::setLightsVisible(bool visible)
{
    olJournal::call("olOSGWidget::setLightsVisible", visible);
    olHostState::the().lightsVisible = visible;
}

bool olOSGWidget::getJointsVisible() { return olHostState::the().jointsVisible; }

void olOSGWidget::setJointsVisible(bool visible)
{
    olJournal::call("olOSGWidget::setJointsVisible", visible);
    olHostState::the().jointsVisible = visible;
}

void olOSGWidget::setWireframeSelection(bool enable)
{
    olJournal::call("olOSGWidget::setWireframeSelection", enable);
    olHostState::the().wireframeSelection = enable;
}

void olOSGWidget::setWireframeAlwaysInFront(bool inFront)
{
    olJournal::call("olOSGWidget::setWireframeAlwaysInFront", inFront);
    olHostState::the().wireframeAlwaysInFront = inFront;
}

void olOSGWidget::setNavMode(int view, Mode mode)
{
    olJournal::call("olOSGWidget::setNavMode", view, int(mode));
    olHostState::the().navMode = mode;
}

void olOSGWidget::setInteractionMode(InteractionMode mode)
{
    olJournal::call("olOSGWidget::setInteractionMode", int(mode));
    olHostState::the().interactionMode = mode;
}

void olOSGWidget::setNavAutoCenter(bool enable)
{
    olJournal::call("olOSGWidget::setNavAutoCenter", enable);
    olHostState::the().navAutoCenter = enable;
}

void olOSGWidget::setNavInvertDollyAxis(bool invert)
{
    olJournal::call("olOSGWidget::setNavInvertDollyAxis", invert);
    olHostState::the().navInvertDollyAxis = invert;
}

void olOSGWidget::setNavInvertWheelDolly(bool invert)
{
    olJournal::call("olOSGWidget::setNavInvertWheelDolly", invert);
    olHostState::the().navInvertWheelDolly = invert;
}

void olOSGWidget::setAnimateNavCam(bool animate)
{
    olJournal::call("olOSGWidget::setAnimateNavCam", animate);
    olHostState::the().animateNavCam = animate;
}

void olOSGWidget::setAnimateNavCamDuration(float duration)
{
    olJournal::call("olOSGWidget::setAnimateNavCamDuration", duration);
    olHostState::the().animateNavCamDuration = duration;
}

bool olOSGWidget::getNavUsePivotBasedPanning() { return olHostState::the().navUsePivotBasedPanning; }

void olOSGWidget::setNavUsePivotBasedPanning(bool use)
{
    olJournal::call("olOSGWidget::setNavUsePivotBasedPanning", use);
    olHostState::the().navUsePivotBasedPanning = use;
}

float olOSGWidget::getNavPanningSpeed() { return olHostState::the().navPanningSpeed; }

void olOSGWidget::setNavPanningSpeed(float factor)
{
    olJournal::call("olOSGWidget::setNavPanningSpeed", factor);
    olHostState::the().navPanningSpeed = factor;
}

int olOSGWidget::getNavSpeedMode() { return olHostState::the().navSpeedMode; }

void olOSGWidget::setNavSpeedMode(int mode)
{
    olJournal::call("olOSGWidget::setNavSpeedMode", mode);
    olHostState::the().navSpeedMode = mode;
}

float olOSGWidget::getNavDollySpeed() { return olHostState::the().navDollySpeed; }

void olOSGWidget::setNavDollySpeed(float factor)
{
    olJournal::call("olOSGWidget::setNavDollySpeed", factor);
    olHostState::the().navDollySpeed = factor;
}

int olOSGWidget::getNavDollyAxis() { return olHostState::the().navDollyAxis; }

void olOSGWidget::setNavDollyAxis(int axis)
{
    olJournal::call("olOSGWidget::setNavDollyAxis", axis);
    olHostState::the().navDollyAxis = axis;
}

bool olOSGWidget::getNavDollyToPivot() { return olHostState::the().navDollyToPivot; }

void olOSGWidget::setNavDollyToPivot(bool enable)
{
    olJournal::call("olOSGWidget::setNavDollyToPivot", enable);
    olHostState::the().navDollyToPivot = enable;
}

bool olOSGWidget::getNavOrbitMode() { return olHostState::the().navOrbitMode; }

void olOSGWidget::setNavOrbitMode(bool enable)
{
    olJournal::call("olOSGWidget::setNavOrbitMode", enable);
    olHostState::the().navOrbitMode = enable;
}

int olOSGWidget::getNavOrbitDetectionArea() { return olHostState::the().navOrbitDetectionArea; }

void olOSGWidget::setNavOrbitDetectionArea(int area)
{
    olJournal::call("olOSGWidget::setNavOrbitDetectionArea", area);
    olHostState::the().navOrbitDetectionArea = area;
}

int olOSGWidget::getNavOrbitDetectionTime() { return olHostState::the().navOrbitDetectionTime; }

void olOSGWidget::setNavOrbitDetectionTime(int time)
{
    olJournal::call("olOSGWidget::setNavOrbitDetectionTime", time);
    olHostState::the().navOrbitDetectionTime = time;
}

void olOSGWidget::setSpacemouseViewMode(int mode)
{
    olJournal::call("olOSGWidget::setSpacemouseViewMode", mode);
    olHostState::the().spacemouseViewMode = mode;
}

void olOSGWidget::setSpacemousePivotMode(int mode)
{
    olJournal::call("olOSGWidget::setSpacemousePivotMode", mode);
    olHostState::the().spacemousePivotMode = mode;
}

void olOSGWidget::setSpacemouseTwoAxis(bool enable)
{
    olJournal::call("olOSGWidget::setSpacemouseTwoAxis", enable);
    olHostState::the().spacemouseTwoAxis = enable;
}

void olOSGWidget::setSpacemouseHelicopter(bool enable)
{
    olJournal::call("olOSGWidget::setSpacemouseHelicopter", enable);
    olHostState::the().spacemouseHelicopter = enable;
}

void olOSGWidget::setSpacemouseUseFixedHeight(bool use)
{
    olJournal::call("olOSGWidget::setSpacemouseUseFixedHeight", use);
    olHostState::the().spacemouseUseFixedHeight = use;
}

void olOSGWidget::setSpacemouseFixedHeight(float height)
{
    olJournal::call("olOSGWidget::setSpacemouseFixedHeight", height);
    olHostState::the().spacemouseFixedHeight = height;
}

int olOSGWidget::getDisplayType() { return olHostState::the().displayType; }

void olOSGWidget::setDisplayType(int display)
{
    olJournal::call("olOSGWidget::setDisplayType", display);
    olHostState::the().displayType = display;
}
