#include "olKnownSettings.h"

#include "Editing/olPageAccess.h"
#include "Editing/olPageIndex.h"
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
        addEdited(*entry);
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
    throw olToolError(QStringLiteral("there is no setting \"%1\"%2").arg(key, olDidYouMean(key, known)));
}

void olKnownSettings::addOffered(olPreferencesEntry &entry)
{
    for (const olOfferedDefault &offered : entry.defaults()) {
        if (!find(offered.key))
            m_settings.push_back({&entry, offered.key, olValue::typeName(offered.value), offered.value});
    }
}

/// A page may edit what no module has a default for. Only the page can tell of what type that is.
void olKnownSettings::addEdited(olPreferencesEntry &entry)
{
    if (!entry.page())
        return;
    const olPageIndex index(*entry.page());
    for (const olPageControl &control : index.controls()) {
        for (const QString &name : control.settingKeys) {
            const std::string key = name.toStdString();
            const olKnownSetting *known = find(key);
            if (!known) {
                const std::string type = olPageAccess::typeOf(*entry.page(), key);
                if (type.empty())
                    continue;
                m_settings.push_back({&entry, key, type, olValue::fromJson(type, QByteArrayLiteral("[]")), true});
                known = &m_settings.back();
            }
            olKnownSetting &setting = m_settings[std::size_t(known - m_settings.data())];
            if (!setting.control) {
                setting.page = entry.page();
                setting.control = control.widget;
            }
        }
    }
}
