#include "Framework/olPageWidget.h"

#include "Framework/olPageLayout.h"

#include <QEvent>

#include <utility>

bool olPageWidget::event(QEvent *event)
{
    // Not at construction: measuring texts costs a quarter of it, and most pages of a run are never looked at. The host
    // asks for the room of a page once it has its place, so that is the last moment.
    const bool isPlaced = event->type() == QEvent::ParentChange || event->type() == QEvent::Show;
    if (isPlaced && !std::exchange(m_isAligned, true))
        alignFields(*this);
    return QWidget::event(event);
}
