#pragma once

#include <OSGConfig.h>

#include <string>

namespace osg
{

class SceneFileType
{
public:
    virtual ~SceneFileType() = default;
    virtual void setOptions(const char *options) { m_options = options; }
    virtual const char *getOptions() { return m_options.c_str(); }

private:
    std::string m_options;
};

} // namespace osg
