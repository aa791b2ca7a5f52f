// A host that is linked by hand: without the start there is no node, and options are kept where there is a loader.
#include <OpenSG/OSGBaseFunctions.h>
#include <OpenSG/OSGNode.h>
#include <OpenSG/OSGNodePtr.h>
#include <OpenSG/OSGSceneFileHandler.h>

#include <string>

int main(int count, char *arguments[])
{
    const bool hadNode = osg::Node::create() != osg::NullFC;
    const bool isStarted = osg::osgInit(count, arguments);
    osg::SceneFileHandler &loaders = osg::SceneFileHandler::the();
    const bool isKept = loaders.setOptions("wrl", "a=1") && loaders.getOptions("wrl") == std::string("a=1");
    const bool isRefused = !loaders.setOptions("vrml", "a=1") && !loaders.getOptions("vrml");
    return !hadNode && isStarted && osg::Node::create() != osg::NullFC && isKept && isRefused ? 0 : 1;
}
