#pragma once

#include "Utilities/olExport.h"

#include <QString>

#include <memory>

class QWidget;
class olMessage;
class olPreferencesEntry;

/// A group of settings that keeps its values in the preferences service instead of the record. The host drives it
/// through the same operations as olPreferences.
class ORLO_SDK_EXPORT olPreferencesCategory
{
public:
    explicit olPreferencesCategory(QString name);
    virtual ~olPreferencesCategory();
    olPreferencesCategory(const olPreferencesCategory &) = delete;
    olPreferencesCategory &operator=(const olPreferencesCategory &) = delete;

    /// Enters the host's index of modules as a top-level entry; a second call does nothing. Leaving is the
    /// destructor's.
    void registerCategory();

    virtual void setDefaults(olMessage &, bool flag) = 0;
    virtual void applyPreferences() = 0;
    virtual void updateGUI() = 0;
    virtual void updateData() = 0;
    virtual void preferencesNewScene(olMessage &);
    virtual void preferencesLoaded(olMessage &);
    virtual void preferencesInitialApply(olMessage &);

    /// As in olPreferences; to be called after registerCategory().
    void addPreferencesGUI(QWidget *page);
    void subPreferencesGUI(QWidget *page);

    /// Whether the service's value changed since the last apply.
    [[nodiscard]] bool isChanged(const char *key) const;

private:
    QString m_name;
    std::unique_ptr<olPreferencesEntry> m_entry;
};
