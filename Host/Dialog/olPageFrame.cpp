#include "Dialog/olPageFrame.h"

#include "Dialog/olSettingMarks.h"
#include "Widgets/QOLCollapsibleFrame.h"

#include <QLayout>
#include <QScrollBar>
#include <QTabWidget>
#include <QVariant>

#include <algorithm>

olPageFrame::olPageFrame(QWidget &page) : m_page(&page), m_marks(new olSettingMarks(page)), m_wheelGuard(page)
{
    setFrameShape(NoFrame);
    setWidgetResizable(true);
    setWidget(&page);
    // The page inherits no focus from the area around it: Tab goes from control to control.
    setFocusPolicy(Qt::NoFocus);
}

olPageFrame::~olPageFrame()
{
    if (!m_page)
        return;
    delete m_marks;
    if (takeWidget())
        m_page->setParent(nullptr);
}

void olPageFrame::lock(const olFoundControl &control, const QString &reason)
{
    m_locks.lock(control, reason);
    if (!m_page || !control.widget || control.widget->objectName().isEmpty())
        return;
    const auto widgets = m_page->findChildren<QWidget *>();
    for (QWidget *widget : widgets) {
        if (!widget->property("olCompanionOf").toStringList().contains(control.widget->objectName()))
            continue;
        olFoundControl companion;
        companion.widget = widget;
        m_locks.lock(companion, reason);
    }
}

void olPageFrame::reveal(const olFoundControl &control)
{
    if (!control.widget)
        return;
    for (QWidget *widget = control.widget; widget && widget != m_page; widget = widget->parentWidget()) {
        if (auto *frame = qobject_cast<QOLCollapsibleFrame *>(widget))
            frame->setFolded(false);
        QWidget *stack = widget->parentWidget();
        auto *tabs = stack ? qobject_cast<QTabWidget *>(stack->parentWidget()) : nullptr;
        if (tabs && tabs->indexOf(widget) >= 0)
            tabs->setCurrentWidget(widget);
    }
    // What was behind has its place only once the layouts have run.
    if (m_page->layout())
        m_page->layout()->activate();
    // Not at the very edge: what stands around it tells what it is about.
    ensureWidgetVisible(control.widget, 0, viewport()->height() / 3);
    showFromTheLeft(control);
}

/// A control is worth little without the label before it, so the page goes no further sideways than it must.
void olPageFrame::showFromTheLeft(const olFoundControl &control)
{
    int left = control.widget->mapTo(m_page, QPoint()).x();
    const int right = left + control.widget->width();
    for (const auto &label : control.labels) {
        if (label)
            left = std::min(left, label->mapTo(m_page, QPoint()).x());
    }
    horizontalScrollBar()->setValue(std::min(right - viewport()->width(), left - fontMetrics().averageCharWidth()));
}

QSize olPageFrame::minimumSizeHint() const
{
    const QFontMetrics metrics = fontMetrics();
    return {metrics.averageCharWidth() * 12, metrics.height() * 6};
}
