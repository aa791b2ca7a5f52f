#include "FileIO/olProEngineerFilePreferencesGUII.h"

#include "FileIO/olFileType.h"

olProEngineerFilePreferencesGUII::olProEngineerFilePreferencesGUII()
    : olFileTypePreferences(olFileType::ProEngineer, "ProE / Creo")
{
}
