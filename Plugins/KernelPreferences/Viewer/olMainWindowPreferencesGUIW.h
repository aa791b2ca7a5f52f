#pragma once

#include "Framework/olFormPage.h"

namespace Ui
{
class olMainWindowPreferencesGUI;
}

/// The page of the main window settings.
class olMainWindowPreferencesGUIW : public olFormPage<Ui::olMainWindowPreferencesGUI>
{
    Q_OBJECT

public:
    olMainWindowPreferencesGUIW();
    ~olMainWindowPreferencesGUIW() override;
};
