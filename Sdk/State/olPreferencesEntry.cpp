#include "State/olPreferencesEntry.h"

#include "State/olPreferencesRegistry.h"
#include "State/olValue.h"

#include <algorithm>
#include <exception>

// A text of the plug-in's may lie in its read-only memory; what the host keeps is a copy of its own.
olPreferencesEntry::olPreferencesEntry(const QString &name, const QString &category)
    : m_name(name.constData(), name.size()), m_category(category.constData(), category.size())
{
    olPreferencesRegistry::the().add(*this);
}

olPreferencesEntry::~olPreferencesEntry() { olPreferencesRegistry::the().remove(*this); }

void olPreferencesEntry::addPage(QWidget *page)
{
    m_page = page;
    olPreferencesRegistry::the().pageAdded(*this);
}

void olPreferencesEntry::subPage(QWidget *page)
{
    if (!page || page != m_page)
        return;
    olPreferencesRegistry::the().pageRemoved(*this);
    m_page = nullptr;
    // The module deletes it next; no layout of the host's may still hold it then.
    page->setParent(nullptr);
}

void olPreferencesEntry::setDefaults(bool flag)
{
    const olPreferencesRegistry::Recording recording(*this);
    olPreferencesRegistry::the().forgetOffers();
    m_defaults.clear();
    writeDefaults(flag);
}

bool olPreferencesEntry::guarded(const std::function<void()> &call) const
{
    QString reason;
    try {
        call();
        return true;
    } catch (const std::exception &exception) {
        reason = QString::fromLocal8Bit(exception.what());
    } catch (...) {
    }
    emit olPreferencesRegistry::the().news().moduleFailed(m_name, reason);
    return false;
}

const olOfferedDefault *olPreferencesEntry::findDefault(const std::string &key) const
{
    const auto found = std::find_if(m_defaults.begin(), m_defaults.end(),
                                    [&key](const olOfferedDefault &offered) { return offered.key == key; });
    return found == m_defaults.end() ? nullptr : &*found;
}

void olPreferencesEntry::replaceDefault(const std::string &key, const boost::any &value)
{
    for (olOfferedDefault &offered : m_defaults) {
        if (offered.key == key)
            offered.value = value;
    }
}

void olPreferencesEntry::offered(const std::string &key, const boost::any &value)
{
    if (findDefault(key))
        return;
    olPreferencesRegistry::the().forgetOffers();
    m_defaults.push_back({key, olValue::adopted(value)});
}
