#pragma once

#include "FileIO/olCadImportPreferences.h"

/// The import of ProE / Creo files.
class olProEngineerFilePreferencesGUII : public olCadImportPreferences
{
    Q_OBJECT

public:
    olProEngineerFilePreferencesGUII();
};
