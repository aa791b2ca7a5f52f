#include "Dialog/olModuleTree.h"

#include "State/olPreferencesEntry.h"
#include "State/olPreferencesRegistry.h"

#include <QPainter>
#include <QSignalBlocker>
#include <QTreeWidgetItemIterator>

#include <algorithm>

namespace
{

constexpr int nameRole = Qt::UserRole;

} // namespace

olModuleTree::olModuleTree()
{
    setHeaderHidden(true);
    setRootIsDecorated(true);
    setUniformRowHeights(true);
    setAccessibleName(tr("Modules"));
}

/// Most styles let the current row look the same whether the keys go to the tree or not.
void olModuleTree::drawRow(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const
{
    QTreeWidget::drawRow(painter, option, index);
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
        expandAll();
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

void olModuleTree::showOnly(const std::vector<const olPreferencesEntry *> &entries)
{
    const auto isAsked = [&](const QTreeWidgetItem &item) {
        const olPreferencesEntry *entry = entryOf(&item);
        return entry && std::find(entries.begin(), entries.end(), entry) != entries.end();
    };
    QTreeWidgetItem *first = nullptr;
    eachItem([&](QTreeWidgetItem &item) {
        bool isShown = isAsked(item);
        if (isShown && !first)
            first = &item;
        for (int row = 0; row < item.childCount(); ++row)
            isShown = isShown || isAsked(*item.child(row));
        item.setHidden(!isShown);
    });
    expandAll();
    const QTreeWidgetItem *current = currentItem();
    if (first && (!current || !isAsked(*current)))
        setCurrentItem(first);
}

void olModuleTree::showAll()
{
    eachItem([](QTreeWidgetItem &item) { item.setHidden(false); });
    if (currentItem())
        scrollToItem(currentItem());
}
