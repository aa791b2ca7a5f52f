#pragma once

#include "Framework/olModule.h"

class olFileTypePreferencesGUIW;

/// A CAD format's place in the host's list, with a page of its own of the kind that they all have.
class olFileTypePreferences : public olModule<olFileTypePreferencesGUIW>
{
    Q_OBJECT

protected:
    explicit olFileTypePreferences(const char *displayName);
};
