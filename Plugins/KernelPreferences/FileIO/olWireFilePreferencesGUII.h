#pragma once

#include "FileIO/olCadImportPreferences.h"

/// The import of the wire files of Contura.
class olWireFilePreferencesGUII : public olCadImportPreferences
{
    Q_OBJECT

public:
    olWireFilePreferencesGUII();
};
