#pragma once

#include "FileIO/olFileTypePreferences.h"

/// The import of DGN files.
class olDGNFilePreferencesGUII : public olFileTypePreferences
{
    Q_OBJECT

public:
    olDGNFilePreferencesGUII();
};
