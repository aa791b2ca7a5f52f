#include "olSceneTree.h"

#include "Model/olScene.h"
#include "Model/olSceneStructure.h"
#include "State/olHostState.h"

#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QPainter>
#include <QSignalBlocker>
#include <QStackedWidget>
#include <QTreeWidget>
#include <QVBoxLayout>

#include <algorithm>

namespace
{

using Kind = olSceneNode::Kind;

constexpr int idRole = Qt::UserRole;
constexpr int kindRole = Qt::UserRole + 1;

Kind kindOf(const QTreeWidgetItem &item) { return Kind(item.data(0, kindRole).toInt()); }

QString idOf(const QTreeWidgetItem &item) { return item.data(0, idRole).toString(); }

/// A small square in a colour; what is transparent lets a chequered ground through.
QIcon chip(const QColor &color, const QWidget &on)
{
    const int side = on.fontMetrics().ascent();
    const qreal ratio = on.devicePixelRatioF();
    QPixmap pixmap(QSize(side, side) * ratio);
    pixmap.setDevicePixelRatio(ratio);
    pixmap.fill(Qt::white);
    QPainter painter(&pixmap);
    const QRect square(0, 0, side, side);
    const int half = side / 2;
    painter.fillRect(0, 0, half, half, Qt::lightGray);
    painter.fillRect(half, half, side - half, side - half, Qt::lightGray);
    painter.fillRect(square, color);
    painter.setPen(on.palette().color(QPalette::Dark));
    painter.drawRect(square.adjusted(0, 0, -1, -1));
    return QIcon(pixmap);
}

QString titleOf(const olSceneNode &node)
{
    if (node.kind == Kind::Level) {
        const int number = node.id.section(QLatin1Char('#'), -1).toInt() + 1;
        return olSceneTree::tr("Level %1").arg(number);
    }
    if (!node.name.isEmpty())
        return node.name;
    return node.kind == Kind::Group ? olSceneTree::tr("Unnamed group") : olSceneTree::tr("Unnamed part");
}

QString hintOf(const olSceneNode &node)
{
    QStringList lines{titleOf(node)};
    if (node.kind != Kind::Group)
        lines << olSceneTree::tr("Triangles: %1").arg(node.triangles);
    if (node.color.isValid())
        lines << olSceneTree::tr("Color: %1").arg(node.color.name());
    if (node.color.isValid() && node.color.alpha() < 255)
        lines << olSceneTree::tr("Opacity: %1 %").arg(qRound(node.color.alphaF() * 100));
    return lines.join(QLatin1Char('\n'));
}

void collect(const QTreeWidgetItem &item, QStringList &ids)
{
    if (kindOf(item) != Kind::Group) {
        ids << idOf(item);
        return;
    }
    for (int row = 0; row < item.childCount(); ++row)
        collect(*item.child(row), ids);
}

} // namespace

olSceneTree::olSceneTree(olScene &scene, QWidget *parent)
    : QWidget(parent), m_scene(scene), m_nodes(new QTreeWidget), m_pages(new QStackedWidget)
{
    m_nodes->setObjectName(QStringLiteral("sceneTree"));
    m_nodes->setAccessibleName(tr("Scene"));
    m_nodes->setHeaderHidden(true);
    m_nodes->setSelectionMode(QAbstractItemView::ExtendedSelection);
    m_nodes->setUniformRowHeights(true);
    m_nodes->setExpandsOnDoubleClick(false);
    m_nodes->header()->setStretchLastSection(false);
    m_nodes->header()->setSectionResizeMode(QHeaderView::ResizeToContents);
    m_nodes->installEventFilter(this);
    const int side = fontMetrics().ascent();
    m_nodes->setIconSize(QSize(side, side));

    auto *empty = new QLabel(tr("Nothing is open."));
    empty->setAlignment(Qt::AlignCenter);
    empty->setWordWrap(true);
    m_pages->addWidget(m_nodes);
    m_pages->addWidget(empty);
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(m_pages);

    m_visibilityTimer.setSingleShot(true);
    m_visibilityTimer.setInterval(0);
    connect(&m_visibilityTimer, &QTimer::timeout, this, &olSceneTree::takeVisibility);
    connect(m_nodes, &QTreeWidget::itemChanged, &m_visibilityTimer, QOverload<>::of(&QTimer::start));
    connect(m_nodes, &QTreeWidget::itemSelectionChanged, this, [this] { emit selectionChanged(selectedIds()); });
    connect(m_nodes, &QTreeWidget::itemActivated, this, &olSceneTree::zoomWanted);
    connect(&m_scene, &olScene::changed, this, &olSceneTree::fill);
    connect(&m_scene, &olScene::visibilityChanged, this, &olSceneTree::showVisibility);
    fill();
}

bool olSceneTree::eventFilter(QObject *watched, QEvent *event)
{
    // These keys belong to the window, but in a tree they go to its ends.
    if (event->type() == QEvent::ShortcutOverride) {
        const int key = static_cast<QKeyEvent *>(event)->key();
        if (key == Qt::Key_Home || key == Qt::Key_End)
            event->accept();
    }
    return QWidget::eventFilter(watched, event);
}

void olSceneTree::fill()
{
    const QSignalBlocker blocker(m_nodes);
    m_visibilityTimer.stop();
    m_items.clear();
    m_nodes->clear();
    for (const olSceneNode &node : olSceneStructure(m_scene.document()))
        addNode(node, *m_nodes->invisibleRootItem());
    showVisibility();
    m_nodes->expandToDepth(0);
    m_pages->setCurrentIndex(m_items.isEmpty() ? 1 : 0);
}

void olSceneTree::addNode(const olSceneNode &node, QTreeWidgetItem &parent)
{
    auto *item = new QTreeWidgetItem(&parent);
    item->setText(0, titleOf(node));
    item->setToolTip(0, hintOf(node));
    item->setData(0, idRole, node.id);
    item->setData(0, kindRole, int(node.kind));
    if (node.color.isValid())
        item->setIcon(0, chip(node.color, *this));
    for (const olSceneNode &below : node.below)
        addNode(below, *item);
    m_items.insert(node.id, item);
    if (node.kind == Kind::Group)
        item->setFlags(item->flags() | Qt::ItemIsAutoTristate);
}

void olSceneTree::showVisibility()
{
    const QSignalBlocker blocker(m_nodes);
    for (QTreeWidgetItem *item : qAsConst(m_items)) {
        if (kindOf(*item) == Kind::Part)
            item->setCheckState(0, m_scene.hiddenParts().contains(idOf(*item)) ? Qt::Unchecked : Qt::Checked);
    }
}

void olSceneTree::takeVisibility()
{
    QSet<QString> hidden;
    for (const QTreeWidgetItem *item : qAsConst(m_items)) {
        if (kindOf(*item) == Kind::Part && item->checkState(0) == Qt::Unchecked)
            hidden.insert(idOf(*item));
    }
    m_scene.setHiddenParts(hidden);
}

QStringList olSceneTree::selectedIds() const
{
    QStringList ids;
    for (const QTreeWidgetItem *item : m_nodes->selectedItems())
        collect(*item, ids);
    return ids;
}

void olSceneTree::showSelection(const QStringList &ids)
{
    const QSignalBlocker blocker(m_nodes);
    m_nodes->clearSelection();
    QTreeWidgetItem *first = nullptr;
    for (const QString &id : ids) {
        QTreeWidgetItem *item = m_items.value(id);
        if (!item)
            continue;
        item->setSelected(true);
        first = first ? first : item;
    }
    if (!first)
        return;
    // Whoever takes the current item up with the keyboard starts here; that alone must not scroll.
    const bool scrolls = olHostState::the().selectionAutoScroll;
    m_nodes->setAutoScroll(scrolls);
    m_nodes->setCurrentItem(first, 0, QItemSelectionModel::NoUpdate);
    if (scrolls)
        m_nodes->scrollToItem(first);
    m_nodes->setAutoScroll(true);
}
