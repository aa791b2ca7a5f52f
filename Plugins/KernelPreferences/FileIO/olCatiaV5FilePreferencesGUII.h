#pragma once

#include "FileIO/olFileTypePreferences.h"

/// The import of Catia V5 files.
class olCatiaV5FilePreferencesGUII : public olFileTypePreferences
{
    Q_OBJECT

public:
    olCatiaV5FilePreferencesGUII();
};
