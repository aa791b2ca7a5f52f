#include "Editing/olSettingLocks.h"

#include <QEvent>
#include <QWidget>

olSettingLocks::~olSettingLocks()
{
    for (auto locked = m_locked.cbegin(); locked != m_locked.cend(); ++locked) {
        locked.key()->removeEventFilter(this);
        locked.key()->setToolTip(locked->toolTip);
        locked.key()->setEnabled(locked->isEnabled);
    }
}

void olSettingLocks::lock(const olFoundControl &control, const QString &reason)
{
    if (control.widget)
        lock(*control.widget, reason);
    for (const auto &label : control.labels) {
        if (label)
            lock(*label, reason);
    }
}

void olSettingLocks::lock(QWidget &widget, const QString &reason)
{
    if (!m_locked.contains(&widget)) {
        m_locked.insert(&widget, {!widget.testAttribute(Qt::WA_ForceDisabled), widget.toolTip()});
        connect(&widget, &QObject::destroyed, this, [this, gone = &widget] { m_locked.remove(gone); });
        widget.installEventFilter(this);
    }
    widget.setToolTip(reason);
    widget.setEnabled(false);
}

bool olSettingLocks::eventFilter(QObject *watched, QEvent *event)
{
    // A page enables its controls by rules that know of no lock; what it last asked for is what the lock gives back.
    auto *widget = static_cast<QWidget *>(watched);
    if (event->type() == QEvent::EnabledChange && widget->isEnabled()) {
        m_locked[widget].isEnabled = true;
        widget->setEnabled(false);
    }
    return false;
}
