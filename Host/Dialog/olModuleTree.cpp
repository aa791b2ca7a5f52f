#include "Dialog/olModuleTree.h"

#include "Dialog/olPageIcons.h"
#include "State/olPreferencesEntry.h"
#include "State/olPreferencesRegistry.h"

#include <QHeaderView>
#include <QPainter>
#include <QScrollBar>
#include <QSignalBlocker>
#include <QTreeWidgetItemIterator>

#include <algorithm>

namespace
{

enum Column { NameColumn, CountColumn };

constexpr int nameRole = Qt::UserRole;
constexpr int markRole = Qt::UserRole + 1;

} // namespace

olModuleTree::olModuleTree()
{
    setColumnCount(2);
    setHeaderHidden(true);
    header()->setStretchLastSection(false);
    header()->setSectionResizeMode(NameColumn, QHeaderView::Stretch);
    header()->setSectionResizeMode(CountColumn, QHeaderView::ResizeToContents);
    setRootIsDecorated(true);
    setUniformRowHeights(true);
    setAccessibleName(tr("Modules"));
    connect(this, &QTreeWidget::itemExpanded, this, [this](const QTreeWidgetItem *item) {
        if (!m_isFiltered && !m_open.contains(item->text(NameColumn)))
            m_open << item->text(NameColumn);
    });
    connect(this, &QTreeWidget::itemCollapsed, this, [this](const QTreeWidgetItem *item) {
        if (!m_isFiltered)
            m_open.removeAll(item->text(NameColumn));
    });
}

/// Most styles let the current row look the same whether the keys go to the tree or not.
void olModuleTree::drawRow(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const
{
    QTreeWidget::drawRow(painter, option, index);
    paintMark(*painter, option, index.sibling(index.row(), NameColumn));
    if (index != currentIndex() || !hasFocus())
        return;
    painter->setPen(QPen(palette().color(QPalette::Text), 1.0, Qt::DotLine));
    painter->setBrush(Qt::NoBrush);
    painter->drawRect(QRectF(option.rect).adjusted(0.5, 0.5, -0.5, -0.5));
}

void olModuleTree::paintMark(QPainter &painter, const QStyleOptionViewItem &option, const QModelIndex &name) const
{
    int mark = name.data(markRole).toInt();
    for (int row = 0; !isExpanded(name) && row < model()->rowCount(name); ++row)
        mark = std::max(mark, model()->index(row, NameColumn, name).data(markRole).toInt());
    if (Mark(mark) == Mark::None)
        return;
    const QRect place = visualRect(name);
    const qreal radius = option.fontMetrics.ascent() / 5.0;
    const QPointF middle(isRightToLeft() ? place.left() + 2.0 * radius : place.right() - 2.0 * radius,
                         place.center().y() + 0.5);
    painter.setPen(Qt::NoPen);
    painter.setBrush(
        palette().color(selectionModel()->isSelected(name) ? QPalette::HighlightedText : QPalette::Highlight));
    painter.setRenderHint(QPainter::Antialiasing);
    // As before the settings themselves: a bar for what is changed, dots for what is pending.
    if (Mark(mark) == Mark::Pending)
        painter.drawEllipse(middle, radius, radius);
    else
        painter.drawRoundedRect(QRectF(middle - QPointF(1.5, 2.0 * radius), QSizeF(3.0, 4.0 * radius)), 1.5, 1.5);
    painter.setRenderHint(QPainter::Antialiasing, false);
}

QSize olModuleTree::minimumSizeHint() const
{
    return {fontMetrics().averageCharWidth() * 14, fontMetrics().height() * 2};
}

template <class Use> void olModuleTree::eachItem(Use &&use) const
{
    for (QTreeWidgetItemIterator item(const_cast<olModuleTree *>(this)); *item; ++item)
        use(**item);
}

QSize olModuleTree::sizeHint() const
{
    int widest = 0;
    eachItem([&](const QTreeWidgetItem &item) {
        const int depth = item.parent() ? 2 : 1;
        widest = std::max(widest, depth * indentation() + sizeHintForIndex(indexFromItem(&item)).width());
    });
    const int count = std::max(header()->minimumSectionSize(), sizeHintForColumn(CountColumn));
    return {widest + count + verticalScrollBar()->sizeHint().width() + 2 * frameWidth(),
            QTreeWidget::sizeHint().height()};
}

void olModuleTree::list()
{
    const QTreeWidgetItem *current = currentItem();
    const QString name = current ? current->text(0) : QString();
    {
        const QSignalBlocker quiet(this);
        clear();
        for (const olPreferencesEntry *entry : olPreferencesRegistry::the().entries()) {
            if (entry->page())
                add(*entry);
        }
        foldAgain();
    }
    if (!choose(name) && topLevelItemCount() > 0)
        setCurrentItem(topLevelItem(0));
}

void olModuleTree::add(const olPreferencesEntry &entry)
{
    QTreeWidgetItem *item = nullptr;
    if (entry.category().isEmpty()) {
        item = new QTreeWidgetItem(this);
    } else {
        QTreeWidgetItem *category = categoryItem(entry.category());
        item = entry.name() == entry.category() ? category : new QTreeWidgetItem(category);
    }
    item->setText(0, entry.name());
    item->setData(0, nameRole, entry.name());
    item->setIcon(0, olPageIcons::of(entry.className()));
}

QTreeWidgetItem *olModuleTree::categoryItem(const QString &category)
{
    for (int row = 0; row < topLevelItemCount(); ++row) {
        if (topLevelItem(row)->text(0) == category)
            return topLevelItem(row);
    }
    auto *item = new QTreeWidgetItem(this);
    item->setText(0, category);
    item->setIcon(0, olPageIcons::ofCategory());
    return item;
}

olPreferencesEntry *olModuleTree::entryOf(const QTreeWidgetItem *item) const
{
    if (!item || !item->data(0, nameRole).isValid())
        return nullptr;
    return olPreferencesRegistry::the().find(item->data(0, nameRole).toString());
}

olPreferencesEntry *olModuleTree::chosen() const
{
    const QTreeWidgetItem *item = currentItem();
    if (!item || item->isHidden())
        return nullptr;
    if (olPreferencesEntry *entry = entryOf(item))
        return entry->page() ? entry : nullptr;
    for (int row = 0; row < item->childCount(); ++row) {
        olPreferencesEntry *entry = item->child(row)->isHidden() ? nullptr : entryOf(item->child(row));
        if (entry && entry->page())
            return entry;
    }
    return nullptr;
}

bool olModuleTree::choose(const QString &name)
{
    QTreeWidgetItem *found = nullptr;
    eachItem([&](QTreeWidgetItem &item) {
        if (!found && entryOf(&item) && item.text(0) == name)
            found = &item;
    });
    if (found)
        setCurrentItem(found);
    return found;
}

void olModuleTree::showOnly(const std::map<const olPreferencesEntry *, int> &entries)
{
    const auto isAsked = [&](const QTreeWidgetItem &item) {
        const olPreferencesEntry *entry = entryOf(&item);
        return entry && entries.count(entry) != 0;
    };
    eachItem([&](QTreeWidgetItem &item) {
        bool isShown = isAsked(item);
        const int count = isShown ? entries.at(entryOf(&item)) : 0;
        item.setText(CountColumn, count > 0 ? QString::number(count) : QString());
        item.setTextAlignment(CountColumn, Qt::AlignRight | Qt::AlignVCenter);
        for (int row = 0; row < item.childCount(); ++row)
            isShown = isShown || isAsked(*item.child(row));
        item.setHidden(!isShown);
    });
    m_isFiltered = true;
    expandAll();
}

void olModuleTree::showAll()
{
    eachItem([](QTreeWidgetItem &item) {
        item.setHidden(false);
        item.setText(CountColumn, QString());
    });
    m_isFiltered = false;
    foldAgain();
    if (currentItem())
        scrollToItem(currentItem());
}

void olModuleTree::setOpenCategories(const QStringList &names)
{
    m_open = names;
    foldAgain();
}

/// The current module stays in sight all the same.
void olModuleTree::foldAgain()
{
    const QStringList open = m_open;
    for (int row = 0; row < topLevelItemCount(); ++row)
        topLevelItem(row)->setExpanded(m_isFiltered || open.contains(topLevelItem(row)->text(NameColumn)));
    m_open = open;
}

void olModuleTree::mark(const std::function<Mark(const olPreferencesEntry &entry)> &markOf)
{
    eachItem([&](QTreeWidgetItem &item) {
        const olPreferencesEntry *entry = entryOf(&item);
        const Mark mark = entry ? markOf(*entry) : Mark::None;
        if (item.data(NameColumn, markRole).toInt() == int(mark))
            return;
        item.setData(NameColumn, markRole, int(mark));
        const QString told = mark == Mark::Pending   ? tr("Has changes that are not applied yet")
                             : mark == Mark::Changed ? tr("Has settings that differ from their defaults")
                                                     : QString();
        item.setToolTip(NameColumn, told);
        item.setData(NameColumn, Qt::AccessibleDescriptionRole, told);
    });
    viewport()->update();
}
