#pragma once

#include "Framework/olFormPage.h"

namespace Ui
{
class olMarkerPreferencesGUI;
}

/// The page of the selection settings.
class olMarkerPreferencesGUIW : public olFormPage<Ui::olMarkerPreferencesGUI>
{
    Q_OBJECT

public:
    olMarkerPreferencesGUIW();
    ~olMarkerPreferencesGUIW() override;

public slots:
    /// Previews the colour on the page.
    void changedSelectionColor(float red, float green, float blue);
};
