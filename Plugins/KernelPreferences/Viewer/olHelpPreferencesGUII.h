#pragma once

#include "Framework/olModule.h"

class olHelpPreferencesGUIW;

/// Where the help comes from, and the kind of help that pops up over controls.
class olHelpPreferencesGUII : public olModule<olHelpPreferencesGUIW>
{
    Q_OBJECT

public:
    olHelpPreferencesGUII();

    void applyPreferences() override;
    void updateGUI() override;
};
