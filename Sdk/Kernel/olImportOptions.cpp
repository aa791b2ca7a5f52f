#include "Kernel/olImportOptions.h"

#include "State/olHostState.h"
#include "State/olImportRecord.h"
#include "State/olJournal.h"

#include <QString>

#include <utility>
#include <vector>

namespace
{

constexpr char className[] = "olImportOptions";

/// No importer here goes by them, and so they are to be seen at least.
void tellMaxChordLengths()
{
    olHostState &host = olHostState::the();
    std::vector<std::string> lengths;
    for (const auto &[type, record] : host.importRecords)
        lengths.push_back(type + ' ' + QString::number(record.maxChordLength).toStdString());
    host.maxChordLengths = lengths;
}

} // namespace

olImportOptions::olImportOptions(std::string type, bool continued, bool replacing)
    : m_type(std::move(type)), m_replacing(replacing), m_record(std::make_unique<olImportRecord>())
{
    olJournal::call(className, m_type, continued, replacing);
    const olImportRecord *before = continued ? olHostState::the().importRecord(m_type) : nullptr;
    if (before)
        *m_record = *before;
}

olImportOptions::~olImportOptions() = default;

template <class Value> void olImportOptions::set(const char *setter, Value &option, const Value &value)
{
    olJournal::callOn(className, m_type, setter, value);
    option = value;
}

void olImportOptions::setStitching(bool value) { set("setStitching", m_record->stitching, value); }
void olImportOptions::setStitchingTolerance(double value)
{
    set("setStitchingTolerance", m_record->stitchingTolerance, value);
}
void olImportOptions::setTessellation(bool value) { set("setTessellation", m_record->tessellation, value); }
void olImportOptions::setKeepSurfaceData(bool value) { set("setKeepSurfaceData", m_record->keepSurfaceData, value); }
void olImportOptions::setCreateGroupsForLayers(bool value)
{
    set("setCreateGroupsForLayers", m_record->createGroupsForLayers, value);
}
void olImportOptions::setChordDeviation(double value) { set("setChordDeviation", m_record->chordDeviation, value); }
void olImportOptions::setNormalTolerance(double value) { set("setNormalTolerance", m_record->normalTolerance, value); }
void olImportOptions::setMaxChordLength(double value) { set("setMaxChordLength", m_record->maxChordLength, value); }
void olImportOptions::setMergeGeometries(bool value) { set("setMergeGeometries", m_record->mergeGeometries, value); }
void olImportOptions::setRemoveEmptyGroups(bool value)
{
    set("setRemoveEmptyGroups", m_record->removeEmptyGroups, value);
}
void olImportOptions::setUnshareNodes(bool value) { set("setUnshareNodes", m_record->unshareNodes, value); }
void olImportOptions::setFlushTransformations(bool value)
{
    set("setFlushTransformations", m_record->flushTransformations, value);
}
void olImportOptions::setUnifySurfaceNormals(bool value)
{
    set("setUnifySurfaceNormals", m_record->unifySurfaceNormals, value);
}
void olImportOptions::setImportSurfaces(bool value) { set("setImportSurfaces", m_record->importSurfaces, value); }
void olImportOptions::setImportInvisibleSurfaces(bool value)
{
    set("setImportInvisibleSurfaces", m_record->importInvisibleSurfaces, value);
}
void olImportOptions::setImportMeshes(bool value) { set("setImportMeshes", m_record->importMeshes, value); }
void olImportOptions::setImportInvisibleMeshes(bool value)
{
    set("setImportInvisibleMeshes", m_record->importInvisibleMeshes, value);
}
void olImportOptions::setImportCurves(bool value) { set("setImportCurves", m_record->importCurves, value); }
void olImportOptions::setImportInvisibleCurves(bool value)
{
    set("setImportInvisibleCurves", m_record->importInvisibleCurves, value);
}
void olImportOptions::setImportInvisibleInstances(bool value)
{
    set("setImportInvisibleInstances", m_record->importInvisibleInstances, value);
}
void olImportOptions::setImportAssociativeMeshes(bool value)
{
    set("setImportAssociativeMeshes", m_record->importAssociativeMeshes, value);
}
void olImportOptions::setImportEmptyLayers(bool value)
{
    set("setImportEmptyLayers", m_record->importEmptyLayers, value);
}
void olImportOptions::setImportCoordSystems(bool value)
{
    set("setImportCoordSystems", m_record->importCoordSystems, value);
}
void olImportOptions::setImportCameras(bool value) { set("setImportCameras", m_record->importCameras, value); }
void olImportOptions::setImportLights(bool value) { set("setImportLights", m_record->importLights, value); }
void olImportOptions::setImportVariants(bool value) { set("setImportVariants", m_record->importVariants, value); }
void olImportOptions::setImportTemplateGeometries(bool value)
{
    set("setImportTemplateGeometries", m_record->importTemplateGeometries, value);
}
void olImportOptions::setImportReferencedFiles(bool value)
{
    set("setImportReferencedFiles", m_record->importReferencedFiles, value);
}
void olImportOptions::setImportMeshLODs(int value) { set("setImportMeshLODs", m_record->importMeshLODs, value); }
void olImportOptions::setActiveLayerFilter(bool value)
{
    set("setActiveLayerFilter", m_record->activeLayerFilter, value);
}
void olImportOptions::setLoadBreps(int value) { set("setLoadBreps", m_record->loadBreps, value); }
void olImportOptions::setImportNurbs(bool value) { set("setImportNurbs", m_record->importNurbs, value); }

void olImportOptions::setUsePlugin(bool value)
{
    set("setUsePlugin", m_record->usePlugin, value);
    if (!value)
        m_record->legacyLoader.clear();
}

void olImportOptions::setLegacyLoader(const char *name)
{
    set("setLegacyLoader", m_record->legacyLoader, std::string(name));
}

void olImportOptions::write()
{
    olJournal::callOn(className, m_type, "write");
    olHostState &host = olHostState::the();
    const olImportRecord *before = host.importRecord(m_type);
    if (before && !m_replacing)
        return;
    const bool isSeen = before && before->maxChordLength == m_record->maxChordLength;
    host.importRecords[m_type] = *m_record;
    if (!isSeen)
        tellMaxChordLengths();
}
