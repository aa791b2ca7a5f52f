#include "Preferences/olPreferencesRegistry.h"

#include "Embedded/olValue.h"
#include "Preferences/olPreferencesEntry.h"

#include <algorithm>

olPreferencesRegistry &olPreferencesRegistry::the()
{
    static olPreferencesRegistry registry;
    return registry;
}

olPreferencesRegistry::olPreferencesRegistry() { m_record.setObserver(this); }

olPreferencesRegistry::~olPreferencesRegistry() = default;

olPreferencesEntry *olPreferencesRegistry::find(const QString &name) const
{
    const auto found = std::find_if(m_entries.begin(), m_entries.end(),
                                    [&name](const olPreferencesEntry *entry) { return entry->name() == name; });
    return found == m_entries.end() ? nullptr : *found;
}

olPreferencesEntry *olPreferencesRegistry::ownerOf(const std::string &key) const
{
    const auto found = std::find_if(m_entries.begin(), m_entries.end(),
                                    [&key](const olPreferencesEntry *entry) { return entry->findDefault(key); });
    return found == m_entries.end() ? nullptr : *found;
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
    emit changed();
}

void olPreferencesRegistry::remove(olPreferencesEntry &entry)
{
    m_entries.erase(std::remove(m_entries.begin(), m_entries.end(), &entry), m_entries.end());
    emit changed();
}

void olPreferencesRegistry::pageAdded(olPreferencesEntry &) { emit changed(); }

void olPreferencesRegistry::pageRemoved(olPreferencesEntry &entry) { emit pageAboutToGo(entry.page()); }

olPreferencesRegistry::Recording::Recording(olPreferencesEntry &entry)
{
    olPreferencesRegistry::the().m_recording = &entry;
}

olPreferencesRegistry::Recording::~Recording() { olPreferencesRegistry::the().m_recording = nullptr; }
