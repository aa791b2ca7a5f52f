#pragma once

#include "FileIO/olFileTypePreferences.h"

/// The import of PLM XML files.
class olPLMXMLPreferencesGUII : public olFileTypePreferences
{
    Q_OBJECT

public:
    olPLMXMLPreferencesGUII();
};
