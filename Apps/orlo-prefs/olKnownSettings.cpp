#include "olKnownSettings.h"

#include "Session/olModuleAccess.h"
#include "Session/olSettingDescription.h"
#include "State/olPreferencesEntry.h"
#include "State/olPreferencesRegistry.h"
#include "State/olValue.h"
#include "olNearest.h"
#include "olToolError.h"

#include <algorithm>

boost::any olKnownSetting::value() const
{
    const boost::any held = entry->value(key);
    return held.empty() ? standard : held;
}

void olKnownSetting::setValue(const boost::any &value) const
{
    if (isOptional && (value.empty() || olValue::identical(value, standard)))
        entry->removeValue(key);
    else
        entry->setValue(key, value);
}

olKnownSettings::olKnownSettings()
{
    const auto &entries = olPreferencesRegistry::the().entries();
    for (olPreferencesEntry *entry : entries)
        addOffered(*entry);
    for (olPreferencesEntry *entry : entries)
        addOptional(*entry);
}

const olKnownSetting *olKnownSettings::find(const std::string &key) const
{
    const auto found = std::find_if(m_settings.begin(), m_settings.end(),
                                    [&key](const olKnownSetting &setting) { return setting.key == key; });
    return found == m_settings.end() ? nullptr : &*found;
}

const olKnownSetting &olKnownSettings::named(const QString &key) const
{
    if (const olKnownSetting *found = find(key.toStdString()))
        return *found;
    QStringList known;
    for (const olKnownSetting &setting : m_settings)
        known << QString::fromStdString(setting.key);
    throw olToolError(olDidYouMean(olToolError::tr("there is no setting \"%1\"").arg(key), key, known));
}

void olKnownSettings::addOffered(olPreferencesEntry &entry)
{
    for (const olOfferedDefault &offered : entry.defaults()) {
        if (!find(offered.key))
            m_settings.push_back({&entry, offered.key, olValue::typeName(offered.value), offered.value});
    }
}

/// A module may have settings without a default.
void olKnownSettings::addOptional(olPreferencesEntry &entry)
{
    const std::vector<std::string> keys = olModuleAccess(entry).keys();
    for (const std::string &key : keys) {
        if (find(key))
            continue;
        const std::string type = olSettingDescription::of(entry, key).type;
        m_settings.push_back({&entry, key, type, olValue::fromJson(type, QByteArrayLiteral("[]")), true});
    }
}
