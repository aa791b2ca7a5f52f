#include "FileIO/olWireFilePreferencesGUII.h"

#include "FileIO/olFileType.h"

olWireFilePreferencesGUII::olWireFilePreferencesGUII() : olCadImportPreferences(olFileType::Wire, "Contura") {}
