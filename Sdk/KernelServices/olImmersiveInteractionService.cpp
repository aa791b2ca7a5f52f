#include "KernelServices/olImmersiveInteractionService.h"

#include "State/olHostCalls.h"

namespace
{

using State = olHostState;

constexpr olHostCalls calls("olImmersiveInteractionService");

} // namespace

void olImmersiveInteractionService::setTeleportGroundMode(int mode)
{
    calls.set("setTeleportGroundMode", &State::teleportGroundMode, mode);
}
void olImmersiveInteractionService::setTeleportRange(float range)
{
    calls.set("setTeleportRange", &State::teleportRange, range);
}
void olImmersiveInteractionService::setVisualiseHands(int mode)
{
    calls.set("setVisualiseHands", &State::visualiseHands, mode);
}
void olImmersiveInteractionService::setAutoCreateCollisionObjects(bool create)
{
    calls.set("setAutoCreateCollisionObjects", &State::autoCreateCollisionObjects, create);
}
void olImmersiveInteractionService::setShowTooltipsOnStart(bool show)
{
    calls.set("setShowTooltipsOnStart", &State::showTooltipsOnStart, show);
}
