#include "KernelServices/olPreferencesService.h"

#include "State/olPreferencesRegistry.h"
#include "State/olValue.h"

template <class T> T olPreferencesService::typed(const std::string &key, T fallback) const
{
    for (const auto *values : {&m_values, &m_defaults}) {
        const auto found = values->find(key);
        const T *value = found == values->end() ? nullptr : boost::any_cast<T>(&found->second);
        if (value)
            return *value;
    }
    return fallback;
}

int olPreferencesService::getInt(const std::string &key, int fallback) const { return typed(key, fallback); }
float olPreferencesService::getFloat(const std::string &key, float fallback) const { return typed(key, fallback); }
bool olPreferencesService::getBool(const std::string &key, bool fallback) const { return typed(key, fallback); }

void olPreferencesService::setInt(const std::string &key, int value) { set(key, value); }
void olPreferencesService::setFloat(const std::string &key, float value) { set(key, value); }
void olPreferencesService::setBool(const std::string &key, bool value) { set(key, value); }

void olPreferencesService::setDefaultInt(const std::string &key, int value) { setDefault(key, value); }
void olPreferencesService::setDefaultFloat(const std::string &key, float value) { setDefault(key, value); }
void olPreferencesService::setDefaultBool(const std::string &key, bool value) { setDefault(key, value); }

void olPreferencesService::setDefault(const std::string &key, const boost::any &value)
{
    olPreferencesRegistry::the().offered(key, value);
    m_defaults[key] = value;
}

bool olPreferencesService::isChanged(const std::string &key) const { return !m_wasClean || m_changed.count(key) != 0; }

boost::any olPreferencesService::get(const std::string &key) const
{
    for (const auto *values : {&m_values, &m_defaults}) {
        const auto found = values->find(key);
        if (found != values->end())
            return found->second;
    }
    return {};
}

void olPreferencesService::set(const std::string &key, const boost::any &value)
{
    if (!olValue::equal(get(key), value))
        m_changed.insert(key);
    m_values[key] = value;
}

void olPreferencesService::remove(const std::string &key)
{
    const boost::any before = get(key);
    m_values.erase(key);
    if (!olValue::equal(before, get(key)))
        m_changed.insert(key);
}

void olPreferencesService::markClean()
{
    m_wasClean = true;
    m_changed.clear();
}

void olPreferencesService::setChanged(const std::string &key, bool changed)
{
    if (changed)
        m_changed.insert(key);
    else
        m_changed.erase(key);
}

void olPreferencesService::clear() { *this = {}; }
