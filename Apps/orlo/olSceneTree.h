#pragma once

#include <QHash>
#include <QStringList>
#include <QTimer>
#include <QWidget>

class QStackedWidget;
class QTreeWidget;
class QTreeWidgetItem;
class olScene;
struct olSceneNode;

/// The structure of the scene: what stands in it, its colours, which parts are drawn and which are selected.
class olSceneTree : public QWidget
{
    Q_OBJECT

public:
    /// The scene is not owned and must outlive the tree, which follows it.
    explicit olSceneTree(olScene &scene, QWidget *parent = nullptr);

    /// Selects the nodes of these parts and levels of detail. Whether the first of them is scrolled to, the host says.
    void showSelection(const QStringList &ids);

signals:
    /// The user selected in the tree: the parts in it, also those of selected groups, and levels of detail.
    void selectionChanged(const QStringList &ids);

    /// The user wants to see from near what is selected.
    void zoomWanted();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void fill();
    void addNode(const olSceneNode &node, QTreeWidgetItem &parent);
    void showVisibility();
    void takeVisibility();
    [[nodiscard]] QStringList selectedIds() const;

    olScene &m_scene;
    QTreeWidget *m_nodes;
    QStackedWidget *m_pages;
    QHash<QString, QTreeWidgetItem *> m_items;

    /// A click on a group changes many boxes, which the scene learns of together.
    QTimer m_visibilityTimer;
};
