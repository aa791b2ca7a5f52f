#include <OpenSG/OSGBaseFunctions.h>
#include <OpenSG/OSGNode.h>
#include <OpenSG/OSGSceneFileHandler.h>

#include <deque>

namespace osg
{
inline namespace standin
{

bool osgInit(int, char **)
{
    for (const char *suffix : {"wrl", "vrml", "mrb", "kbx", "osb", "opb"})
        SceneFileHandler::the().m_types[suffix];
    return true;
}

NodePtr Node::create()
{
    static std::deque<Node> nodes;
    return NodePtr(nodes.emplace_back());
}

SceneFileHandler &SceneFileHandler::the()
{
    static SceneFileHandler handler;
    return handler;
}

SceneFileType *SceneFileHandler::getFileType(const char *suffix)
{
    const auto found = m_types.find(suffix);
    return found == m_types.end() ? nullptr : &found->second;
}

const char *SceneFileHandler::getOptions(const char *suffix)
{
    const SceneFileType *type = getFileType(suffix);
    return type ? type->getOptions() : nullptr;
}

} // namespace standin
} // namespace osg
