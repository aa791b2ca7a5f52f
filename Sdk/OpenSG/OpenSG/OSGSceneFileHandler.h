#pragma once

#include "Utilities/olExport.h"
#include <OpenSG/OSGSceneFileType.h>

#include <memory>
#include <vector>

namespace osg
{
inline namespace standin
{

/// Knows the loaders of scene files by their suffixes and hands each its options.
class ORLO_SDK_EXPORT SceneFileHandler
{
public:
    static SceneFileHandler &the();

    /// Options belong to the registered loader: for a suffix that no loader has registered nothing is remembered and
    /// the answer is false.
    bool setOptions(const char *suffix, const char *options);

    /// The options of the suffix's loader, empty at first; null for a suffix without a loader.
    [[nodiscard]] const char *getOptions(const char *suffix);

private:
    friend ORLO_SDK_EXPORT void registerSceneLoader(const char *suffix);
    friend ORLO_SDK_EXPORT void resetSceneOptions();

    SceneFileHandler() = default;
    [[nodiscard]] SceneFileType *find(const char *suffix) const;

    // Kept by pointer: the texts that getOptions() hands out stay where they are when another loader registers.
    std::vector<std::unique_ptr<SceneFileType>> m_types;
};

} // namespace standin
} // namespace osg
