#pragma once

#include "Utilities/olExport.h"

/// Registers the host's loaders of scene files, whose options the modules set by suffix, and has the journal told of
/// those options. To be called before the plug-in is loaded; a second call does nothing.
ORLO_SDK_EXPORT void olRegisterSceneLoaders();

/// The loaders' options as nobody had set them.
void olResetSceneLoaders();
