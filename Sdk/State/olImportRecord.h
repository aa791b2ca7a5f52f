#pragma once

#include <string>

/// The options that an importer goes by. Those that nobody set are as here. Lengths are millimetres, angles degrees.
struct olImportRecord {
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
