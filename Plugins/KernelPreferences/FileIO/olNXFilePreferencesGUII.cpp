#include "FileIO/olNXFilePreferencesGUII.h"

#include "FileIO/olFileType.h"

olNXFilePreferencesGUII::olNXFilePreferencesGUII() : olFileTypePreferences(olFileType::NX, "NX") {}
