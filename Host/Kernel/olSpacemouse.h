#pragma once

#include "Utilities/olExport.h"

/// The 3D mouse.
class ORLO_SDK_EXPORT olSpacemouse
{
public:
    /// Searches for the device and uses it while it is there. Where there is none nothing else happens; a second call
    /// is one too many and does no harm.
    static void init();

    /// Lets go of the device; allowed when it was never searched for.
    static void terminate();
};
