#include "Session/olPreferencesSession.h"

#include "KernelServices/olKernelServiceFactory.h"
#include "KernelServices/olPreferencesService.h"
#include "Session/olModuleAccess.h"
#include "Session/olSettingsLock.h"
#include "Session/olValueOverlay.h"
#include "State/olHostState.h"
#include "State/olListed.h"
#include "State/olPreferencesEntry.h"
#include "State/olPreferencesRegistry.h"
#include "State/olValue.h"
#include "olHostSettings.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QFileInfo>
#include <QScopedValueRollback>
#include <QVariant>
#include <QWidget>

#include <algorithm>
#include <iterator>

namespace
{

using Values = olPreferencesStore::Values;

const std::string languageKey = olHostSettings::language.key;

// Somebody who has just changed something elsewhere waits for it.
constexpr int followMilliseconds = 400;

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

bool isDefault(const olPreferencesStore::Key &key, const boost::any &value)
{
    const auto [first, end] = olPreferencesRegistry::the().offersOf(key.second);
    return isDefault(key.first, value, first, end);
}

boost::any valueAt(const olPreferencesStore::Key &key)
{
    return key.first == olHome::Record ? record().get(key.second) : service().get(key.second);
}

void setValueAt(const olPreferencesStore::Key &key, const boost::any &value)
{
    if (key.first == olHome::Service)
        service().set(key.second, value);
    else if (value.empty())
        record().remove(key.second);
    else
        record().set(key.second, value, true);
}

/// The settings that a page edits, with or without a default.
std::set<std::string> keysOf(const olPreferencesEntry &entry)
{
    std::set<std::string> keys;
    for (const olOfferedDefault &offered : entry.defaults())
        keys.insert(offered.key);
    const auto controls = entry.page() ? entry.page()->findChildren<QWidget *>() : QList<QWidget *>();
    for (const QWidget *control : controls) {
        const QStringList edited = control->property("olSettingKeys").toStringList();
        for (const QString &key : edited)
            keys.insert(key.toStdString());
    }
    return keys;
}

/// Each differs when its file was written, replaced, or came or went.
QStringList stampsOf(const QStringList &files)
{
    QStringList stamps;
    for (const QString &file : files) {
        const QFileInfo info(file);
        stamps << QStringLiteral("%1 %2 %3")
                      .arg(info.exists())
                      .arg(info.size())
                      .arg(info.lastModified().toMSecsSinceEpoch());
    }
    return stamps;
}

void setDisplayLanguage()
{
    const int language = olHostSettings::language.value();
    olHostState::the().displayLanguage = language >= 1 && language <= 3 ? language : 0;
}

/// Calls with each module that has the setting.
template <class Visit> void eachOwner(const std::string &key, Visit visit)
{
    const auto [first, end] = olPreferencesRegistry::the().offersOf(key);
    std::for_each(first, end, [&visit](const olOffer &offer) { visit(*offer.entry); });
}

/// Of that type; empty for a type that is no list.
boost::any emptyList(const std::string &type) { return olValue::fromJson(type, QByteArrayLiteral("[]")); }

/// A list that is absent until somebody fills it, and has no default.
struct OptionalList {
    olPreferencesEntry *module;
    boost::any none;
};

std::map<std::string, OptionalList> optionalLists()
{
    std::map<std::string, OptionalList> found;
    for (olPreferencesEntry *entry : entries()) {
        const std::vector<std::string> keys = olModuleAccess(*entry).keys();
        for (const std::string &key : keys) {
            if (olPreferencesRegistry::the().ownerOf(key))
                continue;
            const boost::any none = emptyList(olSettingDescription::of(*entry, key).type);
            if (!none.empty())
                found.emplace(key, OptionalList{entry, none});
        }
    }
    return found;
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
    connect(&m_following, &QTimer::timeout, this, &olPreferencesSession::takeOver);
    connect(&m_following, &QTimer::timeout, this, &olPreferencesSession::followSite);
    connect(&olPreferencesRegistry::the().news(), &olRegistryNews::moduleFailed, this,
            &olPreferencesSession::tellOfFailure);
}

olPreferencesSession::~olPreferencesSession() { stop(); }

olResult<> olPreferencesSession::loadStore(olStoreUse use)
{
    const olResult<olStoreRows::Contents> opened = m_store.open(use);
    if (opened.isOk()) {
        m_stored = opened->values;
        if (!opened->notice.isEmpty())
            m_notices << opened->notice;
    }
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
    return opened.isOk() ? olResult<>() : olFailure{opened.error()};
}

void olPreferencesSession::stop()
{
    m_following.stop();
    m_plugin.unload();
}

olResult<> olPreferencesSession::loadPlugin(const QString &given)
{
    const QString notice = olRemoveAbandonedLock();
    if (!notice.isEmpty())
        m_notices << notice;
    return m_plugin.load(given, &m_translations);
}

void olPreferencesSession::fillDefaults()
{
    const Snapshot before;
    for (olPreferencesEntry *entry : entries())
        entry->setDefaults(false);

    resolveSite(m_site);
    m_notices << m_site.takeFaults();
    for (const auto &[key, list] : optionalLists()) {
        // At this site it has a default like any other.
        if (m_site.settings().count(key) != 0)
            list.module->offered(key, list.none);
    }
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

void olPreferencesSession::resolveSite(olSiteDefaults &site) const
{
    const auto optional = optionalLists();
    const auto defaultOf = [this, &optional](const std::string &key) {
        const auto list = optional.find(key);
        return list == optional.end() ? defaultValue(key) : list->second.none;
    };
    site.resolve(defaultOf,
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
        entry->markClean();
    }
}

void olPreferencesSession::newScene()
{
    for (olPreferencesEntry *entry : entries()) {
        const olValueOverlay shown(*entry, previewedOf(*entry));
        entry->preferencesNewScene();
    }
}

bool olPreferencesSession::isLocked(const std::string &key) const { return lockReason(key).has_value(); }

Values olPreferencesSession::toBeKept() const
{
    Values kept;
    const auto keep = [&](const olPreferencesStore::Key &key, const boost::any &value) {
        if (!olValue::typeName(value).empty() && isChoice(key, value))
            kept[key] = value;
    };
    for (const auto &[key, value] : record().entries())
        keep({olHome::Record, key}, value);
    for (const olOffer &offer : olPreferencesRegistry::the().offers()) {
        if (offer.entry->home() == olHome::Service)
            keep({olHome::Service, offer.offered->key}, service().get(offer.offered->key));
    }
    // The record shows all its rows; the service only those of its modules. Under a lock waits what was chosen before
    // it, and another program's choice until it is agreed to.
    for (const auto &[key, value] : m_stored) {
        const bool isUnseen = key.first == olHome::Service && !hasDefault(key);
        if (isUnseen || isLocked(key.second) || isHeldBack(key))
            kept[key] = value;
    }
    return kept;
}

/// Whether a value is kept. One that was chosen stays chosen although it is a default here: in another edition it may
/// be none. Only what the site gives is the default everywhere.
bool olPreferencesSession::isChoice(const olPreferencesStore::Key &key, const boost::any &value) const
{
    if (isLocked(key.second) || isHeldBack(key))
        return false;
    if (!isDefault(key, value))
        return true;
    if (m_restored.count(key.second) != 0)
        return false;
    const auto stored = m_stored.find(key);
    if (stored != m_stored.end() && olValue::identical(stored->second, value))
        return true;
    const bool wasChosen = stored != m_stored.end() || m_chosen.count(key.second) != 0;
    return wasChosen && m_site.settings().count(key.second) == 0;
}

void olPreferencesSession::choose(const std::string &key)
{
    m_chosen.insert(key);
    m_restored.erase(key);
}

void olPreferencesSession::restore(const std::string &key)
{
    m_restored.insert(key);
    m_chosen.erase(key);
}

std::vector<olStoreRows::Change> olPreferencesSession::changesTo(const Values &stored, const Values &kept) const
{
    std::vector<olStoreRows::Change> changes;
    for (const auto &[key, value] : kept) {
        const auto found = stored.find(key);
        if (found == stored.end() || !olValue::identical(found->second, value))
            changes.push_back({key, {}, olStoreRows::Row::of(value)});
    }
    for (const auto &[key, value] : stored) {
        const bool isOurs = m_stored.count(key) != 0 || hasDefault(key);
        if (kept.count(key) == 0 && isOurs)
            changes.push_back({key, {}, {}});
    }
    return changes;
}

olResult<> olPreferencesSession::save()
{
    const QScopedValueRollback<bool> changing(m_isChanging, true);
    restoreLocked();
    keepEmptied();
    const Values kept = toBeKept();
    const std::vector<olStoreRows::Change> changes = changesTo(m_stored, kept);
    olResult<> saved = m_store.save(changes);
    if (!saved.isOk() && m_store.isBroken())
        saved = saveIntoMended({saved.error()}, kept);
    if (!saved.isOk())
        return saved;
    for (const olStoreRows::Change &change : changes) {
        m_stored.erase(change.key);
        if (change.after)
            m_stored[change.key] = olValue::adopted(kept.at(change.key));
    }
    for (auto held = m_heldBack.begin(); held != m_heldBack.end();)
        held = isHeldBack(held->first) ? std::next(held) : m_heldBack.erase(held);
    m_chosen.clear();
    m_restored.clear();
    return saved;
}

/// What this run holds is newer than any copy, so all of it goes into the file that it mends.
olResult<> olPreferencesSession::saveIntoMended(const olFailure &failure, const Values &kept)
{
    const olResult<olStoreRows::Contents> opened = m_store.open();
    if (!opened.isOk())
        return failure;
    // What another program has mended may hold newer values of its own.
    const bool isOthers = opened->notice.isEmpty() && !opened->values.empty();
    olResult<> saved = m_store.save(changesTo(isOthers ? m_stored : opened->values, kept));
    if (saved.isOk() && !opened->notice.isEmpty())
        m_notices << olSentences(
            {opened->notice,
             QCoreApplication::translate("olPreferencesSession", "All settings of this run were then saved into it.")});
    return saved;
}

olResult<> olPreferencesSession::commit(const std::vector<olPreferencesEntry *> &shown, const olSettingValues &besides,
                                        const std::set<std::string> &restored)
{
    // A module may open a box on the way.
    const QScopedValueRollback<bool> changing(m_isChanging, true);
    const Snapshot before;
    const bool isTakenBack = takeBack(shown, besides);
    for (const std::string &key : restored)
        restore(key);
    olResult<> saved = isTakenBack ? save() : olFailure{m_notices.takeLast()};
    m_restored.clear();
    if (!saved.isOk()) {
        before.restore();
        // What the take-back reported is void; the service has its own reports back with its values.
        for (olPreferencesEntry *entry : shown) {
            if (entry->home() == olHome::Record)
                entry->markClean();
        }
        return saved;
    }
    const std::vector<olPreferencesEntry *> changed = withOwners(shown, besides);
    // A module may apply what its page shows; those behind the shown ones have not seen their new values yet.
    std::for_each(changed.begin() + std::ptrdiff_t(shown.size()), changed.end(), [this](auto *entry) {
        emit aboutToTakeOver(*entry);
        entry->updateGUI();
    });
    for (olPreferencesEntry *entry : changed) {
        entry->applyPreferences();
        entry->markClean();
    }
    // What was previewed and not confirmed goes from the view.
    preview({});
    std::for_each(changed.begin() + std::ptrdiff_t(shown.size()), changed.end(),
                  [this](auto *entry) { emit tookOver(*entry); });
    return saved;
}

void olPreferencesSession::tellOfFailure(const QString &module, const QString &reason)
{
    const QString text =
        reason.isEmpty()
            ? QCoreApplication::translate("olPreferencesSession", "The module %1 has failed and does not say why.")
                  .arg(module)
            : QCoreApplication::translate("olPreferencesSession", "The module %1 has failed: %2.").arg(module, reason);
    m_notices.removeAll(text);
    m_notices << text;
    // Whoever asks after what is just being done tells it first.
    QMetaObject::invokeMethod(this, &olPreferencesSession::noticed, Qt::QueuedConnection);
}

void olPreferencesSession::follow()
{
    m_siteStamps = stampsOf(m_siteFiles);
    m_following.start(followMilliseconds);
}

void olPreferencesSession::followSite()
{
    const QStringList before = std::exchange(m_siteStamps, stampsOf(m_siteFiles));
    for (int file = 0; file < m_siteFiles.size(); ++file) {
        if (before.at(file) == m_siteStamps.at(file))
            continue;
        m_notices << QCoreApplication::translate(
                         "olPreferencesSession",
                         "The site's preferences %1 were changed. That counts from the next start of the program.")
                         .arg(m_siteFiles.at(file));
        emit noticed();
    }
}

void olPreferencesSession::takeOver()
{
    // What is gone or damaged is the next save's to tell.
    if (m_isChanging || !m_store.mayHaveChanged() || !QFileInfo::exists(m_store.file()))
        return;
    const olResult<olStoreRows::Contents> contents = m_store.load();
    if (!contents.isOk())
        return;
    std::vector<olOutsideChange> changes = replaceStored(contents->values);
    for (olOutsideChange &change : changes) {
        for (const olStoreRows::Save &save : contents->history) {
            const bool isIn = std::any_of(save.changes.begin(), save.changes.end(),
                                          [&change](const auto &changed) { return changed.key.second == change.key; });
            if (isIn)
                change.program = QString::fromStdString(save.program);
        }
    }
    const auto unagreed = std::stable_partition(changes.begin(), changes.end(), [this](const olOutsideChange &change) {
        return !warning(change.key, change.after);
    });
    const std::vector<olOutsideChange> asked(unagreed, changes.end());
    changes.erase(unagreed, changes.end());
    putIntoForce(changes);
    for (const olOutsideChange &change : asked) {
        m_heldBack[{change.home, change.key}] = change;
        emit consentWanted(change, *warning(change.key, change.after));
    }
}

void olPreferencesSession::answer(const std::string &key, bool isAgreed)
{
    for (const olHome home : {olHome::Record, olHome::Service}) {
        const bool isStillAsked = isHeldBack({home, key});
        const auto held = m_heldBack.extract({home, key});
        if (isStillAsked && isAgreed)
            putIntoForce({held.mapped()});
    }
}

/// What another program chose, as if a person had confirmed it on the pages of the modules that have it.
void olPreferencesSession::putIntoForce(const std::vector<olOutsideChange> &changes)
{
    if (changes.empty())
        return;
    const QScopedValueRollback<bool> changing(m_isChanging, true);
    for (const olOutsideChange &change : changes)
        setValueAt({change.home, change.key}, change.after);
    for (olPreferencesEntry *entry : entries()) {
        const std::set<std::string> keys = keysOf(*entry);
        std::set<std::string> changed;
        for (const olOutsideChange &change : changes) {
            if (keys.count(change.key) != 0)
                changed.insert(change.key);
        }
        if (!changed.empty())
            takeOverIn(*entry, changed);
    }
    emit changedOutside(changes);
}

/// Takes what the store holds now for stored. Returns what differs from before and was not changed here.
std::vector<olOutsideChange> olPreferencesSession::replaceStored(const Values &stored)
{
    const Values before = std::exchange(m_stored, stored);
    Values touched = before;
    touched.insert(stored.begin(), stored.end());
    std::vector<olOutsideChange> changes;
    for (const auto &one : touched) {
        const olPreferencesStore::Key &key = one.first;
        const auto valueIn = [&key, this](const Values &values) {
            const auto found = values.find(key);
            if (found != values.end())
                return found->second;
            return hasDefault(key) ? defaultValue(key.second) : boost::any();
        };
        const boost::any inForce = valueAt(key);
        const boost::any now = valueIn(stored);
        const bool isOurs = !olValue::identical(inForce, valueIn(before)) || isLocked(key.second);
        const bool isUnseen = key.first == olHome::Service && !hasDefault(key);
        if (olValue::identical(inForce, now))
            m_heldBack.erase(key); // the other program took it back itself
        else if (!isOurs && !isUnseen)
            changes.push_back({key.first, key.second, olValue::adopted(inForce), now, {}});
    }
    return changes;
}

/// Whether somebody was asked about the stored value, and neither they nor anybody else have settled it.
bool olPreferencesSession::isHeldBack(const olPreferencesStore::Key &key) const
{
    const auto held = m_heldBack.find(key);
    return held != m_heldBack.end() && olValue::identical(held->second.before, valueAt(key));
}

/// As if a person had confirmed these changes on the module's page, and nothing else.
void olPreferencesSession::takeOverIn(olPreferencesEntry &entry, const std::set<std::string> &changed)
{
    emit aboutToTakeOver(entry);
    entry.updateGUI();
    applyIn(entry, changed);
    emit tookOver(entry);
}

/// With what is previewed: a module may apply more than what has changed.
void olPreferencesSession::applyIn(olPreferencesEntry &entry, const std::set<std::string> &changed) const
{
    {
        const olValueOverlay shown(entry, previewedOf(entry));
        for (const std::string &key : keysOf(entry))
            entry.setChanged(key, changed.count(key) != 0);
        entry.applyPreferences();
    }
    entry.markClean();
}

olSettingValues olPreferencesSession::previewedOf(const olPreferencesEntry &entry) const
{
    olSettingValues values;
    for (const auto &[key, value] : m_previewed) {
        if (entry.findDefault(key))
            values[key] = value;
    }
    return values;
}

void olPreferencesSession::preview(const olSettingValues &values)
{
    olSettingValues wanted;
    for (const auto &[key, value] : values) {
        if (description(key).canBePreviewed && whyNot(key, value).isEmpty())
            wanted[key] = olValue::adopted(value);
    }
    const olSettingValues before = std::exchange(m_previewed, wanted);
    olSettingValues touched = before;
    touched.insert(wanted.begin(), wanted.end());
    for (olPreferencesEntry *entry : entries()) {
        std::set<std::string> changed;
        for (const auto &[key, value] : touched) {
            const auto shownIn = [entry = entry, &key = key](const olSettingValues &previewed) {
                const auto found = previewed.find(key);
                return found == previewed.end() ? entry->value(key) : found->second;
            };
            if (entry->findDefault(key) && !olValue::identical(shownIn(before), shownIn(wanted)))
                changed.insert(key);
        }
        if (!changed.empty())
            applyIn(*entry, changed);
    }
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

QString olPreferencesSession::siteFile(const std::string &key) const
{
    const auto found = m_site.settings().find(key);
    return found == m_site.settings().end() ? QString() : found->second.file;
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
bool olPreferencesSession::takeBack(const std::vector<olPreferencesEntry *> &shown,
                                    const olSettingValues &besides) const
{
    const Snapshot before;
    for (olPreferencesEntry *entry : shown) {
        if (!entry->updateData())
            return false;
    }
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
    return true;
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

/// A page takes a list without rows out of the record; where the site has a default for it, that must not come back.
void olPreferencesSession::keepEmptied() const
{
    for (const auto &site : m_site.settings()) {
        const auto &[key, setting] = site;
        eachOwner(key, [key = key, none = emptyList(olValue::typeName(setting.value))](olPreferencesEntry &owner) {
            if (owner.value(key).empty() && !none.empty())
                owner.setValue(key, none);
        });
    }
}

QStringList olPreferencesSession::check() const
{
    olSiteDefaults site(m_siteFiles);
    site.read();
    if (!keys().empty())
        resolveSite(site);
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
