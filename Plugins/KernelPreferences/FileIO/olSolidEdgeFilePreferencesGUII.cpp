#include "FileIO/olSolidEdgeFilePreferencesGUII.h"

#include "FileIO/olFileType.h"

olSolidEdgeFilePreferencesGUII::olSolidEdgeFilePreferencesGUII()
    : olFileTypePreferences(olFileType::SolidEdge, "SolidEdge")
{
}
