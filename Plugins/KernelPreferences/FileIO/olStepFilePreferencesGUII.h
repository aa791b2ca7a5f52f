#pragma once

#include "FileIO/olFileTypePreferences.h"

/// The import of Step files.
class olStepFilePreferencesGUII : public olFileTypePreferences
{
    Q_OBJECT

public:
    olStepFilePreferencesGUII();
};
