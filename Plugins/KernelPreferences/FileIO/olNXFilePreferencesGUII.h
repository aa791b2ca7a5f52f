#pragma once

#include "FileIO/olCadImportPreferences.h"

/// The import of NX files.
class olNXFilePreferencesGUII : public olCadImportPreferences
{
    Q_OBJECT

public:
    olNXFilePreferencesGUII();
};
