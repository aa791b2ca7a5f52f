#pragma once

#include "FileIO/olCadImportPreferences.h"

/// The import of Rhino files, by one of two loaders.
class olRhinoFilePreferencesGUII : public olCadImportPreferences
{
    Q_OBJECT

public:
    olRhinoFilePreferencesGUII();

    void applyPreferences() override;
};
