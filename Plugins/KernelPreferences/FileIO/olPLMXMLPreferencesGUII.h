#pragma once

#include "FileIO/olCadImportPreferences.h"

/// The import of PLM XML files.
class olPLMXMLPreferencesGUII : public olCadImportPreferences
{
    Q_OBJECT

public:
    olPLMXMLPreferencesGUII();
};
