#pragma once

#include "Utilities/olExport.h"

/// Starts OpenSG, which makes nothing before, and registers its loaders of scene files, whose options the modules set
/// by suffix. To be called before the plug-in is loaded; a second call does nothing.
ORLO_SDK_EXPORT void olStartOpenSG();

/// The loaders' options as nobody had set them.
void olResetSceneLoaders();
