#pragma once

#include "Utilities/olExport.h"

#include <OpenSG/OSGColor.h>
#include <OpenSG/OSGNodePtr.h>

/// The scene and how it marks what is selected in it.
class ORLO_SDK_EXPORT olScenegraph
{
public:
    /// The light at the camera. It belongs to the scene; null where the scene has none.
    static osg::NodePtr getHeadlight();

    /// When the headlight shines: 0 as the scene needs, 1 always, 2 never, 3 as it did.
    static void setHeadlightMode(int mode);

    /// Size of the marks at a bounding box's corners, as a factor of their plain size.
    static void setMarkerSize(float size);

    /// Whether picking finds the group of levels of detail, else the level that is shown.
    static void setLODSelection(bool enable);

    /// Whether the scene tree scrolls to what was selected in the view.
    static void setAutoScroll(bool enable);

    /// Whether and in which colour the view shows what a click would select.
    static void setPreselectionEnabled(bool enable);
    static void setPreselectionColor(const osg::Color3f &color);

    static void setSelectionColor(const osg::Color3f &color);

    /// Whether the wireframe of the selection is drawn over what hides it.
    static void setWireframeOverride(bool enable);
};
