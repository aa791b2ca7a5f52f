#pragma once

#include "Framework/olSetting.h"
#include "Framework/olTypedAccess.h"
#include "Kernel/olPreferences.h"

#include <string>

/// A setting that remembers its last readable value, at first its default, for when the record has none of its type.
template <class T> class olRememberedSetting : public olSetting<T>
{
public:
    using olSetting<T>::olSetting;

    /// From the record where it can be read there.
    const T &read()
    {
        getFromMessage(olPreferences::getData(), this->key(), m_last);
        return m_last;
    }

    /// What read() gave the last time.
    [[nodiscard]] const T &last() const { return m_last; }

private:
    T m_last = this->defaultValue();
};

/// The import options that every CAD format has under keys of its own: the name of its file type, directly followed by
/// the option. Lengths are millimetres, angles degrees.
struct olImportSettings {
    explicit olImportSettings(std::string typeName) : type(std::move(typeName)) {}
    olImportSettings(const olImportSettings &) = delete;
    olImportSettings &operator=(const olImportSettings &) = delete;

    const std::string type;

    olRememberedSetting<bool> stitching{type + "Options stitching", true, atNextImport()};
    olRememberedSetting<double> stitchingTolerance{type + "Options stitching tolerance", 0.1,
                                                   atNextImport().inUnit("mm")};
    olRememberedSetting<bool> tessellation{type + "Options tessellation", true, atNextImport()};
    olRememberedSetting<bool> keepSurfaceData{type + "Options keep surface data", true, atNextImport()};
    olRememberedSetting<bool> createGroupsForLayers{type + "Options create groups for layers", true, atNextImport()};
    olRememberedSetting<double> chordDeviation{type + "Options chord deviation", 0.075, atNextImport().inUnit("mm")};
    olRememberedSetting<double> normalTolerance{type + "Options normal tolerance", 10.0, atNextImport().inUnit("°")};
    olRememberedSetting<double> maxChordLength{type + "Options max chord length", 200.0, atNextImport().inUnit("mm")};
    olRememberedSetting<bool> mergeGeometries{type + "Options merge geometries", true, atNextImport()};
    olRememberedSetting<bool> removeEmptyGroups{type + "Options remove empty groups", true, atNextImport()};
    olRememberedSetting<bool> unshareNodes{type + "Options unshare nodes", false, atNextImport()};
    olRememberedSetting<bool> flushTransformations{type + "Options flush transformations", false, atNextImport()};
    olRememberedSetting<bool> importSurfaces{type + "Options import surfaces", true, atNextImport()};
    olRememberedSetting<bool> importInvisibleSurfaces{type + "Options import invisible surfaces", false,
                                                      atNextImport()};
    olRememberedSetting<bool> unifySurfaceNormals{type + "Options unify surface normals", true, atNextImport()};
    olRememberedSetting<bool> importMeshes{type + "Options import meshes", true, atNextImport()};
    olRememberedSetting<bool> importInvisibleMeshes{type + "Options import invisible meshes", false, atNextImport()};
    olRememberedSetting<bool> importCurves{type + "Options import curves", false, atNextImport()};
    olRememberedSetting<bool> importInvisibleCurves{type + "Options import invisible curves", false, atNextImport()};
    olRememberedSetting<bool> importInvisibleInstances{type + "Options import invisible instances", false,
                                                       atNextImport()};
    olRememberedSetting<bool> importAssociativeMeshes{type + "Options import associative meshes", false,
                                                      atNextImport()};
    olRememberedSetting<bool> importEmptyLayers{type + "Options import empty layers", false, atNextImport()};
    olRememberedSetting<bool> importCoordSystems{type + "Options import coord systems", false, atNextImport()};
    olRememberedSetting<bool> importCameras{type + "Options import cameras", false, atNextImport()};
    olRememberedSetting<bool> importLights{type + "Options import lights", false, atNextImport()};
    olRememberedSetting<bool> importVariants{type + "Options import variants", false, atNextImport()};
    olRememberedSetting<bool> importTemplateGeometries{type + "Options import template geometries", false,
                                                       atNextImport()};
    olRememberedSetting<bool> importReferencedFiles{type + "Options import referenced files", true, atNextImport()};
    olRememberedSetting<int> importMeshLODs{type + "Options import mesh LODs", 2, atNextImport()};
};
