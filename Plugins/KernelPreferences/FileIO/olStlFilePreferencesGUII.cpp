#include "FileIO/olStlFilePreferencesGUII.h"

#include "FileIO/olFileType.h"
#include "FileIO/olFileTypePreferencesGUIW.h"
#include "Framework/olApply.h"
#include "Kernel/olFileIO.h"
#include "ui_olFileTypePreferencesGUI.h"

namespace
{

const olSetting<int> exportFormat{"STLOptions export", 0};

} // namespace

olStlFilePreferencesGUII::olStlFilePreferencesGUII()
    : olFileTypePreferences(olFileType::Stl, "STL", &olFileTypePreferencesGUIW::showStlGroup)
{
    settings().add(exportFormat, page().form().stlExportFormat);
}

void olStlFilePreferencesGUII::applyPreferences()
{
    olFileTypePreferences::applyPreferences();
    olFileIO::setStlExportFormat(readOr(exportFormat, 0));
}
