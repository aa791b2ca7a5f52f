#include "FileIO/olStlFilePreferencesGUII.h"

#include "FileIO/olFileType.h"
#include "FileIO/olFileTypePreferencesGUIW.h"
#include "Framework/olApply.h"
#include "Kernel/olFileIO.h"
#include "ui_olFileTypePreferencesGUI.h"

namespace
{

const olSetting<int> exportFormat{"STLOptions export", 0};

void extend(olSettingList &settings, olFileTypePreferencesGUIW &page)
{
    settings.add(exportFormat, page.form().stlExportFormat);
    page.showStlGroup();
}

} // namespace

olStlFilePreferencesGUII::olStlFilePreferencesGUII() : olCadImportPreferences(olFileType::Stl, "STL", &extend) {}

void olStlFilePreferencesGUII::applyPreferences()
{
    olCadImportPreferences::applyPreferences();
    olFileIO::setStlExportFormat(readOr(exportFormat, 0));
}
