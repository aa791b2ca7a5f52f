#pragma once

#include "Framework/olModule.h"

class olWrlPreferencesGUIW;

/// The options of the VRML reader and writer.
class olWrlPreferencesGUII : public olModule<olWrlPreferencesGUIW>
{
    Q_OBJECT

public:
    olWrlPreferencesGUII();

    void applyPreferences() override;
    void updateData() override;
};
