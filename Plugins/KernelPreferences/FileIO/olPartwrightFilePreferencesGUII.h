#pragma once

#include "FileIO/olFileTypePreferences.h"

/// The import of Partwright files.
class olPartwrightFilePreferencesGUII : public olFileTypePreferences
{
    Q_OBJECT

public:
    olPartwrightFilePreferencesGUII();
};
