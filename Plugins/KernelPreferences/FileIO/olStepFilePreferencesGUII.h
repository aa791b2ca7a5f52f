#pragma once

#include "FileIO/olCadImportPreferences.h"

/// The import of Step files.
class olStepFilePreferencesGUII : public olCadImportPreferences
{
    Q_OBJECT

public:
    olStepFilePreferencesGUII();
};
