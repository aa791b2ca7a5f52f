#pragma once

#include "Session/olPreferencesSession.h"

#include <QObject>
#include <QPointer>
#include <QWidget>

#include <map>
#include <memory>
#include <set>
#include <string>
#include <vector>

class olEditedPage;
class olPreferencesEntry;

/// A setting that will have another value once the edits are applied. Without a key it stands for all of a page whose
/// settings cannot be told apart.
struct olPendingChange {
    olPreferencesEntry *entry = nullptr;
    std::string key;
    boost::any before;
    boost::any after;
    QPointer<QWidget> control;
};

/// All edits since the dialog was opened, over all pages and for settings that no page shows. They are pending: the
/// values in force are as they were until commit().
class olPendingChanges : public QObject
{
    Q_OBJECT

public:
    /// The session must outlive this object.
    explicit olPendingChanges(olPreferencesSession &session);
    ~olPendingChanges() override;

    /// The module's page, filled if it was not since the edits were last dropped. The module must have a page.
    olEditedPage &page(olPreferencesEntry &entry);

    /// Null where the page was not filled.
    [[nodiscard]] olEditedPage *findPage(const olPreferencesEntry &entry) const;

    /// Forgets a page that is about to go.
    void forget(const QWidget *page);

    /// Drops all edits. The pages keep showing them until they are filled again.
    void drop();

    [[nodiscard]] bool isEmpty() const;

    /// In the order of the modules and their forms.
    [[nodiscard]] std::vector<olPendingChange> list() const;

    /// Pending where it is edited, else in force.
    [[nodiscard]] boost::any value(const std::string &key) const;
    [[nodiscard]] bool differsFromDefault(const std::string &key) const;

    /// The same for a setting with a control on that module's page, without a look at all other pages for its owner.
    [[nodiscard]] bool differsFromDefault(const olPreferencesEntry &entry, const std::string &key) const;

    /// The values in force of all settings, pending edits left out.
    [[nodiscard]] olSettingValues inForce() const;

    /// Makes these values pending, on their pages where a control shows them. Those of locked settings are passed over.
    void put(const olSettingValues &values);

    /// Makes the defaults of one module's settings pending, or those of all.
    void restore(olPreferencesEntry &entry);
    void restoreAll();

    /// Takes all pages filled, stores and applies. An error leaves everything as it was, the edits too.
    [[nodiscard]] QString commit();

    /// The module on whose page the setting is edited, else the one that offers its default; null for an unknown key.
    [[nodiscard]] olPreferencesEntry *ownerOf(const std::string &key) const;

signals:
    void edited();

private:
    void forgetTheGone();
    void setAside(const olPreferencesEntry &entry);
    void showAgain(const olPreferencesEntry &entry);
    void findOwners() const;
    [[nodiscard]] olSettingValues defaultsOf(const olPreferencesEntry &entry) const;
    [[nodiscard]] bool isShared(const std::string &key) const;
    void putWhatDiffers(olSettingValues defaults);
    void putOwn(olPreferencesEntry &entry, const olSettingValues &values);

    olPreferencesSession &m_session;
    std::map<const olPreferencesEntry *, std::unique_ptr<olEditedPage>> m_pages;
    std::vector<olPreferencesEntry *> m_filled;
    olSettingValues m_withoutControl;
    olSettingValues m_aside;
    std::set<std::string> m_restored;
    mutable std::map<std::string, olPreferencesEntry *> m_owners;
};
