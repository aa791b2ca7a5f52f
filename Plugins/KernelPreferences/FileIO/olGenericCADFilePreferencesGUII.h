#pragma once

#include "FileIO/olFileTypePreferences.h"

/// The import of files by the base CAD reader, which knows many formats.
class olGenericCADFilePreferencesGUII : public olFileTypePreferences
{
    Q_OBJECT

public:
    olGenericCADFilePreferencesGUII();
};
