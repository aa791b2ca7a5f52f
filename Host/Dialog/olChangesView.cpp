#include "Dialog/olChangesView.h"

#include "Dialog/olWindowPlace.h"
#include "State/olListed.h"
#include "State/olValue.h"

#include <OpenSG/OSGColor.h>

#include <QApplication>
#include <QClipboard>
#include <QDialogButtonBox>
#include <QHeaderView>
#include <QLabel>
#include <QPainter>
#include <QPixmap>
#include <QPushButton>
#include <QScreen>
#include <QTreeWidget>
#include <QVBoxLayout>

#include <algorithm>

namespace
{

enum Column { SettingColumn, BeforeColumn, AfterColumn };

constexpr int keyRole = Qt::UserRole;
constexpr int mostRowsAtOnce = 12;
constexpr std::size_t mostSwatches = 6;

int heightFor(const QTreeWidget &list)
{
    const int rows = std::min(list.topLevelItemCount(), mostRowsAtOnce) + 1;
    return list.header()->sizeHint().height() + rows * (list.fontMetrics().height() + 6);
}

std::vector<QColor> colorsOf(const boost::any &value)
{
    const auto shown = [](const osg::Color3f &color) {
        return QColor::fromRgbF(std::clamp(double(color.red()), 0.0, 1.0), std::clamp(double(color.green()), 0.0, 1.0),
                                std::clamp(double(color.blue()), 0.0, 1.0));
    };
    std::vector<QColor> colors;
    if (const auto *one = boost::any_cast<osg::Color3f>(&value))
        colors.push_back(shown(*one));
    if (const auto *many = boost::any_cast<std::vector<osg::Color3f>>(&value))
        std::transform(many->begin(), many->end(), std::back_inserter(colors), shown);
    return colors;
}

/// One square a colour, side by side. The last one that has room stands for all that have none.
QIcon swatches(const std::vector<QColor> &colors, const QWidget &widget)
{
    const int side = widget.fontMetrics().ascent();
    const auto count = int(std::min(colors.size(), mostSwatches));
    const qreal ratio = widget.devicePixelRatioF();
    QPixmap picture(QSize(count * side, side) * ratio);
    picture.setDevicePixelRatio(ratio);
    QPainter painter(&picture);
    painter.setPen(widget.palette().color(QPalette::Mid));
    for (int index = 0; index < count; ++index) {
        painter.setBrush(colors[std::size_t(index)]);
        painter.drawRect(index * side, 0, side - 1, side - 1);
    }
    // Also in the current row, where a style would tint it.
    QIcon icon;
    for (const auto mode : {QIcon::Normal, QIcon::Selected})
        icon.addPixmap(picture, mode);
    return icon;
}

void showValue(QTreeWidgetItem &item, Column column, const QString &text, const boost::any &value)
{
    const std::vector<QColor> colors = colorsOf(value);
    QStringList names;
    for (const QColor &color : colors)
        names << color.name();
    item.setText(column, colors.empty() ? text : olListed(names));
    if (!colors.empty())
        item.setIcon(column, swatches(colors, *item.treeWidget()));
    item.setToolTip(column, colors.empty() ? text : QString::fromStdString(olValue::toJson(value)));
}

} // namespace

olChangesView::olChangesView(const QString &title, QWidget *parent)
    : QDialog(parent),
      m_introduction(new QLabel),
      m_changes(addList({tr("Setting"), tr("Old Value"), tr("New Value")}, tr("Changes"))),
      m_skippedLabel(new QLabel(tr("&Skipped:"))),
      m_skipped(addList({tr("Setting"), tr("Why")}, tr("Skipped"))),
      m_buttons(new QDialogButtonBox(QDialogButtonBox::Close)),
      m_goThere(addButton(tr("&Go There"), QStringLiteral("goThere"), &olChangesView::goThere)),
      m_takeBack(addButton(tr("&Take Back"), QStringLiteral("takeBack"), &olChangesView::takeBack)),
      m_takeAllBack(addButton(tr("Take &All Back"), QStringLiteral("takeAllBack"), &olChangesView::takeAllBack))
{
    setWindowTitle(title);
    setWindowModality(Qt::WindowModal);
    m_introduction->setWordWrap(true);
    m_introduction->setVisible(false);
    m_changes->setObjectName(QStringLiteral("changes"));
    m_changes->setSelectionMode(QAbstractItemView::ExtendedSelection);
    m_skipped->setObjectName(QStringLiteral("skipped"));
    m_skippedLabel->setObjectName(QStringLiteral("skippedLabel"));
    m_skippedLabel->setBuddy(m_skipped);
    m_skippedLabel->setVisible(false);
    m_skipped->setVisible(false);

    auto *bottom = new QHBoxLayout;
    for (QPushButton *button : {m_goThere, m_takeBack, m_takeAllBack})
        bottom->addWidget(button);
    bottom->addWidget(addButton(tr("&Copy as Text"), QStringLiteral("copyAsText"), &olChangesView::copyAsText));
    bottom->addStretch(1);
    bottom->addWidget(m_buttons);
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(m_introduction);
    layout->addWidget(m_changes, 2);
    layout->addWidget(m_skippedLabel);
    layout->addWidget(m_skipped, 1);
    layout->addLayout(bottom);

    connect(m_buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(m_buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connect(m_changes, &QTreeWidget::itemActivated, this, &olChangesView::goThere);
    connect(m_changes, &QTreeWidget::itemSelectionChanged, this, &olChangesView::updateButtons);
    connect(m_changes, &QTreeWidget::itemChanged, this, &olChangesView::updateButtons);
    updateButtons();
}

QTreeWidget *olChangesView::addList(const QStringList &headers, const QString &name)
{
    auto *list = new QTreeWidget;
    list->setHeaderLabels(headers);
    list->setAccessibleName(name);
    list->setRootIsDecorated(false);
    list->setUniformRowHeights(true);
    list->setAlternatingRowColors(true);
    list->setTextElideMode(Qt::ElideMiddle);
    // What is too long for its column is whole in its tooltip; no column pushes another one out of sight.
    list->header()->setStretchLastSection(false);
    list->header()->setSectionResizeMode(SettingColumn, QHeaderView::Stretch);
    const int swatch = list->fontMetrics().ascent();
    list->setIconSize({swatch * int(mostSwatches), swatch});
    return list;
}

QPushButton *olChangesView::addButton(const QString &text, const QString &name, void (olChangesView::*act)())
{
    auto *button = new QPushButton(text);
    button->setObjectName(name);
    button->setAutoDefault(false);
    connect(button, &QPushButton::clicked, this, act);
    return button;
}

void olChangesView::setIntroduction(const QString &text)
{
    m_introduction->setText(text);
    m_introduction->setVisible(true);
}

void olChangesView::setChanges(const std::vector<olListedChange> &changes)
{
    const int current = m_changes->indexOfTopLevelItem(m_changes->currentItem());
    m_changes->clear();
    for (const olListedChange &change : changes) {
        auto *item = new QTreeWidgetItem(m_changes, {change.place});
        item->setData(SettingColumn, keyRole, change.key);
        item->setToolTip(SettingColumn,
                         change.key.isEmpty() ? change.place : change.place + QLatin1Char('\n') + change.key);
        showValue(*item, BeforeColumn, change.before, change.beforeValue);
        showValue(*item, AfterColumn, change.after, change.afterValue);
    }
    const int count = m_changes->topLevelItemCount();
    if (count > 0)
        m_changes->setCurrentItem(m_changes->topLevelItem(std::clamp(current, 0, count - 1)));
    updateButtons();
}

void olChangesView::addSkipped(const QString &key, const QString &reason)
{
    auto *item = new QTreeWidgetItem(m_skipped, {key, reason});
    item->setToolTip(0, key);
    item->setToolTip(1, reason);
    m_skippedLabel->setVisible(true);
    m_skipped->setVisible(true);
}

void olChangesView::offerWork()
{
    m_use = Use::Work;
    updateButtons();
}

void olChangesView::askFor(const QString &acceptText)
{
    m_use = Use::Choose;
    m_buttons->setStandardButtons(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    m_buttons->button(QDialogButtonBox::Ok)->setText(acceptText);
    for (int row = 0; row < m_changes->topLevelItemCount(); ++row)
        m_changes->topLevelItem(row)->setCheckState(SettingColumn, Qt::Checked);
    updateButtons();
}

void olChangesView::updateButtons()
{
    for (QPushButton *button : {m_goThere, m_takeBack, m_takeAllBack}) {
        button->setVisible(m_use == Use::Work);
        button->setEnabled(!m_changes->selectedItems().isEmpty());
    }
    m_takeAllBack->setEnabled(m_changes->topLevelItemCount() > 0);
    if (m_use == Use::Choose)
        m_buttons->button(QDialogButtonBox::Ok)->setEnabled(!ticked().isEmpty());
}

QStringList olChangesView::ticked() const
{
    QStringList keys;
    for (int row = 0; row < m_changes->topLevelItemCount(); ++row) {
        const QTreeWidgetItem *item = m_changes->topLevelItem(row);
        if (item->checkState(SettingColumn) == Qt::Checked)
            keys << item->data(SettingColumn, keyRole).toString();
    }
    return keys;
}

QString olChangesView::asText() const
{
    QString text;
    for (int row = 0; row < m_changes->topLevelItemCount(); ++row) {
        const QTreeWidgetItem *item = m_changes->topLevelItem(row);
        const QString key = item->data(SettingColumn, keyRole).toString();
        text += key.isEmpty()
                    ? item->text(SettingColumn) + QLatin1Char('\n')
                    : tr("%1 (%2): %3 -> %4\n", "place, key, old and new value")
                          .arg(item->text(SettingColumn), key, item->text(BeforeColumn), item->text(AfterColumn));
    }
    return text;
}

void olChangesView::fit()
{
    m_changes->setVisible(m_changes->topLevelItemCount() > 0);
    for (QTreeWidget *list : {m_changes, m_skipped}) {
        if (list->topLevelItemCount() == 0)
            continue;
        list->setMinimumHeight(std::min(heightFor(*list), fontMetrics().height() * 8));
        list->setCurrentItem(list->topLevelItem(0));
    }
    const QSize comfortable(olWindowPlace::letterWidth(fontMetrics()) * 110, 0);
    const int height = heightFor(*m_changes) + (m_skipped->topLevelItemCount() > 0 ? heightFor(*m_skipped) : 0) +
                       fontMetrics().height() * 8;
    const QSize room = parentWidget()->screen()->availableSize() * 9 / 10;
    resize(comfortable.expandedTo({0, height}).boundedTo(room));
}

/// However narrow it is, both values stay in sight, and the lists below an introduction of more lines.
void olChangesView::resizeEvent(QResizeEvent *event)
{
    QDialog::resizeEvent(event);
    setMinimumHeight(std::max(0, layout()->minimumHeightForWidth(width())));
    for (const int column : {BeforeColumn, AfterColumn})
        m_changes->setColumnWidth(column, width() * 28 / 100);
    m_skipped->setColumnWidth(BeforeColumn, width() * 55 / 100);
}

void olChangesView::goThere()
{
    const QTreeWidgetItem *item = m_changes->currentItem();
    if (!item || m_use != Use::Work)
        return;
    const QString key = item->data(SettingColumn, keyRole).toString();
    accept();
    emit chosen(key);
}

void olChangesView::takeBack() { askToTakeBack(m_changes->selectedItems()); }

void olChangesView::takeAllBack()
{
    m_changes->selectAll();
    askToTakeBack(m_changes->selectedItems());
}

void olChangesView::askToTakeBack(const QList<QTreeWidgetItem *> &items)
{
    QStringList keys;
    QStringList places;
    for (const QTreeWidgetItem *item : items) {
        keys << item->data(SettingColumn, keyRole).toString();
        places << item->text(SettingColumn);
    }
    emit takeBackAsked(keys, places);
}

void olChangesView::copyAsText() { QApplication::clipboard()->setText(asText()); }
