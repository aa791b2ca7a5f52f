#pragma once

#include "Framework/olModule.h"

class olOsbPreferencesGUIW;

/// The native scene format's place in the host's list. It has no settings.
class olOsbPreferencesGUII : public olModule<olOsbPreferencesGUIW>
{
    Q_OBJECT

public:
    olOsbPreferencesGUII();

    void applyPreferences() override {}
};
