#pragma once

#include "Framework/olFormPage.h"

namespace Ui
{
class olOsbPreferencesGUI;
}

/// The page of the native scene format, which tells that there is nothing to set.
class olOsbPreferencesGUIW : public olFormPage<Ui::olOsbPreferencesGUI>
{
    Q_OBJECT

public:
    olOsbPreferencesGUIW();
    ~olOsbPreferencesGUIW() override;
};
