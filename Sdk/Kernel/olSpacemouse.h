#pragma once

#include "Utilities/olExport.h"

/// The 3D mouse.
class ORLO_SDK_EXPORT olSpacemouse
{
public:
    /// Searches for the device and uses it while it is there. Where there is none the log says so and nothing else
    /// happens. Never blocks. A second call looks again where nothing was found before, else it does no harm.
    static void init();

    /// Lets go of the device; allowed when it was never searched for.
    static void terminate();
};
