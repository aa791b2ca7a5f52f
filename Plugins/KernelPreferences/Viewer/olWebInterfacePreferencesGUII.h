#pragma once

#include "Framework/olModule.h"

class olWebInterfacePreferencesGUIW;

/// The host's built-in web server: whether it runs, where it listens and whom it answers.
class olWebInterfacePreferencesGUII : public olModule<olWebInterfacePreferencesGUIW>
{
    Q_OBJECT

public:
    olWebInterfacePreferencesGUII();

    void applyPreferences() override;
    void updateGUI() override;

private:
    const bool m_disabledByEnvironment;
};
