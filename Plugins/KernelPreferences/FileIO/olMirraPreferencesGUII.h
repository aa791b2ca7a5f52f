#pragma once

#include "Framework/olSettingList.h"
#include "Kernel/olPreferences.h"

#include <QObject>

#include <memory>

class olMirraPreferencesGUIW;

/// The options of the Mirra scene loader.
class olMirraPreferencesGUII : public QObject, public olPreferences
{
    Q_OBJECT

public:
    olMirraPreferencesGUII();
    ~olMirraPreferencesGUII() override;

    void setDefaults(olMessage &, bool flag) override;
    void applyPreferences() override;
    void updateGUI() override;
    void updateData() override;

private:
    std::unique_ptr<olMirraPreferencesGUIW> m_page;
    olSettingList m_settings;
};
