#include "FileIO/olDraftixFilePreferencesGUII.h"

#include "FileIO/olFileType.h"

olDraftixFilePreferencesGUII::olDraftixFilePreferencesGUII() : olCadImportPreferences(olFileType::Draftix, "Draftix") {}
