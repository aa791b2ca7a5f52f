#include "Dialog/olModuleTree.h"

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
constexpr int pendingRole = Qt::UserRole + 1;

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
    if (index.sibling(index.row(), NameColumn).data(pendingRole).toBool()) {
        const QRect name = visualRect(index.sibling(index.row(), NameColumn));
        const bool isCurrent = selectionModel()->isSelected(index);
        const qreal radius = option.fontMetrics.ascent() / 5.0;
        const qreal x = isRightToLeft() ? name.left() + 2.0 * radius : name.right() - 2.0 * radius;
        painter->setPen(Qt::NoPen);
        painter->setBrush(palette().color(isCurrent ? QPalette::HighlightedText : QPalette::Highlight));
        painter->setRenderHint(QPainter::Antialiasing);
        painter->drawEllipse(QPointF(x, name.center().y()), radius, radius);
        painter->setRenderHint(QPainter::Antialiasing, false);
    }
    if (index != currentIndex() || !hasFocus())
        return;
    painter->setPen(QPen(palette().color(QPalette::Text), 1.0, Qt::DotLine));
    painter->setBrush(Qt::NoBrush);
    painter->drawRect(QRectF(option.rect).adjusted(0.5, 0.5, -0.5, -0.5));
}

QSize olModuleTree::minimumSizeHint() const
{
    return {fontMetrics().averageCharWidth() * 14, fontMetrics().height() * 4};
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
}

QTreeWidgetItem *olModuleTree::categoryItem(const QString &category)
{
    for (int row = 0; row < topLevelItemCount(); ++row) {
        if (topLevelItem(row)->text(0) == category)
            return topLevelItem(row);
    }
    auto *item = new QTreeWidgetItem(this);
    item->setText(0, category);
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

void olModuleTree::markPending(const std::vector<const olPreferencesEntry *> &entries)
{
    eachItem([&](QTreeWidgetItem &item) {
        const olPreferencesEntry *entry = entryOf(&item);
        const bool isPending = entry && std::find(entries.begin(), entries.end(), entry) != entries.end();
        if (item.data(NameColumn, pendingRole).toBool() == isPending)
            return;
        item.setData(NameColumn, pendingRole, isPending);
        const QString told = isPending ? tr("Has changes that are not applied yet") : QString();
        item.setToolTip(NameColumn, told);
        item.setData(NameColumn, Qt::AccessibleDescriptionRole, told);
    });
}
