#pragma once

#include "Utilities/olExport.h"

/// Registers the host's loaders of scene files, whose options the modules set by suffix. To be called before the
/// plug-in is loaded; a second call does nothing.
ORLO_SDK_EXPORT void olRegisterSceneLoaders();
