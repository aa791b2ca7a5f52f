#pragma once

#include "FileIO/olCadImportPreferences.h"

/// The import of files by the base CAD reader, which knows many formats.
class olGenericCADFilePreferencesGUII : public olCadImportPreferences
{
    Q_OBJECT

public:
    olGenericCADFilePreferencesGUII();
};
