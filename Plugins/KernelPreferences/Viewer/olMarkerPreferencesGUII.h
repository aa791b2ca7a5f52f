#pragma once

#include "Framework/olModule.h"

class olMarkerPreferencesGUIW;

/// How the render view marks what is selected, and what a click there selects.
class olMarkerPreferencesGUII : public olModule<olMarkerPreferencesGUIW>
{
    Q_OBJECT

public:
    olMarkerPreferencesGUII();

    void applyPreferences() override;
};
