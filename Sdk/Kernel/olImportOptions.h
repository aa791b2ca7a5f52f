#pragma once

#include "Utilities/olExport.h"

#include <memory>
#include <string>

struct olImportRecord;

/// The options with which files of one type are imported: set one by one, then written for the importers to read.
/// Lengths are millimetres, angles degrees.
class ORLO_SDK_EXPORT olImportOptions
{
public:
    /// With `continued` the options begin as they were last written for the type, so that several objects can each
    /// write their part; else as if no one had set them. With `replacing` write() takes the place of what was written
    /// before; else the first one stays.
    olImportOptions(std::string type, bool continued, bool replacing);
    ~olImportOptions();
    olImportOptions(const olImportOptions &) = delete;
    olImportOptions &operator=(const olImportOptions &) = delete;

    void setStitching(bool value);
    void setStitchingTolerance(double value);
    void setTessellation(bool value);
    void setKeepSurfaceData(bool value);
    void setCreateGroupsForLayers(bool value);
    void setChordDeviation(double value);
    void setNormalTolerance(double value);
    void setMaxChordLength(double value);
    void setMergeGeometries(bool value);
    void setRemoveEmptyGroups(bool value);
    void setUnshareNodes(bool value);
    void setFlushTransformations(bool value);
    void setUnifySurfaceNormals(bool value);

    // Invisible ones only count where the visible ones are imported.
    void setImportSurfaces(bool value);
    void setImportInvisibleSurfaces(bool value);
    void setImportMeshes(bool value);
    void setImportInvisibleMeshes(bool value);
    void setImportCurves(bool value);
    void setImportInvisibleCurves(bool value);

    void setImportInvisibleInstances(bool value);
    void setImportAssociativeMeshes(bool value);
    void setImportEmptyLayers(bool value);
    void setImportCoordSystems(bool value);
    void setImportCameras(bool value);
    void setImportLights(bool value);
    void setImportVariants(bool value);
    void setImportTemplateGeometries(bool value);
    void setImportReferencedFiles(bool value);

    /// 0 imports the finest level of detail of a mesh, others as many levels as there are.
    void setImportMeshLODs(int value);

    /// Whether a loader of its own reads the type, and which (`VWSH`). Without one its name is forgotten.
    void setUsePlugin(bool value);
    void setLegacyLoader(const char *name);

    void setActiveLayerFilter(bool value);

    /// Boundary representations: 0 tessellates all, 1 loads those of JT, 2 those of XT, 3 all.
    void setLoadBreps(int value);

    void setImportNurbs(bool value);

    /// Hands the options to the importers of this type.
    void write();

private:
    template <class Value> void set(const char *setter, Value &option, const Value &value);

    std::string m_type;
    bool m_replacing;
    std::unique_ptr<olImportRecord> m_record;
};
