#include "FileIO/olProEngineerFilePreferencesGUII.h"

#include "FileIO/olFileType.h"

olProEngineerFilePreferencesGUII::olProEngineerFilePreferencesGUII()
    : olCadImportPreferences(olFileType::ProEngineer, "ProE / Creo")
{
}
