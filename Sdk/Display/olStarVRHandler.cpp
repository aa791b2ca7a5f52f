#include "Display/olStarVRHandler.h"

#include "State/olHostCalls.h"

namespace
{

using State = olHostState;

constexpr olHostCalls calls("olStarVRHandler");

} // namespace

olStarVRHandler *olStarVRHandler::getHandler()
{
    static olStarVRHandler handler;
    return olHostState::the().starVRHandler ? &handler : nullptr;
}

void olStarVRHandler::setFoveatedRendering(bool enable)
{
    calls.set("setFoveatedRendering", &State::starVRFoveatedRendering, enable);
}
void olStarVRHandler::setFoveatedFovFactor(float factor)
{
    calls.set("setFoveatedFovFactor", &State::starVRFoveatedFovFactor, factor);
}
void olStarVRHandler::setFoveatedResolutionScale(float scale)
{
    calls.set("setFoveatedResolutionScale", &State::starVRFoveatedResolutionScale, scale);
}
void olStarVRHandler::setNonFoveatedResolutionScale(float scale)
{
    calls.set("setNonFoveatedResolutionScale", &State::starVRNonFoveatedResolutionScale, scale);
}
void olStarVRHandler::setFrontViewResolutionScale(float scale)
{
    calls.set("setFrontViewResolutionScale", &State::starVRFrontViewResolutionScale, scale);
}
void olStarVRHandler::setSideViewResolutionScale(float scale)
{
    calls.set("setSideViewResolutionScale", &State::starVRSideViewResolutionScale, scale);
}
void olStarVRHandler::setUseSingleTexture(bool use)
{
    calls.set("setUseSingleTexture", &State::starVRSingleTexture, use);
}
