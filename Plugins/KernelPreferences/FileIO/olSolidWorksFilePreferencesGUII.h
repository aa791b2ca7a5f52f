#pragma once

#include "FileIO/olCadImportPreferences.h"

/// The import of SolidWorks files.
class olSolidWorksFilePreferencesGUII : public olCadImportPreferences
{
    Q_OBJECT

public:
    olSolidWorksFilePreferencesGUII();
};
