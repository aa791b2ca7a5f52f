#pragma once

#include "Framework/olModule.h"

class olMirraPreferencesGUIW;

/// The options of the Mirra scene loader.
class olMirraPreferencesGUII : public olModule<olMirraPreferencesGUIW>
{
    Q_OBJECT

public:
    olMirraPreferencesGUII();

    void applyPreferences() override;
};
