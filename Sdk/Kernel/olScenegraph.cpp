#include "Kernel/olScenegraph.h"

#include "State/olHostCalls.h"
#include "State/olSceneLoaders.h"

#include <OpenSG/OSGNode.h>

namespace
{

using State = olHostState;

constexpr olHostCalls calls("olScenegraph");

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

void olScenegraph::setHeadlightMode(int mode) { calls.set("setHeadlightMode", &State::headlightMode, mode); }
void olScenegraph::setMarkerSize(float size) { calls.set("setMarkerSize", &State::markerSize, size); }
void olScenegraph::setLODSelection(bool enable) { calls.set("setLODSelection", &State::lodSelection, enable); }
void olScenegraph::setAutoScroll(bool enable) { calls.set("setAutoScroll", &State::selectionAutoScroll, enable); }
void olScenegraph::setPreselectionEnabled(bool enable)
{
    calls.set("setPreselectionEnabled", &State::preselectionEnabled, enable);
}
void olScenegraph::setPreselectionColor(const osg::Color3f &color)
{
    calls.set("setPreselectionColor", &State::preselectionColor, color);
}
void olScenegraph::setSelectionColor(const osg::Color3f &color)
{
    calls.set("setSelectionColor", &State::selectionColor, color);
}
void olScenegraph::setWireframeOverride(bool enable)
{
    calls.set("setWireframeOverride", &State::wireframeOverride, enable);
}
