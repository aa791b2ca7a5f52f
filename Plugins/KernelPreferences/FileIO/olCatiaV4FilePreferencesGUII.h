#pragma once

#include "FileIO/olFileTypePreferences.h"

/// The import of Catia V4 files.
class olCatiaV4FilePreferencesGUII : public olFileTypePreferences
{
    Q_OBJECT

public:
    olCatiaV4FilePreferencesGUII();
};
