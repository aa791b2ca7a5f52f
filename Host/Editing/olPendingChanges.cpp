#include "Editing/olPendingChanges.h"

#include "Editing/olEditedPage.h"
#include "Editing/olPageIndex.h"
#include "State/olPreferencesEntry.h"
#include "State/olPreferencesRegistry.h"
#include "State/olValue.h"

#include <QLineEdit>

#include <algorithm>
#include <iterator>

namespace
{

const std::vector<olPreferencesEntry *> &modules() { return olPreferencesRegistry::the().entries(); }

} // namespace

olPendingChanges::olPendingChanges(olPreferencesSession &session) : m_session(session)
{
    connect(&olPreferencesRegistry::the().news(), &olRegistryNews::changed, this, &olPendingChanges::forgetTheGone);
    connect(&session, &olPreferencesSession::aboutToTakeOver, this, &olPendingChanges::setAside);
    connect(&session, &olPreferencesSession::tookOver, this, &olPendingChanges::showAgain);
}

olPendingChanges::~olPendingChanges() = default;

olEditedPage &olPendingChanges::page(olPreferencesEntry &entry)
{
    std::unique_ptr<olEditedPage> &page = m_pages[&entry];
    if (!page) {
        page = std::make_unique<olEditedPage>(m_session, entry);
        connect(page.get(), &olEditedPage::edited, this, &olPendingChanges::edited);
    }
    if (!findPage(entry)) {
        page->fill();
        m_filled.push_back(&entry);
    }
    return *page;
}

olEditedPage *olPendingChanges::findPage(const olPreferencesEntry &entry) const
{
    const bool isFilled = std::find(m_filled.begin(), m_filled.end(), &entry) != m_filled.end();
    return isFilled ? m_pages.at(&entry).get() : nullptr;
}

void olPendingChanges::forget(const QWidget *page)
{
    m_owners.clear();
    const auto found =
        std::find_if(m_pages.begin(), m_pages.end(), [page](const auto &known) { return known.first->page() == page; });
    if (found == m_pages.end())
        return;
    m_filled.erase(std::remove(m_filled.begin(), m_filled.end(), found->first), m_filled.end());
    m_pages.erase(found);
}

/// Of modules that left without taking their page back first.
void olPendingChanges::forgetTheGone()
{
    m_owners.clear();
    const auto isGone = [](const olPreferencesEntry *entry) {
        return std::find(modules().begin(), modules().end(), entry) == modules().end();
    };
    m_filled.erase(std::remove_if(m_filled.begin(), m_filled.end(), isGone), m_filled.end());
    for (auto page = m_pages.begin(); page != m_pages.end();)
        page = isGone(page->first) ? m_pages.erase(page) : std::next(page);
}

/// While another program's changes come into force, which the page shows meanwhile.
void olPendingChanges::setAside(const olPreferencesEntry &entry)
{
    m_aside.clear();
    const olEditedPage *page = findPage(entry);
    for (const std::string &key : page ? page->keys() : std::vector<std::string>()) {
        if (page->isChanged(key))
            m_aside[key] = page->value(key);
    }
}

void olPendingChanges::showAgain(const olPreferencesEntry &entry)
{
    if (olEditedPage *page = findPage(entry)) {
        page->markClean();
        if (!m_aside.empty())
            page->show(m_aside);
    }
    for (auto pending = m_withoutControl.begin(); pending != m_withoutControl.end();) {
        const bool isInForce = olValue::equal(entry.value(pending->first), pending->second);
        pending = isInForce ? m_withoutControl.erase(pending) : std::next(pending);
    }
    emit edited();
}

void olPendingChanges::drop()
{
    m_filled.clear();
    m_withoutControl.clear();
    m_restored.clear();
    emit edited();
}

bool olPendingChanges::isEmpty() const
{
    return m_withoutControl.empty() && std::none_of(m_filled.begin(), m_filled.end(), [this](const auto *entry) {
               return findPage(*entry)->isChanged();
           });
}

std::vector<olPendingChange> olPendingChanges::list() const
{
    std::vector<olPendingChange> changes;
    for (olPreferencesEntry *entry : modules()) {
        const olEditedPage *page = findPage(*entry);
        if (!page || !page->isChanged())
            continue;
        const std::size_t before = changes.size();
        for (const std::string &key : page->keys()) {
            if (page->isChanged(key))
                changes.push_back({entry, key, page->valueInForce(key), page->value(key), page->control(key)});
        }
        if (changes.size() == before)
            changes.push_back({entry, {}, {}, {}, entry->page()});
    }
    for (const auto &[key, value] : m_withoutControl) {
        if (olPreferencesEntry *owner = ownerOf(key))
            changes.push_back({owner, key, olValue::adopted(owner->value(key)), value, nullptr});
    }
    return changes;
}

boost::any olPendingChanges::value(const std::string &key) const
{
    const auto pending = m_withoutControl.find(key);
    if (pending != m_withoutControl.end())
        return pending->second;
    const olPreferencesEntry *owner = ownerOf(key);
    const olEditedPage *page = owner ? findPage(*owner) : nullptr;
    if (page && page->hasControl(key))
        return page->value(key);
    return owner ? owner->value(key) : boost::any();
}

bool olPendingChanges::isPending(const std::string &key) const
{
    const olPreferencesEntry *owner = ownerOf(key);
    const olEditedPage *page = owner ? findPage(*owner) : nullptr;
    return m_withoutControl.count(key) != 0 || (page && page->hasControl(key) && page->isChanged(key));
}

olSettingState olPendingChanges::stateOf(const std::string &key) const
{
    if (m_session.lockReason(key))
        return olSettingState::Locked;
    if (isPending(key))
        return olSettingState::Pending;
    const QString origin = m_session.origin(key);
    if (origin == QLatin1String("stored"))
        return olSettingState::Yours;
    return origin == QLatin1String("site") ? olSettingState::Site : olSettingState::Default;
}

bool olPendingChanges::differsFromDefault(const std::string &key) const
{
    const olPreferencesEntry *owner = ownerOf(key);
    const olEditedPage *page = owner ? findPage(*owner) : nullptr;
    if (page && page->hasControl(key))
        return page->differsFromDefault(key);
    const boost::any now = value(key);
    return !now.empty() && !olValue::equal(now, m_session.defaultValue(key));
}

bool olPendingChanges::differsFromDefault(const olPreferencesEntry &entry, const std::string &key) const
{
    const olEditedPage *page = findPage(entry);
    return page && page->hasControl(key) ? page->differsFromDefault(key) : differsFromDefault(key);
}

bool olPendingChanges::differsFromDefault(const olPreferencesEntry &entry) const
{
    const olEditedPage *page = findPage(entry);
    const auto onPage = [page](const std::string &key) { return page->differsFromDefault(key); };
    if (page && std::any_of(page->keys().begin(), page->keys().end(), onPage))
        return true;
    return std::any_of(entry.defaults().begin(), entry.defaults().end(), [&](const olOfferedDefault &offered) {
        if (page && page->hasControl(offered.key))
            return false;
        const boost::any now = entry.value(offered.key);
        return !now.empty() && !olValue::equal(now, m_session.defaultValue(offered.key));
    });
}

olSettingValues olPendingChanges::inForce() const
{
    findOwners();
    olSettingValues values;
    for (const std::string &key : olPreferencesSession::keys())
        values[key] = olPreferencesRegistry::the().ownerOf(key)->value(key);
    for (const auto &[key, owner] : m_owners)
        values[key] = owner->value(key);
    return values;
}

void olPendingChanges::put(const olSettingValues &values)
{
    std::map<olPreferencesEntry *, olSettingValues> byOwner;
    for (const auto &[key, value] : values) {
        // Who asks for the default wants whatever it will be; who picks the same value wants that.
        if (olValue::identical(value, m_session.defaultValue(key)))
            m_restored.insert(key);
        else
            m_restored.erase(key);
        olPreferencesEntry *owner = ownerOf(key);
        if (owner && !m_session.lockReason(key) && isAgreed(key, value))
            byOwner[owner][key] = value;
    }
    for (const auto &[owner, own] : byOwner)
        putOwn(*owner, own);
    emit edited();
}

void olPendingChanges::preview(bool isOn)
{
    olSettingValues shown;
    for (const olPendingChange &change : isOn ? list() : std::vector<olPendingChange>()) {
        const auto *field = qobject_cast<QLineEdit *>(change.control.data());
        if (!change.key.empty() && (!field || field->hasAcceptableInput()))
            shown[change.key] = change.after;
    }
    m_session.preview(shown);
}

bool olPendingChanges::isAgreed(const std::string &key, const boost::any &value) const
{
    const std::optional<olSettingWarning> question = m_session.warning(key, value);
    return !question || olValue::equal(this->value(key), value) || (m_ask && m_ask(*question));
}

void olPendingChanges::takeBack(const std::string &key)
{
    const olPreferencesEntry *owner = ownerOf(key);
    const olEditedPage *page = owner ? findPage(*owner) : nullptr;
    if (page && page->hasControl(key))
        put({{key, page->valueInForce(key)}});
    else if (m_withoutControl.erase(key) != 0)
        emit edited();
}

void olPendingChanges::takeBack(const olPreferencesEntry &entry)
{
    if (olEditedPage *page = findPage(entry))
        page->fill();
}

void olPendingChanges::putOwn(olPreferencesEntry &entry, const olSettingValues &values)
{
    olEditedPage *editedPage = entry.page() ? &page(entry) : nullptr;
    olSettingValues shown;
    for (const auto &[key, value] : values) {
        if (editedPage && editedPage->hasControl(key))
            shown[key] = value;
        else if (value.empty() || olValue::equal(entry.value(key), value))
            m_withoutControl.erase(key);
        else
            m_withoutControl[key] = value;
    }
    if (!shown.empty())
        editedPage->show(shown);
}

olSettingValues olPendingChanges::defaultsOf(const olPreferencesEntry &entry) const
{
    if (m_owners.empty())
        findOwners();
    olSettingValues defaults;
    for (const olOfferedDefault &offered : entry.defaults()) {
        if (ownerOf(offered.key) == &entry && !isShared(offered.key))
            defaults[offered.key] = m_session.defaultValue(offered.key);
    }
    // What a page edits without a default is by default absent.
    for (const auto &[key, owner] : m_owners) {
        if (owner == &entry)
            defaults.emplace(key, m_session.defaultValue(key));
    }
    return defaults;
}

/// Whether no page edits the setting and several modules have it: then it is none of any one page.
bool olPendingChanges::isShared(const std::string &key) const
{
    return m_owners.count(key) == 0 && std::count_if(modules().begin(), modules().end(),
                                                     [&key](const auto *entry) { return entry->findDefault(key); }) > 1;
}

void olPendingChanges::restore(olPreferencesEntry &entry)
{
    const olSettingValues defaults = defaultsOf(entry);
    const bool isTagged =
        std::any_of(m_owners.begin(), m_owners.end(), [&entry](const auto &owned) { return owned.second == &entry; });
    if (entry.page() && !isTagged)
        page(entry).show(defaults);
    else
        putWhatDiffers(defaults);
}

void olPendingChanges::restoreAll()
{
    for (olPreferencesEntry *entry : modules())
        restore(*entry);
    olSettingValues shared;
    for (const std::string &key : olPreferencesSession::keys()) {
        if (isShared(key))
            shared[key] = m_session.defaultValue(key);
    }
    putWhatDiffers(shared);
}

/// Pages whose settings have their defaults already need not be filled for that.
void olPendingChanges::putWhatDiffers(olSettingValues defaults)
{
    for (auto standard = defaults.begin(); standard != defaults.end();)
        standard = differsFromDefault(standard->first) ? std::next(standard) : defaults.erase(standard);
    put(defaults);
}

olResult<> olPendingChanges::commit()
{
    for (const olPreferencesEntry *entry : m_filled)
        findPage(*entry)->finishTyping();
    olSettingValues besides = m_withoutControl;
    for (const olPreferencesEntry *entry : m_filled)
        findPage(*entry)->putBackHeld();
    for (const olPreferencesEntry *entry : m_filled)
        besides.merge(findPage(*entry)->roundedOnPage());
    olResult<> committed = m_session.commit(m_filled, besides, m_restored);
    if (committed.isOk()) {
        m_withoutControl.clear();
        m_restored.clear();
        for (const olPreferencesEntry *entry : m_filled)
            findPage(*entry)->markClean();
    }
    emit edited();
    return committed;
}

olPreferencesEntry *olPendingChanges::ownerOf(const std::string &key) const
{
    if (m_owners.empty())
        findOwners();
    const auto found = m_owners.find(key);
    return found == m_owners.end() ? olPreferencesRegistry::the().ownerOf(key) : found->second;
}

/// Several modules may offer one key; it belongs to the page that edits it.
void olPendingChanges::findOwners() const
{
    for (olPreferencesEntry *entry : modules()) {
        if (!entry->page())
            continue;
        const olPageIndex index(*entry->page());
        for (const olPageControl &control : index.controls()) {
            for (const QString &key : control.settingKeys)
                m_owners.emplace(key.toStdString(), entry);
        }
    }
}
