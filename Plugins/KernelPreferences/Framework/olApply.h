#pragma once

#include "Framework/olSetting.h"
#include "Framework/olTypedAccess.h"
#include "Kernel/olPreferences.h"

#include <optional>

/// The setting's value; nothing where the record has none of its type.
template <class T> std::optional<T> read(const olSetting<T> &setting)
{
    T value{};
    return getFromMessage(olPreferences::getData(), setting.key(), value) ? std::optional<T>(value) : std::nullopt;
}

/// The setting's value, or the fallback where the record has none of its type.
template <class T> T readOr(const olSetting<T> &setting, T fallback)
{
    getFromMessage(olPreferences::getData(), setting.key(), fallback);
    return fallback;
}

/// The setting's value, or its default where the record has none of its type.
template <class T> T readOrDefault(const olSetting<T> &setting) { return readOr(setting, setting.defaultValue()); }

/// Hands the setting's value to a host call; the call is left out where the record has none of its type.
template <class T, class Call> void applyIfRead(const olSetting<T> &setting, Call &&call)
{
    if (const auto value = read(setting))
        call(*value);
}

/// The guards of a module's apply that ask what changed since the last one.
class olApply
{
public:
    explicit olApply(const olPreferences &module) : m_module(module) {}

    /// Asked in the given order, up to the first that changed.
    template <class... Settings> [[nodiscard]] bool anyChanged(const Settings &...settings) const
    {
        return (m_module.isChanged(settings.key().c_str()) || ...);
    }

    /// When the setting changed and can be read.
    template <class T, class Call> void ifChanged(const olSetting<T> &setting, Call &&call) const
    {
        if (anyChanged(setting))
            applyIfRead(setting, call);
    }

    /// When the setting changed; what cannot be read is applied as the fallback.
    template <class T, class Call> void ifChangedOr(const olSetting<T> &setting, T fallback, Call &&call) const
    {
        if (anyChanged(setting))
            call(readOr(setting, std::move(fallback)));
    }

    /// When the setting changed; what cannot be read is applied as the default.
    template <class T, class Call> void ifChangedOrDefault(const olSetting<T> &setting, Call &&call) const
    {
        if (anyChanged(setting))
            call(readOrDefault(setting));
    }

private:
    const olPreferences &m_module;
};
