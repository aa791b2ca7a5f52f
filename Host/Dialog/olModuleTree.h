#pragma once

#include <QStringList>
#include <QTreeWidget>

#include <functional>
#include <map>
#include <vector>

class olPreferencesEntry;

/// The modules with a page as entries under their categories. A module named as its category is the category's own
/// entry.
class olModuleTree : public QTreeWidget
{
    Q_OBJECT

public:
    olModuleTree();

    /// Lists the modules anew and stays, where it can, on the current one.
    void list();

    /// The module to be shown: the current one, or the first in sight of a category without a page of its own. Null
    /// where there is none.
    [[nodiscard]] olPreferencesEntry *chosen() const;

    /// False, with nothing changed, for a name that is not listed.
    bool choose(const QString &name);

    /// Hides the modules that are not among these, be it the current one. The number beside each says how much was
    /// found there.
    void showOnly(const std::map<const olPreferencesEntry *, int> &entries);
    void showAll();

    enum class Mark { None, Changed, Pending };

    /// Marks the modules whose settings differ from their defaults, and those with changes that are not applied yet. A
    /// folded category bears the marks of what it hides.
    void mark(const std::function<Mark(const olPreferencesEntry &entry)> &markOf);

    /// Categories that are not folded; none is at first. What a search unfolds does not count.
    [[nodiscard]] QStringList openCategories() const { return m_open; }
    void setOpenCategories(const QStringList &names);

    [[nodiscard]] QSize minimumSizeHint() const override;

    /// Wide enough for every name.
    [[nodiscard]] QSize sizeHint() const override;

protected:
    void drawRow(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const override;

private:
    void paintMark(QPainter &painter, const QStyleOptionViewItem &option, const QModelIndex &name) const;
    void add(const olPreferencesEntry &entry);
    [[nodiscard]] QTreeWidgetItem *categoryItem(const QString &category);
    [[nodiscard]] olPreferencesEntry *entryOf(const QTreeWidgetItem *item) const;
    template <class Use> void eachItem(Use &&use) const;
    void foldAgain();

    QStringList m_open;
    bool m_isFiltered = false;
};
