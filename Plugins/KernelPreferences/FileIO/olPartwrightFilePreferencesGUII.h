#pragma once

#include "FileIO/olCadImportPreferences.h"

/// The import of Partwright files.
class olPartwrightFilePreferencesGUII : public olCadImportPreferences
{
    Q_OBJECT

public:
    olPartwrightFilePreferencesGUII();
};
