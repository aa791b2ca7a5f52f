#pragma once

#include "Framework/olSettingTraits.h"

#include <string>
#include <type_traits>
#include <utility>

/// What a setting is apart from its type: the key that it lives under, and what there is to know of it.
class olSettingBase
{
public:
    explicit olSettingBase(std::string key, const olSettingTraits &traits = {})
        : m_key(std::move(key)), m_traits(traits)
    {
    }

    [[nodiscard]] const std::string &key() const { return m_key; }
    [[nodiscard]] const olSettingTraits &traits() const { return m_traits; }

private:
    std::string m_key;
    olSettingTraits m_traits;
};

/// One setting: its key, its type, which is the record's, and its default. A default that depends on the host is a
/// function, asked each time the default is written.
template <class T> class olSetting : public olSettingBase
{
public:
    olSetting(std::string key, T value, const olSettingTraits &traits = {})
        : olSettingBase(std::move(key), traits), m_value(std::move(value))
    {
    }
    olSetting(std::string key, T (*ask)(), const olSettingTraits &traits = {})
        : olSettingBase(std::move(key), traits), m_ask(ask)
    {
    }

    // A number of another type is a mistake: the record would hold what no reader of the key accepts.
    template <class Other, class = std::enable_if_t<std::is_arithmetic_v<Other>>>
    olSetting(std::string, Other, const olSettingTraits & = {}) = delete;

    [[nodiscard]] T defaultValue() const { return m_ask ? m_ask() : m_value; }

private:
    T m_value{};
    T (*m_ask)() = nullptr;
};

/// A setting whose values live in the host's preferences service instead of the record.
template <class T> class olServiceSetting : public olSetting<T>
{
public:
    using olSetting<T>::olSetting;
};
