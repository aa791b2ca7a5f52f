#pragma once

#include "FileIO/olCadImportPreferences.h"

/// The import of Catia V4 files.
class olCatiaV4FilePreferencesGUII : public olCadImportPreferences
{
    Q_OBJECT

public:
    olCatiaV4FilePreferencesGUII();
};
