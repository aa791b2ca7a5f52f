#include "Framework/olSettingList.h"

#include "Framework/olSettingAccess.h"
#include "Kernel/olPreferences.h"

#include <QStringList>
#include <QWidget>

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

olMessage &record() { return olPreferences::getData(); }

void takeOne(const olListedSetting &setting, olPreferences &module)
{
    if (setting.widget() && !setting.takeIfChanged())
        module.addUnchanged(setting.key().c_str());
}

} // namespace

olSettingList::olSettingList(QWidget &page)
{
    // Owned by the page.
    new olSettingAccess(*this, page);
}

olSettingList::~olSettingList() = default;

void olSettingList::append(std::unique_ptr<olListedSetting> setting)
{
    if (QWidget *control = setting->widget())
        tag(*control, setting->key());
    m_settings.push_back(std::move(setting));
}

void olSettingList::own(const olSettingBase &shared)
{
    m_foreign.erase(std::remove(m_foreign.begin(), m_foreign.end(), &shared), m_foreign.end());
}

bool olSettingList::isForeign(const olSettingBase &setting) const
{
    return std::find(m_foreign.begin(), m_foreign.end(), &setting) != m_foreign.end();
}

const olListedSetting *olSettingList::find(const std::string &key) const
{
    const auto found = std::find_if(m_settings.begin(), m_settings.end(),
                                    [&key](const auto &setting) { return setting->key() == key; });
    return found == m_settings.end() ? nullptr : found->get();
}

const olListedSetting &olSettingList::listed(const olSettingBase &setting) const
{
    const auto found = std::find_if(m_settings.begin(), m_settings.end(),
                                    [&setting](const auto &listed) { return &listed->setting() == &setting; });
    Q_ASSERT_X(found != m_settings.end(), "olSettingList", setting.key().c_str());
    return **found;
}

void olSettingList::writeDefaults(bool flag) const
{
    for (const auto &setting : m_settings)
        setting->writeDefault(flag);
}

void olSettingList::writeDefaults(Order order, bool flag) const
{
    for (const olSettingBase *setting : order)
        listed(*setting).writeDefault(flag);
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

void olSettingList::takeFromPage(olPreferences &module) const
{
    for (const auto &setting : m_settings)
        takeOne(*setting, module);
}

void olSettingList::takeFromPage(Order order, olPreferences &module) const
{
    for (const olSettingBase *setting : order)
        takeOne(listed(*setting), module);
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
        if (!isForeign(setting->setting()))
            record().remove(setting->key());
    }
}
