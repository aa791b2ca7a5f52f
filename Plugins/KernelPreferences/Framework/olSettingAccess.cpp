#include "Framework/olSettingAccess.h"

#include "Framework/olSettingList.h"

olSettingAccess::olSettingAccess(const olSettingList &settings, QObject &owner) : QObject(&owner), m_settings(settings)
{
    setObjectName(QLatin1String("olSettingAccess"));
}

QStringList olSettingAccess::keys() const
{
    QStringList keys;
    m_settings.each([&keys](const olListedSetting &setting) {
        if (!setting.describe().isEmpty())
            keys << QString::fromStdString(setting.key());
    });
    return keys;
}

QVariant olSettingAccess::value(const QString &key) const
{
    const olListedSetting *setting = m_settings.find(key.toStdString());
    return setting && setting->widget() ? setting->value() : QVariant();
}

QVariantMap olSettingAccess::describe(const QString &key) const
{
    const olListedSetting *setting = m_settings.find(key.toStdString());
    return setting ? m_settings.describe(*setting) : QVariantMap();
}

QString olSettingAccess::text(const QString &key, const QVariant &value) const
{
    const olListedSetting *setting = m_settings.find(key.toStdString());
    return setting ? setting->text(value) : QString();
}
