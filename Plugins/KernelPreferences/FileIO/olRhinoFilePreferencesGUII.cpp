#include "FileIO/olRhinoFilePreferencesGUII.h"

#include "FileIO/olFileType.h"
#include "FileIO/olFileTypePreferencesGUIW.h"
#include "FileIO/olImportSettings.h"
#include "Framework/olApply.h"
#include "Kernel/olFileIO.h"
#include "Kernel/olImportOptions.h"
#include "ui_olFileTypePreferencesGUI.h"

namespace
{

const olSetting<bool> useLegacyLoader{"RhinoOptions USEPLUGIN", false, atNextImport()};
const olSetting<bool> importNurbs{"RhinoOptions import nurbs", true, atNextImport()};

void extend(olSettingList &settings, olFileTypePreferencesGUIW &page)
{
    const auto &form = page.form();
    settings.add(useLegacyLoader, form.useLegacyRhinoLoader);
    settings.add(importNurbs, form.importNurbs);
    page.showRhinoGroup();
}

} // namespace

olRhinoFilePreferencesGUII::olRhinoFilePreferencesGUII() : olCadImportPreferences(olFileType::Rhino, "Rhino", &extend)
{
}

void olRhinoFilePreferencesGUII::applyPreferences()
{
    olCadImportPreferences::applyPreferences();

    const bool legacy = readOr(useLegacyLoader, false);
    const bool nurbs = readOr(importNurbs, true);

    // A second record on top of the one that all formats write. Merging is the setting that they all have, as it was
    // read for the first record.
    olImportOptions options(olFileType::name(olFileType::Rhino), true, true);
    options.setUsePlugin(legacy);
    options.setMergeGeometries(importSettings().mergeGeometries.last());
    options.setImportNurbs(nurbs);
    if (legacy)
        options.setLegacyLoader(legacyLoaderName);
    options.write();

    olFileIO::setUseLegacyRhinoLoader(legacy);
}
