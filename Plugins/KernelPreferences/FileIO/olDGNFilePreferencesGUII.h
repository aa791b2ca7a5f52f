#pragma once

#include "FileIO/olCadImportPreferences.h"

/// The import of DGN files.
class olDGNFilePreferencesGUII : public olCadImportPreferences
{
    Q_OBJECT

public:
    olDGNFilePreferencesGUII();
};
