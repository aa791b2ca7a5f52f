#include "Dialog/olWheelGuard.h"

#include <QAbstractSlider>
#include <QAbstractSpinBox>
#include <QApplication>
#include <QComboBox>
#include <QEvent>
#include <QScrollBar>
#include <QTabBar>
#include <QWidget>

namespace
{

bool turnsWithTheWheel(const QWidget &widget)
{
    if (qobject_cast<const QScrollBar *>(&widget))
        return false;
    return qobject_cast<const QAbstractSpinBox *>(&widget) || qobject_cast<const QComboBox *>(&widget) ||
           qobject_cast<const QAbstractSlider *>(&widget) || qobject_cast<const QTabBar *>(&widget);
}

} // namespace

olWheelGuard::olWheelGuard(QWidget &page)
{
    const auto widgets = page.findChildren<QWidget *>();
    for (QWidget *widget : widgets) {
        if (!turnsWithTheWheel(*widget))
            continue;
        // With the wheel's own focus policy the first turn would focus the control and the second one change it.
        if (widget->focusPolicy() == Qt::WheelFocus)
            widget->setFocusPolicy(Qt::StrongFocus);
        widget->installEventFilter(this);
    }
}

bool olWheelGuard::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() != QEvent::Wheel || !watched->isWidgetType())
        return false;
    const auto *control = static_cast<QWidget *>(watched);
    const QWidget *focused = QApplication::focusWidget();
    if (focused && (control == focused || control->isAncestorOf(focused)))
        return false;
    event->ignore();
    return true;
}
