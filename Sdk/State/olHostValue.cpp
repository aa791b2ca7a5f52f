#include "State/olHostValue.h"

#include <algorithm>
#include <cstring>

olHostObserver::~olHostObserver() = default;

olHostValueBase::olHostValueBase(olHostValues &owner, const char *name, Kind kind)
    : m_owner(owner), m_name(name), m_kind(kind)
{
    owner.m_values.push_back(this);
}

olHostValueBase::~olHostValueBase() = default;

void olHostValueBase::changed() { m_owner.tell(*this); }

olHostValueBase *olHostValues::find(const char *name) const
{
    const auto found = std::find_if(m_values.begin(), m_values.end(), [name](const olHostValueBase *value) {
        return std::strcmp(value->name(), name) == 0;
    });
    return found == m_values.end() ? nullptr : *found;
}

void olHostValues::reset()
{
    for (olHostValueBase *value : m_values)
        value->reset();
}

void olHostValues::addObserver(olHostObserver &observer) { m_observers.push_back(&observer); }

void olHostValues::removeObserver(olHostObserver &observer)
{
    std::replace(m_observers.begin(), m_observers.end(), &observer, static_cast<olHostObserver *>(nullptr));
}

void olHostValues::tell(const olHostValueBase &value)
{
    ++m_telling;
    // By number: an observer may bring another one in.
    for (std::size_t index = 0; index < m_observers.size(); ++index) {
        if (m_observers[index])
            m_observers[index]->stateChanged(value);
    }
    if (--m_telling == 0)
        m_observers.erase(std::remove(m_observers.begin(), m_observers.end(), nullptr), m_observers.end());
}
