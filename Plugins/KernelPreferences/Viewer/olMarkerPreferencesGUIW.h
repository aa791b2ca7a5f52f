#pragma once

#include "Framework/olPageWidget.h"

#include <memory>

namespace Ui
{
class olMarkerPreferencesGUI;
}

/// The page of the selection settings.
class olMarkerPreferencesGUIW : public olPageWidget
{
    Q_OBJECT

public:
    olMarkerPreferencesGUIW();
    ~olMarkerPreferencesGUIW() override;

    [[nodiscard]] const Ui::olMarkerPreferencesGUI &form() const { return *m_form; }

public slots:
    /// Previews the colour on the page.
    void changedSelectionColor(float red, float green, float blue);

private:
    std::unique_ptr<Ui::olMarkerPreferencesGUI> m_form;
};
