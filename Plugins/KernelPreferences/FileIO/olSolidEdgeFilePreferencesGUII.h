#pragma once

#include "FileIO/olFileTypePreferences.h"

/// The import of SolidEdge files.
class olSolidEdgeFilePreferencesGUII : public olFileTypePreferences
{
    Q_OBJECT

public:
    olSolidEdgeFilePreferencesGUII();
};
