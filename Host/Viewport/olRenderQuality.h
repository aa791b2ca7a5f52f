#pragma once

class Graphic3d_RenderingParams;

/// How much work goes into a frame, as the host's state says it: antialiasing, transparency, raytracing.
namespace olRenderQuality
{

struct Wishes {
    bool isMoving = false;
    bool isStill = false;
    bool isRaytraced = false;
};

void apply(Graphic3d_RenderingParams &parameters, const Wishes &wishes);

} // namespace olRenderQuality
