#include "Kernel/olGeometryOptimizer.h"

#include "State/olHostCalls.h"

namespace
{

using State = olHostState;

constexpr olHostCalls calls("olGeometryOptimizer");

} // namespace

void olGeometryOptimizer::setTopologyTolerance(float tolerance)
{
    calls.set("setTopologyTolerance", &State::topologyTolerance, tolerance);
}
void olGeometryOptimizer::setTopologyMethod(int method)
{
    calls.set("setTopologyMethod", &State::topologyMethod, method);
}
void olGeometryOptimizer::setOffsetFactor(float factor) { calls.set("setOffsetFactor", &State::offsetFactor, factor); }
void olGeometryOptimizer::setTessellationQuality(const std::vector<float> &tolerances)
{
    calls.set("setTessellationQuality", &State::tessellationQuality, tolerances);
}
void olGeometryOptimizer::setCheckOrientation(bool check)
{
    calls.set("setCheckOrientation", &State::checkOrientation, check);
}
