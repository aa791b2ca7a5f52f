#pragma once

#include "Utilities/olExport.h"

/// The host's built-in web server.
class ORLO_SDK_EXPORT olWebInterface
{
public:
    /// Whether requests are written to the log.
    void setDebugMode(bool enable);
};
