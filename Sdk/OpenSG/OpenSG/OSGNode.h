#pragma once

#include "Utilities/olExport.h"
#include <OpenSG/OSGNodePtr.h>

namespace osg
{
inline namespace standin
{

/// A node of the scene graph, of which the stand-in knows nothing but that it is one. It lives to the end.
class Node
{
public:
    [[nodiscard]] ORLO_SDK_EXPORT static NodePtr create();
};

} // namespace standin
} // namespace osg
