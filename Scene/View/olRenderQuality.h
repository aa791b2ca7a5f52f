#pragma once

#include <QPointF>

#include <vector>

class Graphic3d_RenderingParams;

/// How much work goes into a frame, as the host's state says it: antialiasing, transparency, raytracing.
namespace olRenderQuality
{

/// What the frame is like.
struct Conditions {
    bool isMoving = false;
    bool isCoarse = false;
    bool isRaytraced = false;
    bool hasTransparency = false;
};

void apply(Graphic3d_RenderingParams &parameters, const Conditions &conditions);

/// Whether nothing of a frame at rest stands in the way of samples that the graphics card takes.
[[nodiscard]] bool isFreeForSamples(const Conditions &conditions);

/// By how much each of the pictures is shifted, in pixels, whose mean the frame is. At least one.
[[nodiscard]] std::vector<QPointF> shifts(const Conditions &conditions);

} // namespace olRenderQuality
