#pragma once

#include "Utilities/olExport.h"

/// How a person moves and sees their hands in an immersive session.
class ORLO_SDK_EXPORT olImmersiveInteractionService
{
public:
    /// 0 teleports onto geometry, 1 onto the ground plane.
    void setTeleportGroundMode(int mode);

    /// How far a teleport reaches, in scene units, 0 or more.
    void setTeleportRange(float range);

    /// What stands for the controllers when a session starts: 0 controllers, 1 hands.
    void setVisualiseHands(int mode);

    /// Whether touch sensors and web engines get collision objects.
    void setAutoCreateCollisionObjects(bool create);

    void setShowTooltipsOnStart(bool show);
};
