#include "Preferences/olPreferencesSession.h"

#include "Embedded/olHostState.h"
#include "Embedded/olValue.h"
#include "KernelServices/olKernelServiceFactory.h"
#include "KernelServices/olPreferencesService.h"
#include "Preferences/olPreferencesEntry.h"
#include "Preferences/olPreferencesRegistry.h"

#include <algorithm>

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

bool isDefault(const olPreferencesStore::Key &key, const boost::any &value)
{
    return std::any_of(entries().begin(), entries().end(), [&](const olPreferencesEntry *entry) {
        const olOfferedDefault *offered = entry->home() == key.first ? entry->findDefault(key.second) : nullptr;
        return offered && olValue::equal(offered->value, value);
    });
}

/// Whether the value's absence says anything: the record holds all its rows, the service only those of its modules.
bool isKnown(const olPreferencesStore::Key &key)
{
    return key.first == olHome::Record || std::any_of(entries().begin(), entries().end(), [&](const auto *entry) {
               return entry->home() == key.first && entry->findDefault(key.second);
           });
}

template <class Use> void withOwner(const std::string &key, Use &&use)
{
    if (olPreferencesEntry *owner = olPreferencesRegistry::the().ownerOf(key))
        use(*owner);
}

/// The modules with, behind them, those that own one of the values.
std::vector<olPreferencesEntry *> withOwners(std::vector<olPreferencesEntry *> modules, const olSettingValues &values)
{
    for (const auto &value : values) {
        withOwner(value.first, [&](olPreferencesEntry &owner) {
            if (std::find(modules.begin(), modules.end(), &owner) == modules.end())
                modules.push_back(&owner);
        });
    }
    return modules;
}

} // namespace

olPreferencesSession::olPreferencesSession(const QString &storeFile) : m_store(storeFile) {}

olPreferencesSession::~olPreferencesSession() { stop(); }

QString olPreferencesSession::loadStore()
{
    QString error = m_store.load(m_stored);
    for (const auto &[key, value] : m_stored) {
        if (key.first == olHome::Record)
            record().set(key.second, value, true);
        else
            service().set(key.second, value);
    }
    // The language must stand before any text of a module is translated.
    const int *language = boost::any_cast<int>(&record().get(languageKey));
    if (language)
        olHostState::the().displayLanguage = *language >= 1 && *language <= 3 ? *language : 0;
    return error;
}

QString olPreferencesSession::loadPlugin(const QString &file) { return m_plugin.load(file); }

void olPreferencesSession::fillDefaults()
{
    for (olPreferencesEntry *entry : entries())
        entry->setDefaults(false);
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
    // Some keys have no default; whatever the record holds beyond the defaults is kept.
    for (const auto &[key, value] : record().entries())
        values[{olHome::Record, key}] = value;
    for (const olPreferencesEntry *entry : entries()) {
        for (const olOfferedDefault &offered : entry->defaults())
            values[{entry->home(), offered.key}] = entry->value(offered.key);
    }
    for (auto value = values.begin(); value != values.end();) {
        const bool kept = !olValue::typeName(value->second).empty() && !isDefault(value->first, value->second);
        value = kept ? std::next(value) : values.erase(value);
    }
    return values;
}

QString olPreferencesSession::save()
{
    const Values values = current();
    Values changed;
    for (const auto &[key, value] : values) {
        const auto stored = m_stored.find(key);
        if (stored == m_stored.end() || !olValue::equal(stored->second, value))
            changed[key] = value;
    }
    std::vector<olPreferencesStore::Key> removed;
    for (const auto &stored : m_stored) {
        if (values.count(stored.first) == 0 && isKnown(stored.first))
            removed.push_back(stored.first);
    }
    QString error = m_store.save(changed, removed);
    if (error.isEmpty()) {
        m_stored.clear();
        for (const auto &[key, value] : values)
            m_stored[key] = olValue::adopted(value);
    }
    return error;
}

QString olPreferencesSession::confirm(const std::vector<olPreferencesEntry *> &shown, const olSettingValues &besides)
{
    const Snapshot before;
    // Out of the way first: a module must not find its page equal to the old value and report the setting unchanged.
    for (const auto &value : besides)
        withOwner(value.first, [&](olPreferencesEntry &owner) { owner.removeValue(value.first); });
    for (olPreferencesEntry *entry : shown)
        entry->updateData();
    for (const auto &value : besides)
        withOwner(value.first, [&](olPreferencesEntry &owner) { owner.setValue(value.first, value.second); });
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

std::optional<QString> olPreferencesSession::lockReason(const std::string &) const { return std::nullopt; }

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
