#include "FileIO/olFileTypePreferences.h"

#include "FileIO/olFileType.h"
#include "FileIO/olFileTypePreferencesGUIW.h"
#include "FileIO/olImportControls.h"
#include "FileIO/olImportSettings.h"
#include "Kernel/olImportOptions.h"
#include "ui_olFileTypePreferencesGUI.h"

#include <QCoreApplication>

#include <utility>

const olSetting<bool> olFileTypePreferences::useAtf{"BCADOptions use ATF", false};
const olSetting<bool> olFileTypePreferences::loadReferencedFiles{"PLMXML load referenced files", true};

olFileTypePreferences::olFileTypePreferences(int fileType, const char *displayName, ShowGroups showGroups)
    : olFileTypePreferences(displayName, showGroups, std::make_unique<olImportSettings>(olFileType::name(fileType)))
{
}

olFileTypePreferences::olFileTypePreferences(const char *displayName, ShowGroups showGroups)
    : olFileTypePreferences(displayName, showGroups, nullptr)
{
}

olFileTypePreferences::olFileTypePreferences(const char *displayName, ShowGroups showGroups,
                                             std::unique_ptr<olImportSettings> import)
    : olModule(QString::fromLatin1(displayName), QCoreApplication::translate("olPreferences", "FileIO")),
      m_page(std::make_unique<olFileTypePreferencesGUIW>()),
      m_import(std::move(import)),
      m_settings(*m_page)
{
    if (m_import)
        listImportSettings();
    if (showGroups)
        (m_page.get()->*showGroups)();
    addPreferencesGUI(m_page.get());
}

olFileTypePreferences::~olFileTypePreferences()
{
    m_settings.removeKeys();
    subPreferencesGUI(m_page.get());
}

void olFileTypePreferences::setDefaults(olMessage &, bool flag) { m_settings.writeDefaults(flag); }

void olFileTypePreferences::applyPreferences()
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

void olFileTypePreferences::updateGUI()
{
    m_settings.showOnPage();
    olTesselationSettings &tesselation = *m_page->form().tesselation;
    tesselation.enableGroups(olTesselationSettings::AllGroups);
    tesselation.updateQualityPreset();
}

void olFileTypePreferences::updateData() { m_settings.takeFromPage(*this); }

void olFileTypePreferences::listImportSettings()
{
    using Block = olTesselationSettings;
    using Part = Block::Control;
    const olImportSettings &import = *m_import;
    const auto &form = m_page->form();
    Block *block = form.tesselation;

    m_settings.add(import.stitching,
                   valueOf(block, Part::Stitching, &Block::isStitchingEnabled, &Block::setStitchingEnabled));
    m_settings.add(import.stitchingTolerance,
                   valueOf(block, Part::StitchingTolerance, &Block::stitchingTolerance, &Block::setStitchingTolerance));
    m_settings.add(import.tessellation,
                   valueOf(block, Part::Tessellation, &Block::isTessellationEnabled, &Block::setTessellationEnabled));
    m_settings.add(import.keepSurfaceData, form.keepSurfaceData);
    m_settings.add(import.createGroupsForLayers, form.createGroupsForLayers);
    m_settings.add(import.chordDeviation,
                   valueOf(block, Part::ChordDeviation, &Block::chordDeviation, &Block::setChordDeviation));
    m_settings.add(import.normalTolerance,
                   valueOf(block, Part::NormalTolerance, &Block::normalTolerance, &Block::setNormalTolerance));
    m_settings.add(import.maxChordLength,
                   valueOf(block, Part::MaxChordLength, &Block::maxChordLength, &Block::setMaxChordLength));
    m_settings.add(import.mergeGeometries, form.mergeGeometries);
    m_settings.add(import.removeEmptyGroups, form.removeEmptyGroups);
    m_settings.add(import.unshareNodes, form.unshareNodes);
    m_settings.add(import.flushTransformations, form.flushTransformations);
    m_settings.add(import.importSurfaces, imported(form.surfaces));
    m_settings.add(import.importInvisibleSurfaces, invisibleImported(form.surfaces));
    m_settings.add(import.unifySurfaceNormals, form.unifySurfaceNormals);
    m_settings.add(import.importMeshes, imported(form.meshes));
    m_settings.add(import.importInvisibleMeshes, invisibleImported(form.meshes));
    m_settings.add(import.importCurves, imported(form.curves));
    m_settings.add(import.importInvisibleCurves, invisibleImported(form.curves));
    m_settings.add(import.importInvisibleInstances, form.importInvisibleInstances);
    m_settings.add(import.importAssociativeMeshes, form.importAssociativeMeshes);
    m_settings.add(import.importEmptyLayers, form.importEmptyLayers);
    m_settings.add(import.importCoordSystems, form.importCoordSystems);
    m_settings.add(import.importCameras, form.importCameras);
    m_settings.add(import.importLights, form.importLights);
    m_settings.add(import.importVariants, form.importVariants);
    m_settings.add(import.importTemplateGeometries, form.importTemplateGeometries);
    m_settings.add(import.importReferencedFiles, form.importReferencedFiles);
    m_settings.add(import.importMeshLODs, meshLevels(form.importMeshLODs));

    m_settings.addShared(useAtf);
    m_settings.addShared(loadReferencedFiles);
}
