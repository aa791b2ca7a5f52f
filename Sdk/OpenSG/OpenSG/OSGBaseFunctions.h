#pragma once

#include "Utilities/olExport.h"

namespace osg
{
inline namespace standin
{

/// Starts the library, before anything is made. The stand-in's loaders of scene files are registered by it.
ORLO_SDK_EXPORT bool osgInit(int argumentCount, char **arguments);

} // namespace standin
} // namespace osg
