#include "FileIO/olPartwrightFilePreferencesGUII.h"

#include "FileIO/olFileType.h"

olPartwrightFilePreferencesGUII::olPartwrightFilePreferencesGUII()
    : olCadImportPreferences(olFileType::Partwright, "Partwright")
{
}
