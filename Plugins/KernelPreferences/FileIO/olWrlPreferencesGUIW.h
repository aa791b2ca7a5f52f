#pragma once

#include "Framework/olFormPage.h"

namespace Ui
{
class olWrlPreferencesGUI;
}

/// The page of the VRML settings.
class olWrlPreferencesGUIW : public olFormPage<Ui::olWrlPreferencesGUI>
{
    Q_OBJECT

public:
    olWrlPreferencesGUIW();
    ~olWrlPreferencesGUIW() override;
};
