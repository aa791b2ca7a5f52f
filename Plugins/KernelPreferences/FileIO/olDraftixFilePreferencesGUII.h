#pragma once

#include "FileIO/olCadImportPreferences.h"

/// The import of Draftix files.
class olDraftixFilePreferencesGUII : public olCadImportPreferences
{
    Q_OBJECT

public:
    olDraftixFilePreferencesGUII();
};
