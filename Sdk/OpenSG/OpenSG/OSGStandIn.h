#pragma once

#include "Utilities/olExport.h"

namespace osg
{
inline namespace standin
{

/// Registers a loader for a suffix, with empty options; a suffix already registered keeps its loader. Only the
/// stand-in has this: loaders of the real library register themselves.
ORLO_SDK_EXPORT void registerSceneLoader(const char *suffix);

} // namespace standin
} // namespace osg
