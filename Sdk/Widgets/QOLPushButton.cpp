#include "Widgets/QOLPushButton.h"

#include <QEvent>
#include <QKeyEvent>
#include <QStyle>

#include <algorithm>

QOLPushButton::QOLPushButton(QWidget *parent) : QPushButton(parent) { fitIcon(); }

void QOLPushButton::changeEvent(QEvent *event)
{
    QPushButton::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange)
        fitIcon();
}

void QOLPushButton::keyPressEvent(QKeyEvent *event)
{
    const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (enter && !event->isAutoRepeat())
        click();
    else
        QPushButton::keyPressEvent(event);
}

void QOLPushButton::fitIcon()
{
    const int extent = std::max(style()->pixelMetric(QStyle::PM_ButtonIconSize, nullptr, this), fontMetrics().height());
    setIconSize({extent, extent});
}
