#pragma once

#include "FileIO/olFileTypePreferences.h"

/// The import of STL files and the format in which they are written.
class olStlFilePreferencesGUII : public olFileTypePreferences
{
    Q_OBJECT

public:
    olStlFilePreferencesGUII();

    void applyPreferences() override;
};
