#pragma once

#include "Utilities/olExport.h"

#include <QString>

#include <memory>

class QWidget;
class olMessage;
class olPreferencesEntry;

/// A group of settings: registered with the host from construction to destruction, and driven by it through the
/// operations below, all on the GUI thread.
class ORLO_SDK_EXPORT olPreferences
{
public:
    /// Registers under that name, below the category; an empty category makes a top-level entry.
    olPreferences(const QString &name, const QString &category);
    virtual ~olPreferences();
    olPreferences(const olPreferences &) = delete;
    olPreferences &operator=(const olPreferences &) = delete;

    /// Writes every default into the record, handing `flag` on to olMessage::set(). The first argument is not used.
    virtual void setDefaults(olMessage &, bool flag) = 0;

    /// Pushes the values of the record to the host.
    virtual void applyPreferences() = 0;

    /// Fills the page from the record.
    virtual void updateGUI() = 0;

    /// Takes the page into the record and reports what did not change.
    virtual void updateData() = 0;

    /// On a new scene. Does nothing here.
    virtual void preferencesNewScene(olMessage &);

    /// After the stored preferences came into the record. Does nothing here.
    virtual void preferencesLoaded(olMessage &);

    /// At the first apply after start. Calls applyPreferences().
    virtual void preferencesInitialApply(olMessage &);

    /// Hands the page to the host's dialog. The module keeps owning it and takes it back before deleting it.
    void addPreferencesGUI(QWidget *page);

    /// Takes the page back; a page that was never handed over is nothing to do.
    void subPreferencesGUI(QWidget *page);

    /// Reports a key whose value the last take-back did not change.
    void addUnchanged(const char *key);

    /// True for every key not reported unchanged since the host last forgot those reports.
    [[nodiscard]] bool isChanged(const char *key) const;

    /// The settings record that all modules share. It outlives the modules.
    static olMessage &getData();

private:
    std::unique_ptr<olPreferencesEntry> m_entry;
};
