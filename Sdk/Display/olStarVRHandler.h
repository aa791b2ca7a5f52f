#pragma once

#include "Utilities/olExport.h"

/// The StarVR headset. Most of its values act when the display is next switched to it. Scales are factors of the
/// headset's own resolution, 0 to 1.
class ORLO_SDK_EXPORT olStarVRHandler
{
public:
    /// Owned by the host; null where no headset is installed.
    static olStarVRHandler *getHandler();

    /// Whether only the area looked at is drawn sharply.
    void setFoveatedRendering(bool enable);

    /// Share of an eye's field of view that is drawn sharply, 0 to 1. Acts at once.
    void setFoveatedFovFactor(float factor);

    /// Inside and outside the sharp area.
    void setFoveatedResolutionScale(float scale);
    void setNonFoveatedResolutionScale(float scale);

    /// Without foveated rendering: ahead and at the sides.
    void setFrontViewResolutionScale(float scale);
    void setSideViewResolutionScale(float scale);

    /// Without foveated rendering: one texture for an eye, else one ahead and one at the side.
    void setUseSingleTexture(bool use);
};
