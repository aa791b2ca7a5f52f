#include "FileIO/olIgesFilePreferencesGUII.h"

#include "FileIO/olFileType.h"

olIgesFilePreferencesGUII::olIgesFilePreferencesGUII() : olCadImportPreferences(olFileType::Iges, "Iges") {}
