#include "FileIO/olCatiaV5FilePreferencesGUII.h"

#include "FileIO/olFileType.h"

olCatiaV5FilePreferencesGUII::olCatiaV5FilePreferencesGUII() : olFileTypePreferences(olFileType::CatiaV5, "Catia V5") {}
