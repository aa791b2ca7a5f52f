#include "FileIO/olStepFilePreferencesGUII.h"

#include "FileIO/olFileType.h"

olStepFilePreferencesGUII::olStepFilePreferencesGUII() : olFileTypePreferences(olFileType::Step, "Step") {}
