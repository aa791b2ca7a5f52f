#include "Kernel/olGeometryOptimizer.h"

#include "State/olHostState.h"
#include "State/olJournal.h"

void olGeometryOptimizer::setTopologyTolerance(float tolerance)
{
    olJournal::call("olGeometryOptimizer::setTopologyTolerance", tolerance);
    olHostState::the().topologyTolerance = tolerance;
}

void olGeometryOptimizer::setTopologyMethod(int method)
{
    olJournal::call("olGeometryOptimizer::setTopologyMethod", method);
    olHostState::the().topologyMethod = method;
}

void olGeometryOptimizer::setOffsetFactor(float factor)
{
    olJournal::call("olGeometryOptimizer::setOffsetFactor", factor);
    olHostState::the().offsetFactor = factor;
}

void olGeometryOptimizer::setTessellationQuality(const std::vector<float> &tolerances)
{
    olJournal::call("olGeometryOptimizer::setTessellationQuality", tolerances);
    olHostState::the().tessellationQuality = tolerances;
}

void olGeometryOptimizer::setCheckOrientation(bool check)
{
    olJournal::call("olGeometryOptimizer::setCheckOrientation", check);
    olHostState::the().checkOrientation = check;
}
