#pragma once

#include "Utilities/olExport.h"

namespace osg
{
inline namespace standin
{

// Only the stand-in has this: loaders of the real library register themselves, and nobody watches their options.

/// Registers a loader for a suffix, with empty options; a suffix already registered keeps its loader.
ORLO_SDK_EXPORT void registerSceneLoader(const char *suffix);

/// The options of every loader empty again.
ORLO_SDK_EXPORT void resetSceneOptions();

/// Is told every setting of options, before it is known whether the suffix has a loader. Null ends it.
using SceneOptionsObserver = void (*)(const char *suffix, const char *options);
ORLO_SDK_EXPORT void observeSceneOptions(SceneOptionsObserver observer);

} // namespace standin
} // namespace osg
