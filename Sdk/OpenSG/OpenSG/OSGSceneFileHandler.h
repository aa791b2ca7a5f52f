#pragma once

#include "Utilities/olExport.h"
#include <OpenSG/OSGSceneFileType.h>

#include <map>

namespace osg
{
inline namespace standin
{

/// Knows the loaders of scene files by their suffixes and hands each its options.
class ORLO_SDK_EXPORT SceneFileHandler
{
public:
    static SceneFileHandler &the();

    /// The loader of a suffix; null where none has registered.
    [[nodiscard]] SceneFileType *getFileType(const char *suffix);

    /// Options belong to the registered loader: for a suffix that no loader has registered nothing is remembered and
    /// the answer is false.
    bool setOptions(const char *suffix, const char *options);

    /// The options of the suffix's loader, empty at first; null for a suffix without a loader.
    [[nodiscard]] const char *getOptions(const char *suffix);

private:
    friend ORLO_SDK_EXPORT bool osgInit(int argumentCount, char **arguments);

    SceneFileHandler() = default;

    std::map<std::string, SceneFileType> m_types;
};

} // namespace standin
} // namespace osg
