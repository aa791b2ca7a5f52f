#pragma once

#include "FileIO/olFileTypePreferences.h"

/// The import of Draftix files.
class olDraftixFilePreferencesGUII : public olFileTypePreferences
{
    Q_OBJECT

public:
    olDraftixFilePreferencesGUII();
};
