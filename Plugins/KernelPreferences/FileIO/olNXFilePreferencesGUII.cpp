#include "FileIO/olNXFilePreferencesGUII.h"

#include "FileIO/olFileType.h"

olNXFilePreferencesGUII::olNXFilePreferencesGUII() : olCadImportPreferences(olFileType::NX, "NX") {}
