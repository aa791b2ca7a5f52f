#pragma once

#include "FileIO/olFileTypePreferences.h"

/// The import of Iges files.
class olIgesFilePreferencesGUII : public olFileTypePreferences
{
    Q_OBJECT

public:
    olIgesFilePreferencesGUII();
};
