#include <OpenSG/OSGSceneFileHandler.h>
#include <OpenSG/OSGStandIn.h>

namespace osg
{
inline namespace standin
{

namespace
{
SceneOptionsObserver currentObserver = nullptr;
}

SceneFileHandler &SceneFileHandler::the()
{
    static SceneFileHandler handler;
    return handler;
}

bool SceneFileHandler::setOptions(const char *suffix, const char *options)
{
    if (currentObserver)
        currentObserver(suffix, options);
    SceneFileType *type = find(suffix);
    if (!type)
        return false;
    type->options = options;
    return true;
}

const char *SceneFileHandler::getOptions(const char *suffix)
{
    const SceneFileType *type = find(suffix);
    return type ? type->options.c_str() : nullptr;
}

void registerSceneLoader(const char *suffix)
{
    SceneFileHandler &handler = SceneFileHandler::the();
    if (!handler.find(suffix))
        handler.m_types.push_back(std::make_unique<SceneFileType>(SceneFileType{suffix, {}}));
}

void resetSceneOptions()
{
    for (const auto &type : SceneFileHandler::the().m_types)
        type->options.clear();
}

void observeSceneOptions(SceneOptionsObserver observer) { currentObserver = observer; }

SceneFileType *SceneFileHandler::find(const char *suffix) const
{
    for (const auto &type : m_types) {
        if (type->suffix == suffix)
            return type.get();
    }
    return nullptr;
}

} // namespace standin
} // namespace osg
