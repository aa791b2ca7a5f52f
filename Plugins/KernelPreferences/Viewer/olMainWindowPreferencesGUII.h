#pragma once

#include "Framework/olModule.h"

class olMainWindowPreferencesGUIW;

/// The main window: frame rate, opacity, docking, texts of tool buttons, and the language of the user interface.
class olMainWindowPreferencesGUII : public olModule<olMainWindowPreferencesGUIW>
{
    Q_OBJECT

public:
    olMainWindowPreferencesGUII();

    void setDefaults(olMessage &, bool flag) override;
    void applyPreferences() override;
    void updateData() override;

private:
    void askForRestart();
};
