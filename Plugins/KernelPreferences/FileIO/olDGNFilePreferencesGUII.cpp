#include "FileIO/olDGNFilePreferencesGUII.h"

#include "FileIO/olFileType.h"

olDGNFilePreferencesGUII::olDGNFilePreferencesGUII() : olCadImportPreferences(olFileType::Dgn, "DGN") {}
