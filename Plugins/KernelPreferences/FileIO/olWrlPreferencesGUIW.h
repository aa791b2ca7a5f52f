#pragma once

#include "Framework/olPageWidget.h"

#include <memory>

namespace Ui
{
class olWrlPreferencesGUI;
}

/// The page of the VRML settings.
class olWrlPreferencesGUIW : public olPageWidget
{
    Q_OBJECT

public:
    olWrlPreferencesGUIW();
    ~olWrlPreferencesGUIW() override;

    [[nodiscard]] const Ui::olWrlPreferencesGUI &form() const { return *m_form; }

private:
    std::unique_ptr<Ui::olWrlPreferencesGUI> m_form;
};
