#pragma once

#include "FileIO/olFileTypePreferences.h"

/// The import of SolidWorks files.
class olSolidWorksFilePreferencesGUII : public olFileTypePreferences
{
    Q_OBJECT

public:
    olSolidWorksFilePreferencesGUII();
};
