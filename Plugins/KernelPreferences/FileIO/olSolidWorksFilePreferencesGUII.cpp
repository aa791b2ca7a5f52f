#include "FileIO/olSolidWorksFilePreferencesGUII.h"

#include "FileIO/olFileType.h"

olSolidWorksFilePreferencesGUII::olSolidWorksFilePreferencesGUII()
    : olCadImportPreferences(olFileType::SolidWorks, "SolidWorks")
{
}
