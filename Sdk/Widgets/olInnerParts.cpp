#include "Widgets/olInnerParts.h"

#include "Widgets/olNumberField.h"

#include <QAccessible>
#include <QApplication>
#include <QWheelEvent>

olInnerParts::olInnerParts(QWidget *control) : QObject(control), m_control(control)
{
    control->installEventFilter(this);
}

void olInnerParts::mark(QWidget *part) { part->setProperty("olInnerPart", true); }

void olInnerParts::add(QWidget *part, Role role)
{
    mark(part);
    part->installEventFilter(this);
    m_parts.push_back({part, role});
}

bool olInnerParts::eventFilter(QObject *watched, QEvent *event)
{
    switch (event->type()) {
    case QEvent::Show:
    case QEvent::LanguageChange:
        if (watched == m_control)
            nameParts();
        return false;
    case QEvent::FocusIn:
        // Nothing tells of a new accessible name, so it is asked for again when it is about to be read out.
        nameParts();
        return false;
    case QEvent::Wheel:
        turn(static_cast<QWheelEvent &>(*event));
        return true;
    default:
        return false;
    }
}

void olInnerParts::nameParts()
{
    const QAccessibleInterface *accessible = QAccessible::queryAccessibleInterface(m_control);
    const QString name = accessible ? accessible->text(QAccessible::Name) : m_control->accessibleName();
    for (const Part &part : m_parts) {
        const QString role = part.role ? part.role() : QString();
        if (role.isEmpty() || name.isEmpty())
            part.widget->setAccessibleName(role.isEmpty() ? name : role);
        else
            part.widget->setAccessibleName(tr("%1, %2", "control, part of it").arg(name, role));
    }
}

void olInnerParts::turn(QWheelEvent &event)
{
    const QWidget *focused = QApplication::focusWidget();
    if (!m_stepped || !m_control->isEnabled() || !m_control->isAncestorOf(focused)) {
        event.ignore();
        return;
    }
    event.accept();
    // Fine wheels and touch pads send parts of a notch.
    m_turned += event.angleDelta().y();
    const int notches = m_turned / QWheelEvent::DefaultDeltasPerStep;
    m_turned -= notches * QWheelEvent::DefaultDeltasPerStep;
    if (notches != 0)
        m_stepped->stepBy(notches);
}
