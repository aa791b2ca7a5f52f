#pragma once

#include "FileIO/olCadImportPreferences.h"

/// The import of STL files and the format in which they are written.
class olStlFilePreferencesGUII : public olCadImportPreferences
{
    Q_OBJECT

public:
    olStlFilePreferencesGUII();

    void applyPreferences() override;
};
