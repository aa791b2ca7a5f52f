#pragma once

#include "FileIO/olFileTypePreferences.h"

/// The import of NX files.
class olNXFilePreferencesGUII : public olFileTypePreferences
{
    Q_OBJECT

public:
    olNXFilePreferencesGUII();
};
