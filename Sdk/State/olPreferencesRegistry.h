#pragma once

#include "Utilities/olExport.h"
#include "Utilities/olMessage.h"

#include <QObject>
#include <QPointer>
#include <QString>

#include <functional>
#include <string>
#include <utility>
#include <vector>

class olPreferencesEntry;
struct olOfferedDefault;

/// A setting of a module.
struct olOffer {
    olPreferencesEntry *entry;
    const olOfferedDefault *offered;
};

/// Tells of modules and pages that come and go, and of modules that throw. It goes with the application object, which
/// the registry outlives.
class ORLO_SDK_EXPORT olRegistryNews : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

signals:
    void pageAboutToGo(QWidget *page);
    void changed();
    void moduleFailed(const QString &name, const QString &reason); ///< empty where the exception says nothing
};

/// The host's index of all modules, in the order of their registration, and the record that they share.
class ORLO_SDK_EXPORT olPreferencesRegistry : private olMessageObserver
{
public:
    static olPreferencesRegistry &the();
    ~olPreferencesRegistry() override;

    /// To be asked while there is an application object, which owns it.
    [[nodiscard]] olRegistryNews &news();

    [[nodiscard]] olMessage &record() { return m_record; }

    [[nodiscard]] const std::vector<olPreferencesEntry *> &entries() const { return m_entries; }

    /// Null where no module bears the display name.
    [[nodiscard]] olPreferencesEntry *find(const QString &name) const;

    /// The module that offered a default for the key; null where none did.
    [[nodiscard]] olPreferencesEntry *ownerOf(const std::string &key) const;

    /// What all modules offered, in the order of the keys; of the same key in the order of the modules. Valid until a
    /// module is asked for its defaults, or goes.
    using Offers = std::vector<olOffer>;
    [[nodiscard]] const Offers &offers() const;
    [[nodiscard]] std::pair<Offers::const_iterator, Offers::const_iterator> offersOf(const std::string &key) const;

    /// Told the name of each module about to register. An exception from it leaves that module unregistered.
    void setRegistrationHook(std::function<void(const QString &name)> hook) { m_hook = std::move(hook); }

    /// Makes the record's values the host's own, and drops those of types that settings do not have. To be called when
    /// the modules are gone and before the library that made the values goes too.
    void adoptRecord();

    /// While it lives, every default that is offered is remembered by the entry.
    class ORLO_SDK_EXPORT Recording
    {
    public:
        explicit Recording(olPreferencesEntry &entry);
        ~Recording();
        Recording(const Recording &) = delete;
        Recording &operator=(const Recording &) = delete;
    };

    /// For the stores of values, which tell what they are offered.
    void offered(const std::string &key, const boost::any &value) override;

private:
    friend class olPreferencesEntry;

    olPreferencesRegistry();
    void add(olPreferencesEntry &entry);
    void remove(olPreferencesEntry &entry);
    void pageAdded(olPreferencesEntry &entry);
    void pageRemoved(olPreferencesEntry &entry);
    void forgetOffers() { m_offers.clear(); }
    void tellOfChange();

    QPointer<olRegistryNews> m_news;
    olMessage m_record;
    std::vector<olPreferencesEntry *> m_entries;
    mutable Offers m_offers;
    olPreferencesEntry *m_recording = nullptr;
    std::function<void(const QString &name)> m_hook;
};
