#include "FileIO/olPartwrightFilePreferencesGUII.h"

#include "FileIO/olFileType.h"

olPartwrightFilePreferencesGUII::olPartwrightFilePreferencesGUII()
    : olFileTypePreferences(olFileType::Partwright, "Partwright")
{
}
