#pragma once

#include "Utilities/olExport.h"

#include <string>

/// The options with which files of one type are imported: set one by one, then written for the importers to read.
/// Lengths are millimetres, angles degrees.
class ORLO_SDK_EXPORT olImportOptions
{
public:
    /// What an importer reads. Options that nobody set are as here.
    struct Record {
        bool stitching = true;
        double stitchingTolerance = 0.1;
        bool tessellation = true;
        bool keepSurfaceData = true;
        bool createGroupsForLayers = true;
        double chordDeviation = 0.075;
        double normalTolerance = 10.0;
        double maxChordLength = 200.0;
        bool mergeGeometries = true;
        bool removeEmptyGroups = true;
        bool unshareNodes = false;
        bool flushTransformations = false;
        bool importSurfaces = true;
        bool importInvisibleSurfaces = false;
        bool unifySurfaceNormals = true;
        bool importMeshes = true;
        bool importInvisibleMeshes = false;
        bool importCurves = false;
        bool importInvisibleCurves = false;
        bool importInvisibleInstances = false;
        bool importAssociativeMeshes = false;
        bool importEmptyLayers = false;
        bool importCoordSystems = false;
        bool importCameras = false;
        bool importLights = false;
        bool importVariants = false;
        bool importTemplateGeometries = false;
        bool importReferencedFiles = true;
        int importMeshLODs = 2;

        // JT and Rhino
        bool usePlugin = false;
        std::string legacyLoader;
        bool activeLayerFilter = true;
        int loadBreps = 0;
        bool importNurbs = true;
    };

    /// With `continued` the options begin as they were last written for the type, so that several objects can each
    /// write their part; else as no one had set them. With `replacing` write() takes the place of what was written
    /// before; else the first one stays.
    olImportOptions(std::string type, bool continued, bool replacing);

    void setStitching(bool value) { set("setStitching", m_record.stitching, value); }
    void setStitchingTolerance(double value) { set("setStitchingTolerance", m_record.stitchingTolerance, value); }
    void setTessellation(bool value) { set("setTessellation", m_record.tessellation, value); }
    void setKeepSurfaceData(bool value) { set("setKeepSurfaceData", m_record.keepSurfaceData, value); }
    void setCreateGroupsForLayers(bool value)
    {
        set("setCreateGroupsForLayers", m_record.createGroupsForLayers, value);
    }
    void setChordDeviation(double value) { set("setChordDeviation", m_record.chordDeviation, value); }
    void setNormalTolerance(double value) { set("setNormalTolerance", m_record.normalTolerance, value); }
    void setMaxChordLength(double value) { set("setMaxChordLength", m_record.maxChordLength, value); }
    void setMergeGeometries(bool value) { set("setMergeGeometries", m_record.mergeGeometries, value); }
    void setRemoveEmptyGroups(bool value) { set("setRemoveEmptyGroups", m_record.removeEmptyGroups, value); }
    void setUnshareNodes(bool value) { set("setUnshareNodes", m_record.unshareNodes, value); }
    void setFlushTransformations(bool value) { set("setFlushTransformations", m_record.flushTransformations, value); }
    void setUnifySurfaceNormals(bool value) { set("setUnifySurfaceNormals", m_record.unifySurfaceNormals, value); }

    // Invisible ones only count where the visible ones are imported.
    void setImportSurfaces(bool value) { set("setImportSurfaces", m_record.importSurfaces, value); }
    void setImportInvisibleSurfaces(bool value)
    {
        set("setImportInvisibleSurfaces", m_record.importInvisibleSurfaces, value);
    }
    void setImportMeshes(bool value) { set("setImportMeshes", m_record.importMeshes, value); }
    void setImportInvisibleMeshes(bool value)
    {
        set("setImportInvisibleMeshes", m_record.importInvisibleMeshes, value);
    }
    void setImportCurves(bool value) { set("setImportCurves", m_record.importCurves, value); }
    void setImportInvisibleCurves(bool value)
    {
        set("setImportInvisibleCurves", m_record.importInvisibleCurves, value);
    }

    void setImportInvisibleInstances(bool value)
    {
        set("setImportInvisibleInstances", m_record.importInvisibleInstances, value);
    }
    void setImportAssociativeMeshes(bool value)
    {
        set("setImportAssociativeMeshes", m_record.importAssociativeMeshes, value);
    }
    void setImportEmptyLayers(bool value) { set("setImportEmptyLayers", m_record.importEmptyLayers, value); }
    void setImportCoordSystems(bool value) { set("setImportCoordSystems", m_record.importCoordSystems, value); }
    void setImportCameras(bool value) { set("setImportCameras", m_record.importCameras, value); }
    void setImportLights(bool value) { set("setImportLights", m_record.importLights, value); }
    void setImportVariants(bool value) { set("setImportVariants", m_record.importVariants, value); }
    void setImportTemplateGeometries(bool value)
    {
        set("setImportTemplateGeometries", m_record.importTemplateGeometries, value);
    }
    void setImportReferencedFiles(bool value)
    {
        set("setImportReferencedFiles", m_record.importReferencedFiles, value);
    }

    /// 0 imports the finest level of detail of a mesh, others as many levels as there are.
    void setImportMeshLODs(int value) { set("setImportMeshLODs", m_record.importMeshLODs, value); }

    /// Whether a loader of its own reads the type, and which (`VWSH`). Without one its name is forgotten.
    void setUsePlugin(bool value);
    void setLegacyLoader(const char *name);

    void setActiveLayerFilter(bool value) { set("setActiveLayerFilter", m_record.activeLayerFilter, value); }

    /// Boundary representations: 0 tessellates all, 1 loads those of JT, 2 those of XT, 3 all.
    void setLoadBreps(int value) { set("setLoadBreps", m_record.loadBreps, value); }

    void setImportNurbs(bool value) { set("setImportNurbs", m_record.importNurbs, value); }

    /// Hands the options to the importers of this type.
    void write();

    /// What the importers of the type go by; null before anything was written. Stays where it is when written anew.
    static const Record *written(const std::string &type);

private:
    template <class Value> void set(const char *setter, Value &option, const Value &value);

    std::string m_type;
    bool m_replacing;
    Record m_record;
};
