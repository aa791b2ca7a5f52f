#pragma once

#include "Framework/olSettingList.h"
#include "Kernel/olPreferences.h"

#include <QObject>

#include <memory>

class olHelpPreferencesGUIW;

/// Where the help comes from, and the kind of help that pops up over controls.
class olHelpPreferencesGUII : public QObject, public olPreferences
{
    Q_OBJECT

public:
    olHelpPreferencesGUII();
    ~olHelpPreferencesGUII() override;

    void setDefaults(olMessage &, bool flag) override;
    void applyPreferences() override;
    void updateGUI() override;
    void updateData() override;

private:
    std::unique_ptr<olHelpPreferencesGUIW> m_page;
    olSettingList m_settings;
};
