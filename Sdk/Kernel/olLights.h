#pragma once

#include "Utilities/olExport.h"

#include <OpenSG/OSGNodePtr.h>

/// The lights of the scene.
class ORLO_SDK_EXPORT olLights
{
public:
    /// Makes the light one of another kind: `PointLight` or `DirectionalLight`. Nothing happens to a null light.
    static void changeLightType(osg::NodePtr light, const char *type);
};
