#pragma once

#include "Framework/olModule.h"

#include <memory>

class olOsbPreferencesGUIW;

/// The native scene format's place in the host's list. It has no settings.
class olOsbPreferencesGUII : public olModule
{
    Q_OBJECT

public:
    olOsbPreferencesGUII();
    ~olOsbPreferencesGUII() override;

    void setDefaults(olMessage &, bool) override {}
    void applyPreferences() override {}
    void updateGUI() override {}
    void updateData() override {}

private:
    std::unique_ptr<olOsbPreferencesGUIW> m_page;
};
