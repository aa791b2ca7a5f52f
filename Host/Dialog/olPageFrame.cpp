#include "Dialog/olPageFrame.h"

#include "Dialog/olPageStyle.h"
#include "Dialog/olSettingMarks.h"
#include "Editing/olEffectText.h"
#include "Session/olSettingDescription.h"
#include "Widgets/QOLCollapsibleFrame.h"

#include <QComboBox>
#include <QLayout>
#include <QScrollBar>
#include <QTabWidget>
#include <QVariant>

#include <algorithm>
#include <map>

olPageFrame::olPageFrame(QWidget &page) : m_page(&page), m_marks(new olSettingMarks(page)), m_wheelGuard(page)
{
    setFrameShape(NoFrame);
    setWidgetResizable(true);
    setWidget(&page);
    // The page inherits no focus from the area around it: Tab goes from control to control.
    setFocusPolicy(Qt::NoFocus);
    // In the boxes of choices where none is made; it is no choice itself.
    const auto boxes = m_page->findChildren<QComboBox *>();
    for (QComboBox *box : boxes)
        box->setProperty(olPageStyle::hintProperty, tr("Not chosen"));
}

olPageFrame::~olPageFrame()
{
    if (!m_page)
        return;
    delete m_marks;
    if (takeWidget())
        m_page->setParent(nullptr);
}

void olPageFrame::tell(const olPreferencesEntry &entry, const std::vector<olFoundControl> &controls)
{
    std::vector<olSettingMarks::Remark> remarks;
    QStringList pages;
    std::map<QString, int> notes;
    for (const olFoundControl &control : controls) {
        if (control.keys.isEmpty() || !control.widget)
            continue;
        const std::string key = control.keys.first().toStdString();
        const olSettingDescription setting = olSettingDescription::of(entry, key);
        if (!setting.unit.isEmpty() && control.keys.size() == 1)
            m_units.show(*control.widget, setting.unit);
        else if (setting.isShare)
            m_units.showShare(*control.widget);
        const olEffectText text = olEffectText::of(key, setting.effect);
        ++notes[text.page];
        remarks.push_back({control, text.brief});
        pages << text.page;
    }
    // What holds for most is said once, and then of the few others what holds for them.
    constexpr int few = 8;
    const int others = notes[QString()];
    notes.erase(QString());
    if (!notes.empty() && others * few <= pages.size())
        m_note = std::max_element(notes.begin(), notes.end(), [](const auto &one, const auto &other) {
                     return one.second < other.second;
                 })->first;
    for (std::size_t index = 0; !m_note.isEmpty() && index < remarks.size(); ++index) {
        if (pages[int(index)] == m_note)
            remarks[index].brief.clear();
        else if (pages[int(index)].isEmpty())
            remarks[index].brief = tr("at once");
    }
    m_marks->setRemarks(std::move(remarks));
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

int olPageFrame::pageWidth() const
{
    return m_page->minimumSizeHint().width() + verticalScrollBar()->sizeHint().width();
}

QSize olPageFrame::minimumSizeHint() const
{
    const QFontMetrics metrics = fontMetrics();
    return {metrics.averageCharWidth() * 12, metrics.height() * 4};
}
