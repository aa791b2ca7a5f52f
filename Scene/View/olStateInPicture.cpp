#include "View/olStateInPicture.h"

#include "State/olHostState.h"

#include <initializer_list>
#include <unordered_map>

namespace
{

using Parts = std::unordered_map<const olHostValueBase *, unsigned>;

Parts allParts()
{
    const olHostState &s = olHostState::the();
    Parts parts;
    const auto add = [&parts](unsigned part, std::initializer_list<const olHostValueBase *> values) {
        for (const olHostValueBase *value : values)
            parts[value] |= part;
    };
    add(olStateInPicture::Frame, {&s.sleepTime,
                                  &s.renderEnabled,
                                  &s.viewUpdates,
                                  &s.fixedRenderWindowWidth,
                                  &s.fixedRenderWindowHeight,
                                  &s.backgroundColors,
                                  &s.backgroundPositions,
                                  &s.sortTransparency,
                                  &s.raytracingDownscale,
                                  &s.raytracingDownscaleFactor,
                                  &s.rgb16F,
                                  &s.forceGLFinish,
                                  &s.antialiasing,
                                  &s.postprocessAntialiasing,
                                  &s.antialiasingDistance,
                                  &s.antialiasingScale,
                                  &s.antialiasingTime,
                                  &s.auxiliaryNodesDuringAntialiasing,
                                  &s.autoSuperSampling,
                                  &s.superSampling,
                                  &s.superSamplingQuality,
                                  &s.coordinateSystem,
                                  &s.viewCube,
                                  &s.camerasVisible,
                                  &s.lightsVisible,
                                  &s.jointsVisible});
    for (const olHostState::AntialiasingPreset *preset :
         {&s.antialiasingLow, &s.antialiasingMedium, &s.antialiasingHigh, &s.antialiasingUltra})
        add(olStateInPicture::Frame,
            {&preset->multisamples, &preset->pixelfilter, &preset->supersampling, &preset->raytracingSamples});
    add(olStateInPicture::Camera, {&s.fov, &s.eyeSeparation, &s.zeroParallaxDistance, &s.cameraZUp,
                                   &s.limitNearFarPlane, &s.nearPlane, &s.farPlane});
    add(olStateInPicture::Lights, {&s.headlight, &s.headlightEnabled, &s.headlightMode, &s.headlightType});
    add(olStateInPicture::Hovering, {&s.preselectionEnabled, &s.preselectionColor});
    add(olStateInPicture::Solidity, {&s.zWriteTransparency});
    add(olStateInPicture::Selection,
        {&s.markerSize, &s.selectionColor, &s.wireframeSelection, &s.wireframeOverride, &s.wireframeAlwaysInFront});
    return parts;
}

} // namespace

unsigned olStateInPicture::partsOf(const olHostValueBase &value)
{
    static const Parts parts = allParts();
    const auto known = parts.find(&value);
    return known == parts.end() ? 0 : known->second;
}
