#pragma once

#include "FileIO/olFileTypePreferences.h"

/// The import of ProE / Creo files.
class olProEngineerFilePreferencesGUII : public olFileTypePreferences
{
    Q_OBJECT

public:
    olProEngineerFilePreferencesGUII();
};
