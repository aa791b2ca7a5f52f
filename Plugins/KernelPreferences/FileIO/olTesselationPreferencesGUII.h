#pragma once

#include "Framework/olModule.h"

class olTesselationPreferencesGUIW;

/// How the host's geometry optimizer tessellates imported surfaces anew.
class olTesselationPreferencesGUII : public olModule<olTesselationPreferencesGUIW>
{
    Q_OBJECT

public:
    olTesselationPreferencesGUII();

    void applyPreferences() override;
};
