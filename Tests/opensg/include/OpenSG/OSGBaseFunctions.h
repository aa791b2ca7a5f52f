#pragma once

#include <OSGConfig.h>

namespace osg
{

bool osgInit(int argumentCount, char **arguments, unsigned short major = 1, unsigned short minor = 8);

} // namespace osg
