#include "FileIO/olIgesFilePreferencesGUII.h"

#include "FileIO/olFileType.h"

olIgesFilePreferencesGUII::olIgesFilePreferencesGUII() : olFileTypePreferences(olFileType::Iges, "Iges") {}
