#include "View/olRenderQuality.h"

#include "State/olHostState.h"

#include <Graphic3d_RenderingParams.hxx>

#include <algorithm>
#include <cmath>

namespace
{

constexpr float superSampled = 2.0f;
constexpr float coarse = 0.5f;
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

/// While the camera moves, nothing of the real-time kind may be wanted.
const olHostState::AntialiasingPreset *presetFor(const olRenderQuality::Conditions &conditions)
{
    return conditions.isMoving && olHostState::the().autoSuperSampling ? nullptr : presetInUse();
}

int samplesOf(const olHostState::AntialiasingPreset &preset, const olRenderQuality::Conditions &conditions)
{
    const int wanted = conditions.isRaytraced ? preset.raytracingSamples : preset.multisamples;
    return std::clamp(wanted, 1, largestSampleCount);
}

bool sorts(const olRenderQuality::Conditions &conditions)
{
    return conditions.hasTransparency && olHostState::the().sortTransparency;
}

/// The graphics card takes its samples faster than one picture after the other, but neither sorts it transparent
/// surfaces in them nor does it filter or work at another scale. It serves where speed counts.
bool takesSamplesOnCard(const olHostState::AntialiasingPreset &preset, const olRenderQuality::Conditions &conditions)
{
    return conditions.isMoving && !conditions.isRaytraced && !sorts(conditions) && !preset.supersampling;
}

/// As likely far out as a tent is high there, for a number that is evenly spread from 0 to 1.
double tent(double even) { return even < 0.5 ? std::sqrt(2.0 * even) - 1.0 : 1.0 - std::sqrt(2.0 - 2.0 * even); }

/// Evenly over one pixel, or the filter's way: over its neighbours too, but less the farther away.
std::vector<QPointF> spread(int count, bool isFiltered)
{
    // The steps that leave no gaps, whatever the count.
    constexpr double stepX = 0.7548776662466927;
    constexpr double stepY = 0.5698402909980532;
    std::vector<QPointF> places;
    QPointF middle;
    for (int i = 0; i < count; ++i) {
        const double x = std::fmod(0.5 + i * stepX, 1.0);
        const double y = std::fmod(0.5 + i * stepY, 1.0);
        places.push_back(isFiltered ? QPointF(tent(x), tent(y)) : QPointF(x - 0.5, y - 0.5));
        middle += places.back() / count;
    }
    // The picture as a whole stays where it is.
    for (QPointF &place : places)
        place -= middle;
    return places;
}

} // namespace

void olRenderQuality::apply(Graphic3d_RenderingParams &parameters, const Conditions &conditions)
{
    const olHostState &state = olHostState::the();
    const olHostState::AntialiasingPreset *preset = presetFor(conditions);
    parameters.NbMsaaSamples = preset && takesSamplesOnCard(*preset, conditions) ? samplesOf(*preset, conditions) : 0;
    parameters.ToEnableAlphaToCoverage = Standard_False;
    parameters.TransparencyMethod = sorts(conditions) ? Graphic3d_RTM_DEPTH_PEELING_OIT : Graphic3d_RTM_BLEND_UNORDERED;
    parameters.Method = conditions.isRaytraced ? Graphic3d_RM_RAYTRACING : Graphic3d_RM_RASTERIZATION;
    parameters.IsShadowEnabled = Standard_True;
    parameters.IsReflectionEnabled = Standard_True;
    if (!conditions.isRaytraced && conditions.isCoarse)
        parameters.RenderResolutionScale = coarse;
    else if (!conditions.isRaytraced)
        parameters.RenderResolutionScale = preset && preset->supersampling ? superSampled : 1.0f;
    else if (conditions.isMoving && state.raytracingDownscale)
        parameters.RenderResolutionScale = 1.0f / float(std::clamp(state.raytracingDownscaleFactor.get(), 1u, 8u));
    else
        parameters.RenderResolutionScale = 1.0f;
}

bool olRenderQuality::isFreeForSamples(const Conditions &conditions)
{
    return !conditions.isRaytraced && !sorts(conditions) && !presetFor(conditions);
}

std::vector<QPointF> olRenderQuality::shifts(const Conditions &conditions)
{
    const olHostState::AntialiasingPreset *preset = presetFor(conditions);
    if (!preset || takesSamplesOnCard(*preset, conditions))
        return {QPointF()};
    return spread(samplesOf(*preset, conditions), preset->pixelfilter);
}
