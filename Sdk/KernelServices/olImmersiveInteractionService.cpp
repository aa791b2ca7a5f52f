#include "KernelServices/olImmersiveInteractionService.h"

#include "State/olHostState.h"
#include "State/olJournal.h"

void olImmersiveInteractionService::setTeleportGroundMode(int mode)
{
    olJournal::call("olImmersiveInteractionService::setTeleportGroundMode", mode);
    olHostState::the().teleportGroundMode = mode;
}

void olImmersiveInteractionService::setTeleportRange(float range)
{
    olJournal::call("olImmersiveInteractionService::setTeleportRange", range);
    olHostState::the().teleportRange = range;
}

void olImmersiveInteractionService::setVisualiseHands(int mode)
{
    olJournal::call("olImmersiveInteractionService::setVisualiseHands", mode);
    olHostState::the().visualiseHands = mode;
}

void olImmersiveInteractionService::setAutoCreateCollisionObjects(bool create)
{
    olJournal::call("olImmersiveInteractionService::setAutoCreateCollisionObjects", create);
    olHostState::the().autoCreateCollisionObjects = create;
}

void olImmersiveInteractionService::setShowTooltipsOnStart(bool show)
{
    olJournal::call("olImmersiveInteractionService::setShowTooltipsOnStart", show);
    olHostState::the().showTooltipsOnStart = show;
}
