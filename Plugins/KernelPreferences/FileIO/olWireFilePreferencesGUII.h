#pragma once

#include "FileIO/olFileTypePreferences.h"

/// The import of the wire files of Contura.
class olWireFilePreferencesGUII : public olFileTypePreferences
{
    Q_OBJECT

public:
    olWireFilePreferencesGUII();
};
