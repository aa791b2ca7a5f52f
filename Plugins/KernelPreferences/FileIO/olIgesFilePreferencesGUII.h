#pragma once

#include "FileIO/olCadImportPreferences.h"

/// The import of Iges files.
class olIgesFilePreferencesGUII : public olCadImportPreferences
{
    Q_OBJECT

public:
    olIgesFilePreferencesGUII();
};
