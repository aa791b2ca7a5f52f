#pragma once

#include "Framework/olPageWidget.h"

#include <memory>

namespace Ui
{
class olMainWindowPreferencesGUI;
}

/// The page of the main window settings.
class olMainWindowPreferencesGUIW : public olPageWidget
{
    Q_OBJECT

public:
    olMainWindowPreferencesGUIW();
    ~olMainWindowPreferencesGUIW() override;

    [[nodiscard]] const Ui::olMainWindowPreferencesGUI &form() const { return *m_form; }

private:
    std::unique_ptr<Ui::olMainWindowPreferencesGUI> m_form;
};
