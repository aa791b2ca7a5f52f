#include "Framework/olSettingAccess.h"

#include "Framework/olSettingList.h"

olSettingAccess::olSettingAccess(const olSettingList &settings, QObject &owner) : QObject(&owner), m_settings(settings)
{
    setObjectName(QLatin1String("olSettingAccess"));
}

QVariant olSettingAccess::value(const QString &key) const
{
    const olListedSetting *setting = m_settings.find(key.toStdString());
    return setting && setting->widget() ? setting->value() : QVariant();
}

bool olSettingAccess::setValue(const QString &key, const QVariant &value) const
{
    const olListedSetting *setting = m_settings.find(key.toStdString());
    return setting && setting->widget() && setting->setValue(value);
}
