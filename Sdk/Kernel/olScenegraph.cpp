#include "Kernel/olScenegraph.h"

#include "State/olHostState.h"
#include "State/olJournal.h"
#include "State/olSceneLoaders.h"

#include <OpenSG/OSGNode.h>

namespace
{

osg::NodePtr makeHeadlight()
{
    olStartOpenSG();
    return osg::Node::create();
}

} // namespace

osg::NodePtr olScenegraph::getHeadlight()
{
    static const osg::NodePtr headlight = makeHeadlight();
    return olHostState::the().headlight ? headlight : osg::NodePtr(osg::NullFC);
}

void olScenegraph::setHeadlightMode(int mode)
{
    olJournal::call("olScenegraph::setHeadlightMode", mode);
    olHostState::the().headlightMode = mode;
}

void olScenegraph::setMarkerSize(float size)
{
    olJournal::call("olScenegraph::setMarkerSize", size);
    olHostState::the().markerSize = size;
}

void olScenegraph::setLODSelection(bool enable)
{
    olJournal::call("olScenegraph::setLODSelection", enable);
    olHostState::the().lodSelection = enable;
}

void olScenegraph::setAutoScroll(bool enable)
{
    olJournal::call("olScenegraph::setAutoScroll", enable);
    olHostState::the().selectionAutoScroll = enable;
}

void olScenegraph::setPreselectionEnabled(bool enable)
{
    olJournal::call("olScenegraph::setPreselectionEnabled", enable);
    olHostState::the().preselectionEnabled = enable;
}

void olScenegraph::setPreselectionColor(const osg::Color3f &color)
{
    olJournal::call("olScenegraph::setPreselectionColor", color);
    olHostState::the().preselectionColor = color;
}

void olScenegraph::setSelectionColor(const osg::Color3f &color)
{
    olJournal::call("olScenegraph::setSelectionColor", color);
    olHostState::the().selectionColor = color;
}

void olScenegraph::setWireframeOverride(bool enable)
{
    olJournal::call("olScenegraph::setWireframeOverride", enable);
    olHostState::the().wireframeOverride = enable;
}
