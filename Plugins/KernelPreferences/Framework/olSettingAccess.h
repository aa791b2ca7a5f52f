#pragma once

#include <QObject>
#include <QString>
#include <QVariant>

class QWidget;
class olSettingList;

/// Through this a host that finds it on a page reads one setting from its control and shows one in it, without the
/// record being touched. Values are variants as olVariant.h lays them down.
class olSettingAccess : public QObject
{
    Q_OBJECT

public:
    /// Becomes a child of the page, under the object name "olSettingAccess".
    olSettingAccess(const olSettingList &settings, QWidget &page);

    /// What the setting's control holds; invalid for a key that no control of the page edits.
    Q_INVOKABLE QVariant value(const QString &key) const;

    /// False, with nothing shown, for such a key and for a value of another type.
    Q_INVOKABLE bool setValue(const QString &key, const QVariant &value) const;

private:
    const olSettingList &m_settings;
};
