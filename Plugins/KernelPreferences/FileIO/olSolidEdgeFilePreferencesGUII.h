#pragma once

#include "FileIO/olCadImportPreferences.h"

/// The import of SolidEdge files.
class olSolidEdgeFilePreferencesGUII : public olCadImportPreferences
{
    Q_OBJECT

public:
    olSolidEdgeFilePreferencesGUII();
};
