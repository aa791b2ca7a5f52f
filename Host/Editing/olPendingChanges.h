#pragma once

#include "Session/olPreferencesSession.h"
#include "State/olResult.h"
#include "olHostExport.h"

#include <QObject>
#include <QPointer>
#include <QWidget>

#include <functional>
#include <map>
#include <memory>
#include <set>
#include <string>
#include <vector>

class olEditedPage;
class olPreferencesEntry;

/// Where a setting's value comes from; what says more of it is greater.
enum class olSettingState { Default, Site, Yours, Pending, Locked };

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
class ORLO_HOST_EXPORT olPendingChanges : public QObject
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
    [[nodiscard]] bool isPending(const std::string &key) const;
    [[nodiscard]] olSettingState stateOf(const std::string &key) const;

    /// Whether any setting of the module does.
    [[nodiscard]] bool differsFromDefault(const olPreferencesEntry &entry) const;

    /// The same for a setting with a control on that module's page, without a look at all other pages for its owner.
    [[nodiscard]] bool differsFromDefault(const olPreferencesEntry &entry, const std::string &key) const;

    /// The values in force of all settings, pending edits left out.
    [[nodiscard]] olSettingValues inForce() const;

    /// Shows in the view what of the edits can be previewed and is typed to the end, or all that is in force.
    void preview(bool isOn);

    /// Who asks the question that goes with a value; without one, or without consent, the value is passed over.
    void askWith(std::function<bool(const olSettingWarning &)> ask) { m_ask = std::move(ask); }

    /// Makes these values pending, on their pages where a control shows them. Those of locked settings are passed over.
    void put(const olSettingValues &values);

    /// Back to the value in force, or all of a module's page to what it was filled with.
    void takeBack(const std::string &key);
    void takeBack(const olPreferencesEntry &entry);

    /// Makes the defaults of one module's settings pending, or those of all.
    void restore(olPreferencesEntry &entry);
    void restoreAll();

    /// Takes all pages filled, stores and applies. An error leaves everything as it was, the edits too.
    olResult<> commit();

    /// The module on whose page the setting is edited, else the one that offers its default; null for an unknown key.
    [[nodiscard]] olPreferencesEntry *ownerOf(const std::string &key) const;

signals:
    void edited();

private:
    void forgetTheGone();
    void setAside(const olPreferencesEntry &entry);
    void showAgain(const olPreferencesEntry &entry);
    void findOwners() const;
    [[nodiscard]] bool isAgreed(const std::string &key, const boost::any &value) const;
    [[nodiscard]] olSettingValues defaultsOf(const olPreferencesEntry &entry) const;
    [[nodiscard]] bool isShared(const std::string &key) const;
    void putWhatDiffers(olSettingValues defaults);
    void putOwn(olPreferencesEntry &entry, const olSettingValues &values);

    olPreferencesSession &m_session;
    std::function<bool(const olSettingWarning &)> m_ask;
    std::map<const olPreferencesEntry *, std::unique_ptr<olEditedPage>> m_pages;
    std::vector<olPreferencesEntry *> m_filled;
    olSettingValues m_withoutControl;
    olSettingValues m_aside;
    std::set<std::string> m_restored;
    mutable std::map<std::string, olPreferencesEntry *> m_owners;
};
