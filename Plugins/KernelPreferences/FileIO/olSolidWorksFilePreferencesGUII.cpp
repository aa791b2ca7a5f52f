#include "FileIO/olSolidWorksFilePreferencesGUII.h"

#include "FileIO/olFileType.h"

olSolidWorksFilePreferencesGUII::olSolidWorksFilePreferencesGUII()
    : olFileTypePreferences(olFileType::SolidWorks, "SolidWorks")
{
}
