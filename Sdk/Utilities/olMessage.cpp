#include "Utilities/olMessage.h"

#include <boost/stacktrace.hpp>

#include <iostream>

olMessageObserver::~olMessageObserver() = default;

void olMessage::set(const std::string &key, const boost::any &value, bool flag)
{
    if (m_observer)
        m_observer->offered(key, value);
    boost::any &entry = m_entries[key];
    if (flag || entry.empty())
        entry = value;
}

const boost::any &olMessage::get(const std::string &key) const
{
    static const boost::any absent;
    const auto entry = m_entries.find(key);
    return entry == m_entries.end() ? absent : entry->second;
}

void olMessage::remove(const std::string &key) { m_entries.erase(key); }

void olMessage::printBT() { std::cerr << boost::stacktrace::stacktrace() << std::flush; }
