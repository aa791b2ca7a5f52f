#pragma once

#include "Editing/olSettingsSearch.h"

#include <QHash>
#include <QObject>
#include <QString>

/// Keeps the controls of locked settings and their labels disabled, with a tooltip that says why, whatever the page's
/// own rules do meanwhile. Everything is as before when it is destroyed.
class olSettingLocks : public QObject
{
    Q_OBJECT

public:
    ~olSettingLocks() override;

    /// Why a control is locked, in full sentences.
    void lock(const olFoundControl &control, const QString &reason);

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    struct Before {
        bool isEnabled;
        QString toolTip;
    };

    void lock(QWidget &widget, const QString &reason);

    QHash<QWidget *, Before> m_locked;
};
