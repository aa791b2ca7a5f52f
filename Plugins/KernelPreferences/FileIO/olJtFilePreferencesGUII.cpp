#include "FileIO/olJtFilePreferencesGUII.h"

#include "FileIO/olFileType.h"
#include "FileIO/olFileTypePreferencesGUIW.h"
#include "Framework/olApply.h"
#include "Kernel/olFileIO.h"
#include "Kernel/olImportOptions.h"
#include "ui_olFileTypePreferencesGUI.h"

namespace
{

const olSetting<bool> useLegacyLoader{"JTOptions USEPLUGIN", false, atNextImport()};
const olSetting<bool> useActiveLayerFilter{"JTOptions ACTIVELAYERFILTER", true, atNextImport()};
const olSetting<int> loadBreps{"JTOptions LOADBREPS", 0, atNextImport()};

void extend(olSettingList &settings, olFileTypePreferencesGUIW &page)
{
    const auto &form = page.form();
    settings.add(useLegacyLoader, form.useLegacyJtLoader);
    settings.add(useActiveLayerFilter, form.useActiveLayerFilter);
    settings.add(loadBreps, form.loadBreps);
    page.showJtGroups();
}

} // namespace

olJtFilePreferencesGUII::olJtFilePreferencesGUII() : olCadImportPreferences(olFileType::Jt, "JT", &extend) {}

void olJtFilePreferencesGUII::applyPreferences()
{
    olCadImportPreferences::applyPreferences();

    const bool legacy = readOr(useLegacyLoader, false);
    const bool layerFilter = readOr(useActiveLayerFilter, true);
    const int breps = readOr(loadBreps, 0);

    // A second record on top of the one that all formats write.
    olImportOptions options(olFileType::name(olFileType::Jt), true, true);
    options.setUsePlugin(legacy);
    options.setActiveLayerFilter(layerFilter);
    options.setLoadBreps(breps);
    if (legacy)
        options.setLegacyLoader(legacyLoaderName);
    options.write();

    olFileIO::setUseLegacyJtLoader(legacy);
}
