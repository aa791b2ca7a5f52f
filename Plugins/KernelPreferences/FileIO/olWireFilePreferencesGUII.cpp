#include "FileIO/olWireFilePreferencesGUII.h"

#include "FileIO/olFileType.h"

olWireFilePreferencesGUII::olWireFilePreferencesGUII() : olFileTypePreferences(olFileType::Wire, "Contura") {}
