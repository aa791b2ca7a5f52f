#pragma once

#include "Framework/olModule.h"

class olFileIOPreferencesGUIW;

/// What holds for every import, whatever the format, and where textures are searched.
class olFileIOPreferencesGUII : public olModule<olFileIOPreferencesGUIW>
{
    Q_OBJECT

public:
    olFileIOPreferencesGUII();

    void applyPreferences() override;
    void updateGUI() override;
    void updateData() override;

private:
    void applyTmpPath() const;
};
