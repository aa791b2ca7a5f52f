#pragma once

#include "Framework/olSettingList.h"
#include "Kernel/olPreferences.h"

#include <QObject>

#include <memory>

class olWrlPreferencesGUIW;

/// The options of the VRML reader and writer.
class olWrlPreferencesGUII : public QObject, public olPreferences
{
    Q_OBJECT

public:
    olWrlPreferencesGUII();
    ~olWrlPreferencesGUII() override;

    void setDefaults(olMessage &, bool flag) override;
    void applyPreferences() override;
    void updateGUI() override;
    void updateData() override;

private:
    std::unique_ptr<olWrlPreferencesGUIW> m_page;
    olSettingList m_settings;
};
