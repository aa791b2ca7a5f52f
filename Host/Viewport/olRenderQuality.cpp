#include "Viewport/olRenderQuality.h"

#include "Embedded/olHostState.h"

#include <Graphic3d_RenderingParams.hxx>

#include <algorithm>

namespace
{

constexpr float superSampled = 2.0f;
constexpr int largestSampleCount = 16;

/// The preset that belongs to the samples that the antialiasing quality asks for; null while it is off.
const olHostState::AntialiasingPreset *presetInUse()
{
    const olHostState &state = olHostState::the();
    if (!state.superSampling)
        return nullptr;
    switch (state.superSamplingQuality) {
    case 0:
        return nullptr;
    case 2:
        return &state.antialiasingLow;
    case 4:
        return &state.antialiasingMedium;
    case 8:
        return &state.antialiasingHigh;
    default:
        return &state.antialiasingUltra;
    }
}

/// A multisampled buffer holds 2 or more; the graphics card takes the most that it can of what is asked.
int multisamples(const olHostState::AntialiasingPreset &preset)
{
    const int wanted = std::clamp(preset.multisamples.get(), 0, largestSampleCount);
    return wanted < 2 ? 0 : wanted;
}

void applyRaytracing(Graphic3d_RenderingParams &parameters, const olRenderQuality::Wishes &wishes,
                     const olHostState::AntialiasingPreset *preset)
{
    const olHostState &state = olHostState::the();
    parameters.Method = wishes.isRaytraced ? Graphic3d_RM_RAYTRACING : Graphic3d_RM_RASTERIZATION;
    if (!wishes.isRaytraced)
        return;
    const int samples = preset ? std::clamp(preset->raytracingSamples.get(), 1, largestSampleCount) : 1;
    parameters.IsAntialiasingEnabled = samples > 1;
    parameters.IsShadowEnabled = Standard_True;
    parameters.IsReflectionEnabled = Standard_True;
    parameters.NbMsaaSamples = 0;
    parameters.RenderResolutionScale = 1.0f;
    if (wishes.isMoving && state.raytracingDownscale)
        parameters.RenderResolutionScale = 1.0f / float(std::clamp(state.raytracingDownscaleFactor.get(), 1u, 8u));
}

} // namespace

void olRenderQuality::apply(Graphic3d_RenderingParams &parameters, const Wishes &wishes)
{
    const olHostState &state = olHostState::the();
    const bool realTime = !(wishes.isMoving && state.autoSuperSampling);
    const olHostState::AntialiasingPreset *preset = realTime ? presetInUse() : nullptr;

    parameters.NbMsaaSamples = preset ? multisamples(*preset) : 0;
    parameters.RenderResolutionScale = preset && preset->supersampling ? superSampled : 1.0f;
    parameters.TransparencyMethod =
        state.sortTransparency ? Graphic3d_RTM_DEPTH_PEELING_OIT : Graphic3d_RTM_BLEND_UNORDERED;
    applyRaytracing(parameters, wishes, preset);
}
