#include "FileIO/olSolidEdgeFilePreferencesGUII.h"

#include "FileIO/olFileType.h"

olSolidEdgeFilePreferencesGUII::olSolidEdgeFilePreferencesGUII()
    : olCadImportPreferences(olFileType::SolidEdge, "SolidEdge")
{
}
