#include "Framework/olPageWidget.h"

#include "Framework/olPageLayout.h"

#include <QEvent>

olPageWidget::~olPageWidget() = default;

bool olPageWidget::event(QEvent *event)
{
    // Not at construction: measuring texts costs a quarter of it, and most pages of a run are never looked at.
    if (event->type() == QEvent::Polish)
        alignFields(*this);
    return QWidget::event(event);
}
