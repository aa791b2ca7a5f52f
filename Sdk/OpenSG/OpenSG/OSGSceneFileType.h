#pragma once

#include <string>

namespace osg
{
inline namespace standin
{

/// What one loader of scene files holds: its suffix and the options it works with.
struct SceneFileType {
    std::string suffix;
    std::string options;
};

} // namespace standin
} // namespace osg
