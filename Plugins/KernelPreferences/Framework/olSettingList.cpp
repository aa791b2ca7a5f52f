#include "Framework/olSettingList.h"

#include "Framework/olSettingAccess.h"

#include <QStringList>
#include <QWidget>
#include <QtGlobal>

#include <algorithm>

namespace
{

constexpr auto keysProperty = "olSettingKeys";

/// Tells the host which settings a control edits.
void tag(QWidget &control, const std::string &key)
{
    QStringList keys = control.property(keysProperty).toStringList();
    keys.append(QString::fromStdString(key));
    control.setProperty(keysProperty, keys);
}

} // namespace

olSettingList::olSettingList(QObject &module) : m_access(std::make_unique<olSettingAccess>(*this, module)) {}

olSettingList::~olSettingList() = default;

void olSettingList::tellOn(QObject &page) { m_access->setParent(&page); }

void olSettingList::append(std::unique_ptr<olListedSetting> setting)
{
    if (QWidget *control = setting->widget())
        tag(*control, setting->key());
    m_settings.push_back(std::move(setting));
}

void olSettingList::own(const olSettingBase &shared) { m_foreign.erase(shared.key()); }

QVariantMap olSettingList::describe(const olListedSetting &setting) const
{
    QVariantMap description = setting.describe();
    if (!m_asks)
        description.remove(QLatin1String("warning"));
    if (!m_touchesOnlyTheView)
        description.remove(QLatin1String("preview"));
    return description;
}

const olListedSetting *olSettingList::find(const std::string &key) const
{
    const auto found = std::find_if(m_settings.begin(), m_settings.end(),
                                    [&key](const auto &setting) { return setting->key() == key; });
    return found == m_settings.end() ? nullptr : found->get();
}

const olListedSetting &olSettingList::listed(const olSettingBase &setting) const
{
    const olListedSetting *found = find(setting.key());
    if (!found)
        qFatal("The setting \"%s\" stands in an order of its module, but not in its list.", setting.key().c_str());
    return *found;
}

void olSettingList::writeDefaults(bool flag) const
{
    for (const auto &setting : m_settings)
        setting->writeDefault(flag);
}

void olSettingList::showOnPage() const
{
    for (const auto &setting : m_settings)
        setting->show();
}

void olSettingList::showOnPage(Order order) const
{
    for (const olSettingBase *setting : order)
        listed(*setting).show();
}

void olSettingList::takeFromPage(const Unchanged &unchanged) const
{
    for (const auto &setting : m_settings) {
        if (setting->widget() && !setting->takeIfChanged())
            unchanged(setting->key());
    }
}

void olSettingList::storeFromPage() const
{
    for (const auto &setting : m_settings)
        setting->take();
}

void olSettingList::storeFromPage(Order order) const
{
    for (const olSettingBase *setting : order)
        listed(*setting).take();
}

void olSettingList::removeKeys() const
{
    for (const auto &setting : m_settings) {
        if (m_foreign.count(setting->key()) == 0)
            setting->forget();
    }
}
