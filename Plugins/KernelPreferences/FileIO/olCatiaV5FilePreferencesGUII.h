#pragma once

#include "FileIO/olCadImportPreferences.h"

/// The import of Catia V5 files.
class olCatiaV5FilePreferencesGUII : public olCadImportPreferences
{
    Q_OBJECT

public:
    olCatiaV5FilePreferencesGUII();
};
