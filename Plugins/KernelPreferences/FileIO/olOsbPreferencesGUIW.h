#pragma once

#include "Framework/olPageWidget.h"

#include <memory>

namespace Ui
{
class olOsbPreferencesGUI;
}

/// The page of the native scene format, which tells that there is nothing to set.
class olOsbPreferencesGUIW : public olPageWidget
{
    Q_OBJECT

public:
    olOsbPreferencesGUIW();
    ~olOsbPreferencesGUIW() override;

private:
    std::unique_ptr<Ui::olOsbPreferencesGUI> m_form;
};
