#pragma once

#include "FileIO/olFileTypePreferences.h"

/// The import of Rhino files, by one of two loaders.
class olRhinoFilePreferencesGUII : public olFileTypePreferences
{
    Q_OBJECT

public:
    olRhinoFilePreferencesGUII();

    void applyPreferences() override;
};
