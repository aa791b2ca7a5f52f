#include "Display/olStarVRHandler.h"

#include "State/olHostState.h"
#include "State/olJournal.h"

olStarVRHandler *olStarVRHandler::getHandler()
{
    static olStarVRHandler handler;
    return olHostState::the().starVRHandler ? &handler : nullptr;
}

void olStarVRHandler::setFoveatedRendering(bool enable)
{
    olJournal::call("olStarVRHandler::setFoveatedRendering", enable);
    olHostState::the().starVRFoveatedRendering = enable;
}

void olStarVRHandler::setFoveatedFovFactor(float factor)
{
    olJournal::call("olStarVRHandler::setFoveatedFovFactor", factor);
    olHostState::the().starVRFoveatedFovFactor = factor;
}

void olStarVRHandler::setFoveatedResolutionScale(float scale)
{
    olJournal::call("olStarVRHandler::setFoveatedResolutionScale", scale);
    olHostState::the().starVRFoveatedResolutionScale = scale;
}

void olStarVRHandler::setNonFoveatedResolutionScale(float scale)
{
    olJournal::call("olStarVRHandler::setNonFoveatedResolutionScale", scale);
    olHostState::the().starVRNonFoveatedResolutionScale = scale;
}

void olStarVRHandler::setFrontViewResolutionScale(float scale)
{
    olJournal::call("olStarVRHandler::setFrontViewResolutionScale", scale);
    olHostState::the().starVRFrontViewResolutionScale = scale;
}

void olStarVRHandler::setSideViewResolutionScale(float scale)
{
    olJournal::call("olStarVRHandler::setSideViewResolutionScale", scale);
    olHostState::the().starVRSideViewResolutionScale = scale;
}

void olStarVRHandler::setUseSingleTexture(bool use)
{
    olJournal::call("olStarVRHandler::setUseSingleTexture", use);
    olHostState::the().starVRSingleTexture = use;
}
