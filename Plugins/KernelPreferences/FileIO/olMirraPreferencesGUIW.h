#pragma once

#include "Framework/olFormPage.h"

namespace Ui
{
class olMirraPreferencesGUI;
}

/// The page of the Mirra settings.
class olMirraPreferencesGUIW : public olFormPage<Ui::olMirraPreferencesGUI>
{
    Q_OBJECT

public:
    olMirraPreferencesGUIW();
    ~olMirraPreferencesGUIW() override;

public slots:
    void clickedSetMirraLocation();
};
