#pragma once

#include "Utilities/olExport.h"

namespace osg
{

/// What a click into the view finds.
class ORLO_SDK_EXPORT Selection
{
public:
    /// Whether fully transparent objects are found too.
    static void setForceTransparentObjectSelection(bool force);
};

} // namespace osg
