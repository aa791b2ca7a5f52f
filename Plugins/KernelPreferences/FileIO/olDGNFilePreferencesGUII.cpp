#include "FileIO/olDGNFilePreferencesGUII.h"

#include "FileIO/olFileType.h"

olDGNFilePreferencesGUII::olDGNFilePreferencesGUII() : olFileTypePreferences(olFileType::Dgn, "DGN") {}
