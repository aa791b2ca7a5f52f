#include "Editing/olPageIndex.h"

#include "State/olListed.h"
#include "Widgets/QOLCollapsibleFrame.h"
#include "Widgets/QOLColorManipulator.h"
#include "Widgets/QOLSlider.h"
#include "Widgets/QOLWheelPrec.h"

#include <QAbstractItemView>
#include <QCheckBox>
#include <QComboBox>
#include <QCoreApplication>
#include <QDoubleSpinBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QMultiHash>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QRegularExpression>
#include <QSlider>
#include <QSpinBox>
#include <QStackedWidget>
#include <QTabBar>
#include <QTabWidget>
#include <QTextEdit>
#include <QToolButton>

#include <algorithm>

namespace
{

struct Words {
    Q_DECLARE_TR_FUNCTIONS(olPageIndex)
};

constexpr auto innerPartProperty = "olInnerPart";
constexpr auto keysProperty = "olSettingKeys";

/// A caption on the way from the page to a control.
struct Caption {
    QString text;
    bool isFrame;
};

/// A property that was given to this widget alone. Most have none, and a look through those of its class takes long.
QVariant given(const QWidget &widget, const char *name)
{
    return widget.dynamicPropertyNames().isEmpty() ? QVariant() : widget.property(name);
}

template <class... Kinds> bool isOneOf(const QWidget &widget) { return (qobject_cast<const Kinds *>(&widget) || ...); }

bool isCheckableGroup(const QWidget &widget)
{
    const auto *group = qobject_cast<const QGroupBox *>(&widget);
    return group && group->isCheckable();
}

bool isControl(const QWidget &widget)
{
    return isCheckableGroup(widget) ||
           isOneOf<QCheckBox, QRadioButton, QPushButton, QToolButton, QComboBox, QLineEdit, QSpinBox, QDoubleSpinBox,
                   QSlider, QOLSlider, QOLWheelPrec, QOLColorManipulator, QPlainTextEdit, QTextEdit, QAbstractItemView>(
               widget);
}

/// The tab widget whose tab, present or taken out, this widget is; null where it is none.
const QTabWidget *tabWidgetOf(const QWidget &widget)
{
    const auto *stack = qobject_cast<const QStackedWidget *>(widget.parentWidget());
    return stack ? qobject_cast<const QTabWidget *>(stack->parentWidget()) : nullptr;
}

int tabIndex(const QTabWidget &tabs, const QWidget &tab) { return tabs.indexOf(const_cast<QWidget *>(&tab)); }

Caption captionOf(const QWidget &widget)
{
    if (const QTabWidget *tabs = tabWidgetOf(widget))
        return {olPageIndex::withoutMnemonic(tabs->tabText(tabIndex(*tabs, widget))), false};
    if (const auto *frame = qobject_cast<const QOLCollapsibleFrame *>(&widget))
        return {frame->caption(), true};
    if (const auto *group = qobject_cast<const QGroupBox *>(&widget))
        return {olPageIndex::withoutMnemonic(group->title()), true};
    return {QString(), false};
}

QString ownText(const QWidget &widget)
{
    if (const auto *button = qobject_cast<const QAbstractButton *>(&widget))
        return olPageIndex::withoutMnemonic(button->text());
    if (isCheckableGroup(widget))
        return captionOf(widget).text;
    return {};
}

/// As the form has them. A stack keeps its children by depth, so its pages are put in order first.
QList<QWidget *> childrenInOrder(const QWidget &parent)
{
    QList<QWidget *> children;
    const auto *stack = qobject_cast<const QStackedWidget *>(&parent);
    for (int index = 0; stack && index < stack->count(); ++index)
        children << stack->widget(index);
    for (QObject *child : parent.children()) {
        if (child->isWidgetType() && !children.contains(static_cast<QWidget *>(child)))
            children << static_cast<QWidget *>(child);
    }
    return children;
}

/// Collects the controls of a page on one walk through its widgets.
class Walk
{
public:
    explicit Walk(const QWidget &page)
    {
        const QList<QLabel *> labels = page.findChildren<QLabel *>();
        // In a multi-hash the last inserted comes first.
        for (auto label = labels.rbegin(); label != labels.rend(); ++label) {
            if ((*label)->buddy())
                m_labels.insert((*label)->buddy(), *label);
        }
        visitChildren(page);
    }

    std::vector<olPageControl> controls;

private:
    void visitChildren(const QWidget &parent)
    {
        const QList<QWidget *> children = childrenInOrder(parent);
        for (QWidget *child : children)
            visit(*child);
    }

    void visit(QWidget &widget)
    {
        if (widget.isWindow() || given(widget, innerPartProperty).toBool() || isOneOf<QTabBar>(widget))
            return;
        if (isControl(widget)) {
            add(widget);
            if (!isCheckableGroup(widget))
                return;
        }
        const Caption caption = captionOf(widget);
        if (!caption.text.isEmpty())
            m_captions.push_back(caption);
        visitChildren(widget);
        if (!caption.text.isEmpty())
            m_captions.pop_back();
    }

    void add(QWidget &widget)
    {
        olPageControl control;
        control.widget = &widget;
        control.names = namesOf(widget);
        const auto labels = m_labels.values(&widget);
        for (QLabel *label : labels)
            control.labels << label;
        for (const Caption &caption : m_captions)
            control.captions << caption.text;
        control.toolTip = widget.toolTip();
        if (const auto *combo = qobject_cast<const QComboBox *>(&widget)) {
            for (int item = 0; item < combo->count(); ++item)
                control.choices << combo->itemText(item);
        }
        control.settingKeys = given(widget, keysProperty).toStringList();
        controls.push_back(std::move(control));
    }

    [[nodiscard]] QStringList namesOf(const QWidget &widget) const
    {
        QStringList names{ownText(widget)};
        const auto labels = m_labels.values(&widget);
        for (const QLabel *label : labels)
            names << olPageIndex::withoutMnemonic(label->text());
        names.removeAll(QString());
        if (names.isEmpty() && isOneOf<QAbstractItemView>(widget))
            names << captionForTable();
        if (names.isEmpty())
            names << widget.accessibleName();
        names.removeAll(QString());
        names.removeDuplicates();
        return names;
    }

    /// Of the nearest frame, else of the nearest tab.
    [[nodiscard]] QStringList captionForTable() const
    {
        const auto frame = std::find_if(m_captions.rbegin(), m_captions.rend(),
                                        [](const Caption &caption) { return caption.isFrame; });
        if (frame != m_captions.rend())
            return {frame->text};
        return m_captions.empty() ? QStringList() : QStringList{m_captions.back().text};
    }

    QMultiHash<const QWidget *, QLabel *> m_labels;
    std::vector<Caption> m_captions;
};

/// Whether the text is some of the captions in their order. Captions may hold slashes themselves.
bool leadsThrough(const QString &text, const QStringList &captions, int from)
{
    for (int index = from; index < captions.size(); ++index) {
        const QString &caption = captions.at(index);
        if (text == caption)
            return true;
        if (text.startsWith(caption + QLatin1Char('/')) &&
            leadsThrough(text.mid(caption.size() + 1), captions, index + 1))
            return true;
    }
    return false;
}

bool answersToPath(const olPageControl &control, const QString &path)
{
    return std::any_of(control.names.begin(), control.names.end(), [&](const QString &name) {
        return path.endsWith(QLatin1Char('/') + name) &&
               leadsThrough(path.left(path.size() - name.size() - 1), control.captions, 0);
    });
}

/// Whether somebody who wrote the text may have meant the control.
bool resembles(const olPageControl &control, const QString &text)
{
    const QString written = text.mid(text.lastIndexOf(QLatin1Char('/')) + 1);
    return std::any_of(control.names.begin(), control.names.end(), [&](const QString &name) {
        return !written.isEmpty() &&
               (name.contains(written, Qt::CaseInsensitive) || written.contains(name, Qt::CaseInsensitive));
    });
}

using Controls = std::vector<const olPageControl *>;

QString listed(const Controls &controls)
{
    QStringList paths;
    for (const olPageControl *control : controls) {
        if (!control->names.isEmpty())
            paths << QLatin1Char('"') + control->path() + QLatin1Char('"');
    }
    return olListed(paths);
}

template <class Condition> Controls chosen(const std::vector<olPageControl> &controls, Condition &&condition)
{
    Controls chosen;
    for (const olPageControl &control : controls) {
        if (condition(control))
            chosen.push_back(&control);
    }
    return chosen;
}

} // namespace

QString olPageControl::path() const
{
    QStringList segments = captions;
    if (!names.isEmpty())
        segments << names.first();
    return segments.join(QLatin1Char('/'));
}

olPageIndex::olPageIndex(const QWidget &page) : m_controls(Walk(page).controls) {}

olPageControlFound olPageIndex::find(const QString &text) const
{
    Controls found = chosen(m_controls, [&](const olPageControl &control) { return control.names.contains(text); });
    if (found.empty())
        found = chosen(m_controls, [&](const olPageControl &control) { return answersToPath(control, text); });
    if (found.size() == 1)
        return {found.front(), QString()};
    if (!found.empty())
        return {nullptr, Words::tr("%1 controls answer to \"%2\": %3").arg(found.size()).arg(text, listed(found))};

    found = chosen(m_controls, [&](const olPageControl &control) { return resembles(control, text); });
    if (found.empty())
        found = chosen(m_controls, [](const olPageControl &) { return true; });
    return {nullptr, Words::tr("there is no control \"%1\"; there is: %2").arg(text, listed(found))};
}

bool olPageIndex::isShown(const QWidget &page, const QWidget &control)
{
    for (const QWidget *widget = &control; widget && widget != &page; widget = widget->parentWidget()) {
        const QTabWidget *tabs = tabWidgetOf(*widget);
        const int tab = tabs ? tabIndex(*tabs, *widget) : -1;
        const bool shown = tabs ? tab >= 0 && tabs->isTabVisible(tab) : !widget->isHidden();
        if (!shown)
            return false;
    }
    return true;
}

QString olPageIndex::withoutMnemonic(const QString &marked)
{
    // East Asian texts have it in brackets of its own.
    static const QRegularExpression inBrackets(QStringLiteral("\\(&\\w\\)"));
    QString text = marked;
    text.remove(inBrackets);
    QString plain;
    for (int index = 0; index < text.size(); ++index) {
        // A doubled one stands for itself.
        if (text.at(index) == QLatin1Char('&') && index + 1 < text.size())
            ++index;
        plain += text.at(index);
    }
    return plain;
}
