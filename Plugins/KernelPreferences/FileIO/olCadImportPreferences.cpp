#include "FileIO/olCadImportPreferences.h"

#include "FileIO/olFileType.h"
#include "FileIO/olFileTypePreferencesGUIW.h"
#include "FileIO/olImportControls.h"
#include "FileIO/olImportSettings.h"
#include "Kernel/olImportOptions.h"
#include "ui_olFileTypePreferencesGUI.h"

const olSetting<bool> olCadImportPreferences::useAtf{"BCADOptions use ATF", false, atNextImport()};
const olSetting<bool> olCadImportPreferences::loadReferencedFiles{"PLMXML load referenced files", true, atNextImport()};

olCadImportPreferences::olCadImportPreferences(int fileType, const char *displayName, Extend extend)
    : olFileTypePreferences(displayName), m_import(std::make_unique<olImportSettings>(olFileType::name(fileType)))
{
    listImportSettings();
    if (extend)
        extend(settings(), page());
    handOverPage();
}

olCadImportPreferences::~olCadImportPreferences() = default;

void olCadImportPreferences::applyPreferences()
{
    // Everything is handed over every time, whether it changed or not: a record is written as a whole. What cannot be
    // read goes out as it was read last.
    olImportSettings &import = *m_import;
    olImportOptions options(import.type, true, true);
    options.setImportMeshes(import.importMeshes.read());
    options.setImportInvisibleMeshes(import.importInvisibleMeshes.read());
    options.setImportAssociativeMeshes(import.importAssociativeMeshes.read());
    options.setImportInvisibleInstances(import.importInvisibleInstances.read());
    options.setImportTemplateGeometries(import.importTemplateGeometries.read());
    options.setImportLights(import.importLights.read());
    options.setImportCameras(import.importCameras.read());
    options.setImportVariants(import.importVariants.read());
    options.setImportReferencedFiles(import.importReferencedFiles.read());
    options.setImportCoordSystems(import.importCoordSystems.read());

    // The others follow in the order of the keys.
    options.setStitching(import.stitching.read());
    options.setStitchingTolerance(import.stitchingTolerance.read());
    options.setTessellation(import.tessellation.read());
    options.setKeepSurfaceData(import.keepSurfaceData.read());
    options.setCreateGroupsForLayers(import.createGroupsForLayers.read());
    options.setChordDeviation(import.chordDeviation.read());
    options.setNormalTolerance(import.normalTolerance.read());
    options.setMaxChordLength(import.maxChordLength.read());
    options.setMergeGeometries(import.mergeGeometries.read());
    options.setRemoveEmptyGroups(import.removeEmptyGroups.read());
    options.setUnshareNodes(import.unshareNodes.read());
    options.setFlushTransformations(import.flushTransformations.read());
    options.setImportSurfaces(import.importSurfaces.read());
    options.setImportInvisibleSurfaces(import.importInvisibleSurfaces.read());
    options.setUnifySurfaceNormals(import.unifySurfaceNormals.read());
    options.setImportCurves(import.importCurves.read());
    options.setImportInvisibleCurves(import.importInvisibleCurves.read());
    options.setImportEmptyLayers(import.importEmptyLayers.read());
    options.setImportMeshLODs(import.importMeshLODs.read());
    options.write();
}

void olCadImportPreferences::updateGUI()
{
    settings().showOnPage();
    olTesselationSettings &tesselation = *page().form().tesselation;
    tesselation.enableGroups(~0u);
    tesselation.updateQualityPreset();
}

void olCadImportPreferences::listImportSettings()
{
    using Block = olTesselationSettings;
    using Part = Block::Control;
    const olImportSettings &import = *m_import;
    const auto &form = page().form();
    Block *block = form.tesselation;

    settings().add(import.stitching, valueOf(block, Part::Stitching, &Block::setStitchingEnabled));
    settings().add(import.stitchingTolerance, valueOf(block, Part::StitchingTolerance, &Block::setStitchingTolerance));
    settings().add(import.tessellation, qobject_cast<QCheckBox *>(block->control(Part::Tessellation)));
    settings().add(import.keepSurfaceData, form.keepSurfaceData);
    settings().add(import.createGroupsForLayers, form.createGroupsForLayers);
    settings().add(import.chordDeviation, valueOf(block, Part::ChordDeviation, &Block::setChordDeviation));
    settings().add(import.normalTolerance, valueOf(block, Part::NormalTolerance, &Block::setNormalTolerance));
    settings().add(import.maxChordLength, valueOf(block, Part::MaxChordLength, &Block::setMaxChordLength));
    settings().add(import.mergeGeometries, form.mergeGeometries);
    settings().add(import.removeEmptyGroups, form.removeEmptyGroups);
    settings().add(import.unshareNodes, form.unshareNodes);
    settings().add(import.flushTransformations, form.flushTransformations);
    settings().add(import.importSurfaces, imported(form.surfaces));
    settings().add(import.importInvisibleSurfaces, invisibleImported(form.surfaces));
    settings().add(import.unifySurfaceNormals, form.unifySurfaceNormals);
    settings().add(import.importMeshes, imported(form.meshes));
    settings().add(import.importInvisibleMeshes, invisibleImported(form.meshes));
    settings().add(import.importCurves, imported(form.curves));
    settings().add(import.importInvisibleCurves, invisibleImported(form.curves));
    settings().add(import.importInvisibleInstances, form.importInvisibleInstances);
    settings().add(import.importAssociativeMeshes, form.importAssociativeMeshes);
    settings().add(import.importEmptyLayers, form.importEmptyLayers);
    settings().add(import.importCoordSystems, form.importCoordSystems);
    settings().add(import.importCameras, form.importCameras);
    settings().add(import.importLights, form.importLights);
    settings().add(import.importVariants, form.importVariants);
    settings().add(import.importTemplateGeometries, form.importTemplateGeometries);
    settings().add(import.importReferencedFiles, form.importReferencedFiles);
    settings().add(import.importMeshLODs, meshLevels(form.importMeshLODs));

    settings().addShared(useAtf);
    settings().addShared(loadReferencedFiles);
}
