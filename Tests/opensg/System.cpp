#include <GL/glu.h>
#include <OpenSG/OSGBaseFunctions.h>
#include <OpenSG/OSGNode.h>
#include <OpenSG/OSGSceneFileHandler.h>

namespace osg
{

namespace
{
bool isStarted = false;
}

const NullFieldContainerPtr NullFC;

bool osgInit(int, char **, unsigned short, unsigned short) { return isStarted = gluGetString(GLU_VERSION) != nullptr; }

NodePtr Node::create()
{
    static Node node;
    return isStarted ? NodePtr(node) : NodePtr(NullFC);
}

SceneFileHandler &SceneFileHandler::the()
{
    static SceneFileHandler handler;
    return handler;
}

SceneFileHandler::~SceneFileHandler() = default;

SceneFileType *SceneFileHandler::getFileType(const char *suffix)
{
    const auto found = m_types.find(suffix);
    return found == m_types.end() ? nullptr : &found->second;
}

bool SceneFileHandler::setOptions(const char *suffix, const char *options)
{
    SceneFileType *type = getFileType(suffix);
    if (type)
        type->setOptions(options);
    return type != nullptr;
}

const char *SceneFileHandler::getOptions(const char *suffix)
{
    SceneFileType *type = getFileType(suffix);
    return type ? type->getOptions() : nullptr;
}

} // namespace osg
