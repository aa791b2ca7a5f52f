#include "State/olHostValue.h"

#include <algorithm>
#include <cstring>

olHostObserver::~olHostObserver() = default;

olHostValueBase::olHostValueBase(olHostValues &owner, const char *name, Origin origin)
    : m_owner(owner), m_name(name), m_origin(origin)
{
    owner.m_values.push_back(this);
}

olHostValueBase::~olHostValueBase() = default;

void olHostValueBase::changed()
{
    for (olHostObserver *observer : m_owner.m_observers)
        observer->stateChanged(*this);
}

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
    m_observers.erase(std::remove(m_observers.begin(), m_observers.end(), &observer), m_observers.end());
}
