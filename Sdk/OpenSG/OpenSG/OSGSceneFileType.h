#pragma once

#include <string>

namespace osg
{
inline namespace standin
{

/// A loader of scene files, as far as the options go that it works with.
class SceneFileType
{
public:
    void setOptions(const char *options) { m_options = options; }
    [[nodiscard]] const char *getOptions() const { return m_options.c_str(); }

private:
    std::string m_options;
};

} // namespace standin
} // namespace osg
