#include "FileIO/olDraftixFilePreferencesGUII.h"

#include "FileIO/olFileType.h"

olDraftixFilePreferencesGUII::olDraftixFilePreferencesGUII() : olFileTypePreferences(olFileType::Draftix, "Draftix") {}
