#pragma once

#include <OSGSceneFileType.h>

#include <map>

namespace osg
{

class SceneFileHandler
{
public:
    static SceneFileHandler &the();

    virtual ~SceneFileHandler();
    virtual SceneFileType *getFileType(const char *suffix);
    virtual bool setOptions(const char *suffix, const char *options);
    virtual const char *getOptions(const char *suffix);

private:
    std::map<std::string, SceneFileType> m_types{{"osb", {}}, {"wrl", {}}};
};

} // namespace osg
