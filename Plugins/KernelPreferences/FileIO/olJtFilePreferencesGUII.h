#pragma once

#include "FileIO/olCadImportPreferences.h"

/// The import of JT files, by one of two loaders.
class olJtFilePreferencesGUII : public olCadImportPreferences
{
    Q_OBJECT

public:
    olJtFilePreferencesGUII();

    void applyPreferences() override;
};
