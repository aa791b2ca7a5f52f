#pragma once

#include "Editing/olFieldGuard.h"
#include "Session/olModuleAccess.h"
#include "Session/olPreferencesSession.h"
#include "olHostExport.h"

#include <QObject>
#include <QPointer>
#include <QTimer>
#include <QVariantList>

#include <map>
#include <set>
#include <string>
#include <vector>

class QWidget;
class olPreferencesEntry;

/// The page of one module under edit: what it showed when it was filled, what it shows now, and what that means for the
/// settings behind it. Nothing here changes a value in force.
class ORLO_HOST_EXPORT olEditedPage : public QObject
{
    Q_OBJECT

public:
    /// The module must have a page, and both must outlive this object.
    olEditedPage(const olPreferencesSession &session, olPreferencesEntry &entry);

    [[nodiscard]] olPreferencesEntry &entry() const { return m_entry; }

    /// Fills the page with the values in force.
    void fill();

    /// Gives fields that do not read as a number their last one back: before the page is taken back.
    void finishTyping() { m_guard.restoreUnfinished(); }

    /// Takes what the page shows for what it was filled with: after the values were applied.
    void markClean();

    /// Settings that have a control on the page, in the order of its form.
    [[nodiscard]] const std::vector<std::string> &keys() const { return m_keys; }
    /// Whether the setting, or another one of the same control, is locked. It cannot be edited then: what changes it
    /// all the same is put back at once.
    [[nodiscard]] bool isHeld(const std::string &key) const { return m_held.count(key) != 0; }
    void putBackHeld();

    [[nodiscard]] bool hasControl(const std::string &key) const { return m_controls.count(key) != 0; }
    [[nodiscard]] QWidget *control(const std::string &key) const;

    /// The value that confirming the page would give the setting, as far as it is edited; else the value in force.
    [[nodiscard]] boost::any value(const std::string &key) const;
    [[nodiscard]] boost::any valueInForce(const std::string &key) const;

    /// Whether the page differs from what it showed after its last filling. Edited back is not changed.
    [[nodiscard]] bool isChanged() const;
    [[nodiscard]] bool isChanged(const std::string &key) const;

    [[nodiscard]] bool differsFromDefault(const std::string &key) const;

    /// Shows these values besides what is edited already. They stay pending.
    void show(const olSettingValues &values);

    /// Of the values shown by show() and not edited since, those that their controls hold only rounded.
    [[nodiscard]] olSettingValues roundedOnPage() const;

signals:
    /// The page may differ from before.
    void edited();

private:
    /// A value and what its control held for it.
    struct Shown {
        boost::any value;
        boost::any onPage;
    };

    void collectControls();
    void watch();
    [[nodiscard]] boost::any valueOnPage(const std::string &key) const;
    [[nodiscard]] QVariantList untaggedState() const;

    const olPreferencesSession &m_session;
    olPreferencesEntry &m_entry;
    olModuleAccess m_access;
    olFieldGuard m_guard;
    std::vector<std::string> m_keys;
    std::map<std::string, QPointer<QWidget>> m_controls;
    std::set<std::string> m_held;
    QTimer m_putBack;
    bool m_isPuttingBack = false;
    std::map<std::string, std::string> m_types;
    std::map<std::string, Shown> m_filled;
    std::map<std::string, Shown> m_put;
    QVariantList m_untagged;
};
