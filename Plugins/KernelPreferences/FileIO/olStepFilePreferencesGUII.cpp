#include "FileIO/olStepFilePreferencesGUII.h"

#include "FileIO/olFileType.h"

olStepFilePreferencesGUII::olStepFilePreferencesGUII() : olCadImportPreferences(olFileType::Step, "Step") {}
