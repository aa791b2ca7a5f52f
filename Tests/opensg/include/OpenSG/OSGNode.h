#pragma once

#include <OSGNodePtr.h>

namespace osg
{

class Node
{
public:
    static NodePtr create();
};

} // namespace osg
