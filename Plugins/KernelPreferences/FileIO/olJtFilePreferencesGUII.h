#pragma once

#include "FileIO/olFileTypePreferences.h"

/// The import of JT files, by one of two loaders.
class olJtFilePreferencesGUII : public olFileTypePreferences
{
    Q_OBJECT

public:
    olJtFilePreferencesGUII();

    void applyPreferences() override;
};
