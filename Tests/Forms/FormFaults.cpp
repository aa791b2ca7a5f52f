#include "Forms/FormFaults.h"

#include "Editing/olPageIndex.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QGlyphRun>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QRegularExpression>
#include <QSplitter>
#include <QStyleOption>
#include <QTabBar>
#include <QTest>
#include <QTextLayout>

#include <algorithm>
#include <map>
#include <vector>

namespace
{

QString nameOf(const QWidget &widget)
{
    const QString text = widget.property("text").toString();
    return QStringLiteral("%1 %2 \"%3\"")
        .arg(QLatin1String(widget.metaObject()->className()), widget.objectName(), text);
}

/// In the coordinates of the window, whatever scrolling hides of it.
QRect placeIn(const QWidget &window, const QWidget &widget)
{
    return {widget.mapTo(const_cast<QWidget *>(&window), QPoint()), widget.size()};
}

/// Marks lie over a page on purpose, and what a toolkit's view is made of is its own affair.
bool isOwnAffair(const QWidget &widget)
{
    const auto *view = qobject_cast<const QAbstractItemView *>(widget.parentWidget());
    return view || qobject_cast<const QComboBox *>(widget.parentWidget()) ||
           widget.objectName() == QLatin1String("settingMarks") || widget.objectName().startsWith(QLatin1String("qt_"));
}

std::vector<QWidget *> visibleIn(const QWidget &window)
{
    std::vector<QWidget *> visible;
    for (QWidget *widget : window.findChildren<QWidget *>()) {
        if (widget->isVisible() && widget->window() == window.window() && !isOwnAffair(*widget))
            visible.push_back(widget);
    }
    return visible;
}

QSize neededByCombo(const QComboBox &combo)
{
    QStyleOptionComboBox option;
    option.initFrom(&combo);
    option.editable = combo.isEditable();
    const QRect field =
        combo.style()->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, &combo);
    int widest = 0;
    for (int row = 0; row < combo.count(); ++row) {
        if (!combo.itemData(row, Qt::ToolTipRole).isValid())
            widest = std::max(widest, combo.fontMetrics().horizontalAdvance(combo.itemText(row)));
    }
    return {combo.width() - field.width() + widest, combo.minimumSizeHint().height()};
}

QSize neededByField(const QLineEdit &field)
{
    // A number must be seen whole; a text can be longer than any field.
    const bool isNumber = field.validator() || field.inherits("olNumberField");
    const int text = isNumber ? field.fontMetrics().horizontalAdvance(field.displayText()) : 0;
    return field.minimumSizeHint().expandedTo({text + field.textMargins().left() + field.textMargins().right(), 0});
}

QSize needed(const QWidget &widget)
{
    if (const auto *label = qobject_cast<const QLabel *>(&widget))
        return label->wordWrap() ? QSize(0, label->heightForWidth(label->width())) : label->sizeHint();
    if (const auto *combo = qobject_cast<const QComboBox *>(&widget))
        return neededByCombo(*combo);
    if (const auto *field = qobject_cast<const QLineEdit *>(&widget))
        return neededByField(*field);
    // Buttons with a picture alone have the size of the picture.
    if (const auto *button = qobject_cast<const QAbstractButton *>(&widget))
        return button->icon().isNull() || !button->text().isEmpty() ? button->sizeHint() : QSize();
    if (qobject_cast<const QTabBar *>(&widget))
        return widget.sizeHint();
    return widget.minimumSizeHint();
}

QStringList clippedCells(const QAbstractItemView &view)
{
    QStringList faults;
    const QAbstractItemModel *model = view.model();
    for (int row = 0; model && row < model->rowCount(view.rootIndex()); ++row) {
        for (int column = 0; column < model->columnCount(view.rootIndex()); ++column) {
            const QModelIndex cell = model->index(row, column, view.rootIndex());
            const QString text = cell.data().toString();
            const bool isRead =
                cell.data(Qt::ToolTipRole).isValid() || text.isEmpty() || view.visualRect(cell).isEmpty();
            if (!isRead && view.visualRect(cell).width() < view.sizeHintForIndex(cell).width())
                faults << QStringLiteral("%1 cuts the cell \"%2\": %3 of %4")
                              .arg(nameOf(view), text)
                              .arg(view.visualRect(cell).width())
                              .arg(view.sizeHintForIndex(cell).width());
        }
    }
    return faults;
}

QStringList clippedHeadings(const QHeaderView &header)
{
    QStringList faults;
    for (int section = 0; header.orientation() == Qt::Horizontal && section < header.count(); ++section) {
        const QString text = header.model()->headerData(section, Qt::Horizontal).toString();
        if (header.sectionSize(section) < header.fontMetrics().horizontalAdvance(text))
            faults << QStringLiteral("the heading \"%1\" is cut").arg(text);
    }
    return faults;
}

/// Of the same row: one beside the other. Going on in a column further on is reading order, too.
bool comesBefore(const QRect &later, const QRect &earlier, bool isRightToLeft)
{
    const bool isAside = isRightToLeft ? later.right() < earlier.left() : later.left() > earlier.right();
    const bool isBack = isRightToLeft ? later.left() > earlier.right() : later.right() < earlier.left();
    if (later.bottom() < earlier.top())
        return !isAside;
    return later.top() <= earlier.bottom() && isBack &&
           later.center().y() <= earlier.center().y() + earlier.height() / 2;
}

void turn(QWidget &window, Qt::LayoutDirection direction)
{
    window.setLayoutDirection(direction);
    // A splitter learns of it at its next layout only.
    for (QSplitter *splitter : window.findChildren<QSplitter *>())
        splitter->refresh();
    QCoreApplication::processEvents();
}

std::map<QWidget *, QRect> places(const QWidget &window)
{
    std::map<QWidget *, QRect> found;
    for (QWidget *widget : visibleIn(window))
        found[widget] = placeIn(window, *widget);
    return found;
}

} // namespace

QStringList FormFaults::clipped(const QWidget &window)
{
    QStringList faults;
    for (const QWidget *widget : visibleIn(window)) {
        const QSize need = needed(*widget);
        if (widget->width() < need.width() || widget->height() < need.height())
            faults << QStringLiteral("%1 has %2 x %3 and needs %4 x %5")
                          .arg(nameOf(*widget))
                          .arg(widget->width())
                          .arg(widget->height())
                          .arg(need.width())
                          .arg(need.height());
        if (const auto *view = qobject_cast<const QAbstractItemView *>(widget))
            faults << clippedCells(*view);
    }
    for (const QHeaderView *header : window.findChildren<QHeaderView *>()) {
        if (header->isVisible())
            faults << clippedHeadings(*header);
    }
    return faults;
}

QStringList FormFaults::withoutLetters(const QWidget &window)
{
    QStringList faults;
    for (const QWidget *widget : visibleIn(window)) {
        QTextLayout layout(widget->property("text").toString() + widget->property("title").toString(), widget->font());
        layout.beginLayout();
        while (layout.createLine().isValid()) {
        }
        layout.endLayout();
        // A font draws its glyph 0 for what it does not have.
        const QList<QGlyphRun> runs = layout.glyphRuns();
        if (std::any_of(runs.begin(), runs.end(), [](const QGlyphRun &run) { return run.glyphIndexes().contains(0); }))
            faults << nameOf(*widget) + QStringLiteral(" has letters that no font has");
    }
    return faults;
}

QStringList FormFaults::english(const QWidget &window)
{
    QStringList texts{window.windowTitle()};
    std::vector<QWidget *> all = visibleIn(window);
    for (const QWidget *widget : all) {
        for (const char *property : {"text", "title", "placeholderText", "toolTip", "suffix", "specialValueText"})
            texts << widget->property(property).toString();
        if (const auto *bar = qobject_cast<const QTabBar *>(widget)) {
            for (int tab = 0; tab < bar->count(); ++tab)
                texts << bar->tabText(tab);
        }
        if (const auto *combo = qobject_cast<const QComboBox *>(widget)) {
            for (int row = 0; row < combo->count(); ++row)
                texts << combo->itemText(row);
        }
        for (const QAction *action : widget->actions())
            texts << action->text() << action->toolTip();
    }
    for (const QAction *action : window.actions())
        texts << action->text();
    for (const QHeaderView *header : window.findChildren<QHeaderView *>()) {
        for (int section = 0; header->orientation() == Qt::Horizontal && section < header->count(); ++section)
            texts << header->model()->headerData(section, Qt::Horizontal).toString();
    }
    static const QRegularExpression own(QStringLiteral("[\\x{3040}-\\x{d7ff}]"));
    static const QRegularExpression word(QStringLiteral("[A-Za-z]{3,}"));
    static const QRegularExpression file(QStringLiteral("/|\\*\\.|^\\S+\\.\\w+$"));
    texts.removeDuplicates();
    texts.erase(std::remove_if(texts.begin(), texts.end(),
                               [](const QString &text) {
                                   return text.contains(own) || !text.contains(word) || text.contains(file);
                               }),
                texts.end());
    return texts;
}

QStringList FormFaults::misplaced(const QWidget &window)
{
    // From right to left a splitter's last part stands one pixel too far.
    constexpr int rounding = 1;
    QStringList faults;
    const std::vector<QWidget *> visible = visibleIn(window);
    for (auto widget = visible.begin(); widget != visible.end(); ++widget) {
        const QWidget *parent = (*widget)->parentWidget();
        const QRect place = (*widget)->geometry();
        if (place.isEmpty())
            faults << nameOf(**widget) + QStringLiteral(" has no size");
        const bool canScroll = parent->parentWidget() && qobject_cast<QAbstractScrollArea *>(parent->parentWidget());
        if (!canScroll && !parent->rect().adjusted(-rounding, 0, rounding, 0).contains(place))
            faults << nameOf(**widget) + QStringLiteral(" lies beyond ") + nameOf(*parent);
        if (!parent->layout())
            continue;
        for (auto other = widget + 1; other != visible.end(); ++other) {
            if ((*other)->parentWidget() == parent && place.intersects((*other)->geometry()))
                faults << nameOf(**widget) + QStringLiteral(" lies over ") + nameOf(**other);
        }
    }
    return faults;
}

QStringList FormFaults::unreached(QWidget &window, const QWidget &page)
{
    constexpr std::size_t mostStops = 300;
    QStringList faults;
    std::vector<QWidget *> reached;
    QApplication::setActiveWindow(&window);
    auto *start = window.findChild<QWidget *>(QStringLiteral("search"));
    start->setFocus();
    do {
        reached.push_back(QApplication::focusWidget());
        QTest::keyClick(reached.back(), Qt::Key_Tab);
    } while (QApplication::focusWidget() != start && reached.size() < mostStops);
    reached.erase(
        std::remove_if(reached.begin(), reached.end(), [&](const QWidget *stop) { return !page.isAncestorOf(stop); }),
        reached.end());
    const olPageIndex index(page);
    for (const olPageControl &control : index.controls()) {
        const bool isReached = std::any_of(reached.begin(), reached.end(), [&](const QWidget *stop) {
            return stop == control.widget || control.widget->isAncestorOf(stop);
        });
        if (control.widget->isVisible() && control.widget->isEnabled() && !isReached)
            faults << nameOf(*control.widget) + QStringLiteral(" is not reached by the Tab key");
    }
    for (std::size_t stop = 1; stop < reached.size(); ++stop) {
        if (comesBefore(placeIn(page, *reached[stop]), placeIn(page, *reached[stop - 1]), page.isRightToLeft()))
            faults << QStringLiteral("Tab goes back from %1 to %2")
                          .arg(nameOf(*reached[stop - 1]), nameOf(*reached[stop]));
    }
    return faults;
}

QStringList FormFaults::unmirrored(QWidget &window)
{
    // Where a width is odd, both halves cannot be alike.
    constexpr int tolerance = 2;
    QStringList faults;
    const Qt::LayoutDirection direction = window.layoutDirection();
    const std::map<QWidget *, QRect> before = places(window);
    turn(window, direction == Qt::LeftToRight ? Qt::RightToLeft : Qt::LeftToRight);
    for (const auto &[widget, place] : places(window)) {
        const auto known = before.find(widget);
        if (known == before.end())
            continue;
        const int expected = window.width() - known->second.left() - known->second.width();
        if (std::abs(place.left() - expected) > tolerance)
            faults << QStringLiteral("%1 is at %2 instead of %3").arg(nameOf(*widget)).arg(place.left()).arg(expected);
        const auto *label = qobject_cast<const QLabel *>(widget);
        if (label && (label->alignment() & Qt::AlignAbsolute))
            faults << nameOf(*widget) + QStringLiteral(" keeps its side");
    }
    turn(window, direction);
    return faults;
}
