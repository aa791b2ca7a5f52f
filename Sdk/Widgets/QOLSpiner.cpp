#include "Widgets/QOLSpiner.h"

#include "Widgets/olInnerParts.h"

#include <QLineEdit>
#include <QWheelEvent>

#include <limits>

QOLSpiner::QOLSpiner(QWidget *parent) : QSpinBox(parent)
{
    setRange(0, std::numeric_limits<int>::max());
    setFocusPolicy(Qt::StrongFocus);
    olInnerParts::mark(lineEdit());
}

void QOLSpiner::wheelEvent(QWheelEvent *event)
{
    if (hasFocus())
        QSpinBox::wheelEvent(event);
    else
        event->ignore();
}
