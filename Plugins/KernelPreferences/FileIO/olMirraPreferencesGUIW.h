#pragma once

#include "Framework/olPageWidget.h"

#include <memory>

namespace Ui
{
class olMirraPreferencesGUI;
}

/// The page of the Mirra settings.
class olMirraPreferencesGUIW : public olPageWidget
{
    Q_OBJECT

public:
    olMirraPreferencesGUIW();
    ~olMirraPreferencesGUIW() override;

    [[nodiscard]] const Ui::olMirraPreferencesGUI &form() const { return *m_form; }

public slots:
    void clickedSetMirraLocation();

private:
    std::unique_ptr<Ui::olMirraPreferencesGUI> m_form;
};
