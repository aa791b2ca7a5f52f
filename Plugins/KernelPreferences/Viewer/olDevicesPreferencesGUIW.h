#pragma once

#include "Framework/olPageWidget.h"

#include <memory>

namespace Ui
{
class olDevicesPreferencesGUI;
}

/// The page of the device settings.
class olDevicesPreferencesGUIW : public olPageWidget
{
    Q_OBJECT

public:
    olDevicesPreferencesGUIW();
    ~olDevicesPreferencesGUIW() override;

    [[nodiscard]] const Ui::olDevicesPreferencesGUI &form() const { return *m_form; }

private:
    std::unique_ptr<Ui::olDevicesPreferencesGUI> m_form;
};
