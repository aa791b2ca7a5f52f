#pragma once

#include <QObject>
#include <QString>
#include <QVariant>

class olSettingList;

/// Through this a host that finds it on a page reads one setting from its control and shows one in it, without the
/// record being touched. Values are variants as olVariant.h lays them down. The list that it speaks for owns it.
class olSettingAccess : public QObject
{
    Q_OBJECT

public:
    /// A child of the owner, under the object name "olSettingAccess".
    olSettingAccess(const olSettingList &settings, QObject &owner);

    /// What the setting's control holds; invalid for a key that no control of the page edits.
    Q_INVOKABLE QVariant value(const QString &key) const;

    /// False, with nothing shown, for such a key and for a value of another type.
    Q_INVOKABLE bool setValue(const QString &key, const QVariant &value) const;

private:
    const olSettingList &m_settings;
};
