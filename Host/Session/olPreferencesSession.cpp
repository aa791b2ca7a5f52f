#include "Session/olPreferencesSession.h"

#include "KernelServices/olKernelServiceFactory.h"
#include "KernelServices/olPreferencesService.h"
#include "Session/olModuleAccess.h"
#include "Session/olSettingsLock.h"
#include "State/olHostState.h"
#include "State/olPreferencesEntry.h"
#include "State/olPreferencesRegistry.h"
#include "State/olValue.h"

#include <QCoreApplication>

#include <algorithm>
#include <iterator>

namespace
{

using Values = olPreferencesStore::Values;

constexpr auto languageKey = "MainWindow user language";

olMessage &record() { return olPreferencesRegistry::the().record(); }
olPreferencesService &service() { return *olKernelServiceFactory::the<olPreferencesService>(); }
const std::vector<olPreferencesEntry *> &entries() { return olPreferencesRegistry::the().entries(); }

/// What record and service held at one moment, to go back to.
class Snapshot
{
public:
    Snapshot() : m_record(record().entries()), m_service(service()) {}

    /// Empty where it was absent.
    [[nodiscard]] boost::any value(olHome home, const std::string &key) const
    {
        if (home == olHome::Service)
            return m_service.get(key);
        const auto entry = m_record.find(key);
        return entry == m_record.end() ? boost::any() : entry->second;
    }

    void restore() const
    {
        const olMessage::Entries now = record().entries();
        for (const auto &entry : now) {
            if (m_record.count(entry.first) == 0)
                record().remove(entry.first);
        }
        for (const auto &[key, value] : m_record)
            record().set(key, value, true);
        service() = m_service;
    }

private:
    olMessage::Entries m_record;
    olPreferencesService m_service;
};

bool isStorable(const boost::any &value) { return !olValue::typeName(value).empty(); }

using Offer = olPreferencesRegistry::Offers::const_iterator;

/// Several modules may have a setting, in one home or in both.
bool isIn(olHome home, Offer first, Offer end)
{
    return std::any_of(first, end, [home](const olOffer &offer) { return offer.entry->home() == home; });
}

bool isDefault(olHome home, const boost::any &value, Offer first, Offer end)
{
    return std::any_of(first, end, [&](const olOffer &offer) {
        return offer.entry->home() == home && olValue::identical(offer.offered->value, value);
    });
}

bool hasDefault(const olPreferencesStore::Key &key)
{
    const auto [first, end] = olPreferencesRegistry::the().offersOf(key.second);
    return isIn(key.first, first, end);
}

boost::any valueAt(const olPreferencesStore::Key &key)
{
    return key.first == olHome::Record ? record().get(key.second) : service().get(key.second);
}

void setDisplayLanguage()
{
    const int *language = boost::any_cast<int>(&record().get(languageKey));
    olHostState::the().displayLanguage = language && *language >= 1 && *language <= 3 ? *language : 0;
}

/// Calls with each module that has the setting.
template <class Visit> void eachOwner(const std::string &key, Visit visit)
{
    const auto [first, end] = olPreferencesRegistry::the().offersOf(key);
    std::for_each(first, end, [&visit](const olOffer &offer) { visit(*offer.entry); });
}

/// The modules with, behind them, those that have one of the settings.
std::vector<olPreferencesEntry *> withOwners(std::vector<olPreferencesEntry *> modules, const olSettingValues &values)
{
    for (const auto &value : values) {
        eachOwner(value.first, [&modules](olPreferencesEntry &owner) {
            if (std::find(modules.begin(), modules.end(), &owner) == modules.end())
                modules.push_back(&owner);
        });
    }
    return modules;
}

} // namespace

olPreferencesSession::olPreferencesSession(const QString &storeFile, const QStringList &siteFiles)
    : m_store(storeFile), m_site(siteFiles), m_siteFiles(siteFiles)
{
}

olPreferencesSession::~olPreferencesSession() { stop(); }

QString olPreferencesSession::loadStore(olStoreUse use)
{
    const olStoreOpening opening = use == olStoreUse::Own ? m_store.open(m_stored) : m_store.lookAt(m_stored);
    if (!opening.notice.isEmpty())
        m_notices << opening.notice;
    for (const auto &[key, value] : m_stored) {
        if (key.first == olHome::Record)
            record().set(key.second, value, true);
        else
            service().set(key.second, value);
    }
    m_site.read();
    // The language must stand before any text of a module is translated.
    const olSiteSetting language = m_site.early(languageKey, "int");
    const bool isStored = m_stored.count({olHome::Record, languageKey}) != 0;
    if (!language.value.empty() && (language.locked || !isStored))
        record().set(languageKey, language.value, true);
    setDisplayLanguage();
    return opening.error;
}

void olPreferencesSession::stop()
{
    m_plugin.unload();
    m_store.close();
}

QString olPreferencesSession::loadPlugin(const QString &given)
{
    const QString notice = olRemoveAbandonedLock();
    if (!notice.isEmpty())
        m_notices << notice;
    return m_plugin.load(given);
}

void olPreferencesSession::fillDefaults()
{
    const Snapshot before;
    for (olPreferencesEntry *entry : entries())
        entry->setDefaults(false);

    settleSite(m_site);
    m_notices << m_site.takeFaults();
    for (const auto &site : m_site.settings()) {
        const auto &[key, setting] = site;
        eachOwner(key, [&, key = key, value = setting.value](olPreferencesEntry &owner) {
            owner.replaceDefault(key, value);
            if (before.value(owner.home(), key).empty())
                owner.setValue(key, value);
        });
    }
    restoreLocked();
}

void olPreferencesSession::settleSite(olSiteDefaults &site) const
{
    site.settle([this](const std::string &key) { return defaultValue(key); },
                [](const std::string &key, const boost::any &value) { return description(key).whyNot(value); });
}

void olPreferencesSession::start()
{
    fillDefaults();
    for (olPreferencesEntry *entry : entries())
        entry->preferencesLoaded();
    // One module applies what its page shows, so the pages are filled before the first apply.
    for (olPreferencesEntry *entry : entries())
        entry->updateGUI();
    for (olPreferencesEntry *entry : entries()) {
        entry->preferencesInitialApply();
        entry->settle();
    }
}

void olPreferencesSession::newScene()
{
    for (olPreferencesEntry *entry : entries())
        entry->preferencesNewScene();
}

Values olPreferencesSession::current() const
{
    Values values;
    const auto keep = [&values](olHome home, const std::string &key, const boost::any &value) {
        if (isStorable(value))
            values[{home, key}] = value;
    };
    // Both are in the order of their keys, so that nothing has to be looked up.
    const olMessage::Entries &rows = record().entries();
    auto row = rows.begin();
    const auto end = olPreferencesRegistry::the().offers().end();
    for (Offer first = olPreferencesRegistry::the().offers().begin(), next; first != end; first = next) {
        const std::string &key = first->offered->key;
        next = std::find_if(first, end, [&key](const olOffer &offer) { return offer.offered->key != key; });
        // Some keys have no default; whatever the record holds beyond the defaults is kept.
        for (; row != rows.end() && row->first < key; ++row)
            keep(olHome::Record, row->first, row->second);
        if (row != rows.end() && row->first == key) {
            if (!isDefault(olHome::Record, row->second, first, next))
                keep(olHome::Record, key, row->second);
            ++row;
        }
        if (isIn(olHome::Service, first, next)) {
            const boost::any value = service().get(key);
            if (!isDefault(olHome::Service, value, first, next))
                keep(olHome::Service, key, value);
        }
    }
    for (; row != rows.end(); ++row)
        keep(olHome::Record, row->first, row->second);

    // What was chosen earlier stays chosen although it is a default here: in another edition it may not be one.
    for (const auto &[key, stored] : m_stored) {
        if (olValue::identical(valueAt(key), stored))
            values[key] = stored;
    }
    return values;
}

bool olPreferencesSession::isLocked(const std::string &key) const { return lockReason(key).has_value(); }

Values olPreferencesSession::toBeKept() const
{
    Values kept = current();
    for (auto value = kept.begin(); value != kept.end();)
        value = isLocked(value->first.second) ? kept.erase(value) : std::next(value);
    // The record shows all its rows; the service only those of its modules. And under a lock waits what was chosen
    // before it.
    for (const auto &[key, value] : m_stored) {
        const bool isUnseen = key.first == olHome::Service && !hasDefault(key);
        if (isUnseen || isLocked(key.second))
            kept[key] = value;
    }
    return kept;
}

olPreferencesSession::Changes olPreferencesSession::changesTo(const Values &stored, const Values &kept) const
{
    Changes changes;
    for (const auto &[key, value] : kept) {
        const auto found = stored.find(key);
        if (found == stored.end() || !olValue::identical(found->second, value))
            changes.changed[key] = value;
    }
    for (const auto &[key, value] : stored) {
        const bool isOurs = m_stored.count(key) != 0 || hasDefault(key);
        if (kept.count(key) == 0 && isOurs)
            changes.removed.push_back(key);
    }
    return changes;
}

QString olPreferencesSession::save()
{
    restoreLocked();
    const Values kept = toBeKept();
    const Changes changes = changesTo(m_stored, kept);
    QString error = m_store.save(changes.changed, changes.removed);
    if (!error.isEmpty() && m_store.isBroken())
        error = saveIntoMended(error, kept);
    if (error.isEmpty() && !(changes.changed.empty() && changes.removed.empty())) {
        for (const auto &[key, value] : changes.changed)
            m_stored[key] = olValue::adopted(value);
        for (const olPreferencesStore::Key &key : changes.removed)
            m_stored.erase(key);
    }
    return error;
}

/// What this run holds is newer than any copy, so all of it goes into the mended file.
QString olPreferencesSession::saveIntoMended(const QString &error, const Values &kept)
{
    Values mended;
    const olStoreOpening opening = m_store.open(mended);
    if (!opening.error.isEmpty())
        return error;
    const Changes changes = changesTo(mended, kept);
    QString newError = m_store.save(changes.changed, changes.removed);
    if (newError.isEmpty() && !opening.notice.isEmpty())
        m_notices << opening.notice + QCoreApplication::translate("olPreferencesSession",
                                                                  " All settings of this run were then saved into it.");
    return newError;
}

QString olPreferencesSession::confirm(const std::vector<olPreferencesEntry *> &shown, const olSettingValues &besides)
{
    const Snapshot before;
    takeBack(shown, besides);
    QString error = save();
    if (!error.isEmpty()) {
        before.restore();
        // What the take-back reported is void; the service has its own reports back with its values.
        for (olPreferencesEntry *entry : shown) {
            if (entry->home() == olHome::Record)
                entry->settle();
        }
        return error;
    }
    const std::vector<olPreferencesEntry *> changed = withOwners(shown, besides);
    // A module may apply what its page shows; those behind the shown ones have not seen their new values yet.
    std::for_each(changed.begin() + std::ptrdiff_t(shown.size()), changed.end(),
                  [](auto *entry) { entry->updateGUI(); });
    for (olPreferencesEntry *entry : changed) {
        entry->applyPreferences();
        entry->settle();
    }
    return {};
}

boost::any olPreferencesSession::defaultValue(const std::string &key) const
{
    const olPreferencesEntry *owner = olPreferencesRegistry::the().ownerOf(key);
    return owner ? owner->findDefault(key)->value : boost::any();
}

std::optional<QString> olPreferencesSession::lockReason(const std::string &key) const
{
    const auto found = m_site.settings().find(key);
    return found == m_site.settings().end() ? std::nullopt : found->second.locked;
}

olPreferencesEntry *olPreferencesSession::moduleOf(const std::string &key)
{
    if (olPreferencesEntry *owner = olPreferencesRegistry::the().ownerOf(key))
        return owner;
    const auto found = std::find_if(entries().begin(), entries().end(), [&key](const olPreferencesEntry *entry) {
        return !olModuleAccess(*entry).describe(key).isEmpty();
    });
    return found == entries().end() ? nullptr : *found;
}

olSettingDescription olPreferencesSession::description(const std::string &key)
{
    const olPreferencesEntry *module = moduleOf(key);
    return module ? olSettingDescription::of(*module, key) : olSettingDescription();
}

QString olPreferencesSession::origin(const std::string &key) const
{
    const auto site = m_site.settings().find(key);
    const bool isGiven = site != m_site.settings().end();
    const bool isStored = m_stored.count({olHome::Record, key}) != 0 || m_stored.count({olHome::Service, key}) != 0;
    if (isStored && !(isGiven && site->second.locked))
        return QStringLiteral("stored");
    return isGiven ? QStringLiteral("site") : QStringLiteral("default");
}

QString olPreferencesSession::whyNot(const std::string &key, const boost::any &value) const
{
    if (const auto reason = lockReason(key))
        return QCoreApplication::translate("olPreferencesSession", "is locked: %1").arg(*reason);
    const olSettingDescription setting = description(key);
    if (setting.type.empty())
        return QCoreApplication::translate("olPreferencesSession", "is not known");
    return olValue::identical(value, defaultValue(key)) ? QString() : setting.whyNot(value);
}

std::optional<olSettingWarning> olPreferencesSession::warning(const std::string &key, const boost::any &value) const
{
    const olPreferencesEntry *module = moduleOf(key);
    if (!module || olValue::identical(module->value(key), value))
        return std::nullopt;
    std::optional<olSettingWarning> warning = olSettingDescription::of(*module, key).warning;
    return warning && olValue::equal(warning->value, value) ? warning : std::nullopt;
}

/// The pages into their values, but for what is locked: that has its value again and counts as if nobody had touched
/// it.
void olPreferencesSession::takeBack(const std::vector<olPreferencesEntry *> &shown,
                                    const olSettingValues &besides) const
{
    const Snapshot before;
    for (olPreferencesEntry *entry : shown)
        entry->updateData();
    for (const auto &setting : besides) {
        eachOwner(setting.first, [&setting](olPreferencesEntry &owner) {
            owner.setValue(setting.first, setting.second);
            // Its page may show the old value and have reported it unchanged.
            owner.setChanged(setting.first, true);
        });
    }
    restoreLocked();
    for (olPreferencesEntry *entry : shown) {
        for (const olOfferedDefault &offered : entry->defaults()) {
            if (isLocked(offered.key))
                entry->setChanged(offered.key, !olValue::identical(before.value(entry->home(), offered.key),
                                                                   entry->value(offered.key)));
        }
    }
}

void olPreferencesSession::restoreLocked() const
{
    for (const auto &site : m_site.settings()) {
        const auto &[key, setting] = site;
        if (!setting.locked)
            continue;
        eachOwner(key, [key = key, value = setting.value](olPreferencesEntry &owner) {
            if (!olValue::identical(owner.value(key), value))
                owner.setValue(key, value);
        });
    }
}

QStringList olPreferencesSession::check() const
{
    olSiteDefaults site(m_siteFiles);
    site.read();
    if (!keys().empty())
        settleSite(site);
    return m_store.check() << site.takeFaults() << site.unknown();
}

std::vector<std::string> olPreferencesSession::keys()
{
    std::vector<std::string> keys;
    for (const olPreferencesEntry *entry : entries()) {
        for (const olOfferedDefault &offered : entry->defaults()) {
            if (std::find(keys.begin(), keys.end(), offered.key) == keys.end())
                keys.push_back(offered.key);
        }
    }
    return keys;
}
