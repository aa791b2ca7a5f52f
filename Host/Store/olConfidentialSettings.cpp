#include "Store/olConfidentialSettings.h"

#include <QLatin1String>
#include <QString>

#include <algorithm>
#include <iterator>

bool olIsConfidential(const std::string &key)
{
    const QString name = QString::fromStdString(key);
    constexpr const char *words[] = {"white list", "webinterfacepipe", "password", "passphrase", "secret", "token"};
    return std::any_of(std::begin(words), std::end(words),
                       [&name](const char *word) { return name.contains(QLatin1String(word), Qt::CaseInsensitive); });
}
