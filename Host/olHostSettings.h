#pragma once

#include "State/olPreferencesRegistry.h"

#include <QLatin1String>
#include <QString>
#include <boost/any.hpp>

#include <algorithm>
#include <iterator>
#include <string>

/// A setting that the host itself goes by. Key and type are those of a module, which a test holds together.
template <class T> struct olHostSetting {
    const char *key;
    /// What counts where the record does not hold it as that type: it restricts rather than opens.
    T unreadable;

    [[nodiscard]] T value() const
    {
        const T *value = boost::any_cast<T>(&olPreferencesRegistry::the().record().get(key));
        return value ? *value : unreadable;
    }
};

/// All of them, and what holds for others.
namespace olHostSettings
{

inline const olHostSetting<int> language{"MainWindow user language", 0};
inline const olHostSetting<int> webPort{"WebInterface port", 0};
inline const olHostSetting<int> webSslPort{"WebInterface ssl port", 0};
inline const olHostSetting<bool> webLocalhostOnly{"WebInterface localhost only", true};
inline const olHostSetting<bool> webUseWhiteList{"WebInterface use white list", true};
inline const olHostSetting<std::string> webWhiteList{"WebInterface white list", {}};

/// Whether a setting's value is nobody's business outside, and is kept nowhere but in its place: who is let in, by
/// which pipe the host is driven, and whatever a module calls a secret.
[[nodiscard]] inline bool isConfidential(const std::string &key)
{
    const QString name = QString::fromStdString(key);
    constexpr const char *words[] = {"white list", "webinterfacepipe", "password", "passphrase", "secret", "token"};
    return std::any_of(std::begin(words), std::end(words),
                       [&name](const char *word) { return name.contains(QLatin1String(word), Qt::CaseInsensitive); });
}

} // namespace olHostSettings
