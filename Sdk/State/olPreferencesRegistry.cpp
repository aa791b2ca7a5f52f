#include "State/olPreferencesRegistry.h"

#include "State/olPreferencesEntry.h"
#include "State/olValue.h"

#include <QCoreApplication>

#include <algorithm>

olPreferencesRegistry &olPreferencesRegistry::the()
{
    static olPreferencesRegistry registry;
    return registry;
}

olPreferencesRegistry::olPreferencesRegistry() { m_record.setObserver(this); }

olPreferencesRegistry::~olPreferencesRegistry() = default;

olRegistryNews &olPreferencesRegistry::news()
{
    if (!m_news)
        m_news = new olRegistryNews(QCoreApplication::instance());
    return *m_news;
}

olPreferencesEntry *olPreferencesRegistry::find(const QString &name) const
{
    const auto found = std::find_if(m_entries.begin(), m_entries.end(),
                                    [&name](const olPreferencesEntry *entry) { return entry->name() == name; });
    return found == m_entries.end() ? nullptr : *found;
}

olPreferencesEntry *olPreferencesRegistry::ownerOf(const std::string &key) const
{
    const auto [first, end] = offersOf(key);
    return first == end ? nullptr : first->entry;
}

const olPreferencesRegistry::Offers &olPreferencesRegistry::offers() const
{
    if (!m_offers.empty())
        return m_offers;
    for (olPreferencesEntry *entry : m_entries) {
        for (const olOfferedDefault &offered : entry->defaults())
            m_offers.push_back({entry, &offered});
    }
    std::stable_sort(m_offers.begin(), m_offers.end(),
                     [](const olOffer &one, const olOffer &other) { return one.offered->key < other.offered->key; });
    return m_offers;
}

std::pair<olPreferencesRegistry::Offers::const_iterator, olPreferencesRegistry::Offers::const_iterator>
olPreferencesRegistry::offersOf(const std::string &key) const
{
    struct ByKey {
        bool operator()(const olOffer &offer, const std::string &key) const { return offer.offered->key < key; }
        bool operator()(const std::string &key, const olOffer &offer) const { return key < offer.offered->key; }
    };
    return std::equal_range(offers().begin(), offers().end(), key, ByKey());
}

void olPreferencesRegistry::adoptRecord()
{
    const olMessage::Entries entries = m_record.entries();
    for (const auto &[key, value] : entries) {
        const boost::any adopted = olValue::adopted(value);
        if (adopted.empty())
            m_record.remove(key);
        else
            m_record.set(key, adopted, true);
    }
}

void olPreferencesRegistry::offered(const std::string &key, const boost::any &value)
{
    if (m_recording)
        m_recording->offered(key, value);
}

void olPreferencesRegistry::add(olPreferencesEntry &entry)
{
    if (m_hook)
        m_hook(entry.name());
    m_entries.push_back(&entry);
    tellOfChange();
}

void olPreferencesRegistry::remove(olPreferencesEntry &entry)
{
    m_entries.erase(std::remove(m_entries.begin(), m_entries.end(), &entry), m_entries.end());
    forgetOffers();
    tellOfChange();
}

void olPreferencesRegistry::pageAdded(olPreferencesEntry &) { tellOfChange(); }

void olPreferencesRegistry::pageRemoved(olPreferencesEntry &entry)
{
    if (m_news)
        emit m_news->pageAboutToGo(entry.page());
}

void olPreferencesRegistry::tellOfChange()
{
    if (m_news)
        emit m_news->changed();
}

olPreferencesRegistry::Recording::Recording(olPreferencesEntry &entry)
{
    olPreferencesRegistry::the().m_recording = &entry;
}

olPreferencesRegistry::Recording::~Recording() { olPreferencesRegistry::the().m_recording = nullptr; }
