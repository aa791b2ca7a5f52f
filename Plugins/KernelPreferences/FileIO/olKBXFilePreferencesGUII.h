#pragma once

#include "FileIO/olFileTypePreferences.h"

/// How KBX files are written: the version and encoding of the file, and whether colours of vertices go into it.
class olKBXFilePreferencesGUII : public olFileTypePreferences
{
    Q_OBJECT

public:
    olKBXFilePreferencesGUII();

    void applyPreferences() override;
    void updateData() override;
};
