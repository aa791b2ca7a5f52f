#include "Dialog/olChangesView.h"

#include <QDialogButtonBox>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QScreen>
#include <QTreeWidget>
#include <QVBoxLayout>

#include <algorithm>

namespace
{

constexpr int keyRole = Qt::UserRole;
constexpr int mostRowsAtOnce = 12;
constexpr int columnGap = 16;

int heightFor(const QTreeWidget &list)
{
    const int rows = std::min(list.topLevelItemCount(), mostRowsAtOnce) + 1;
    return list.header()->sizeHint().height() + rows * (list.fontMetrics().height() + 6);
}

} // namespace

olChangesView::olChangesView(const QString &title, QWidget *parent)
    : QDialog(parent),
      m_introduction(new QLabel),
      m_changes(addList({tr("Setting"), tr("Old Value"), tr("New Value")}, tr("Changes"))),
      m_skippedLabel(new QLabel(tr("&Skipped:"))),
      m_skipped(addList({tr("Setting"), tr("Why")}, tr("Skipped"))),
      m_buttons(new QDialogButtonBox(QDialogButtonBox::Close))
{
    setWindowTitle(title);
    setWindowModality(Qt::WindowModal);
    m_introduction->setWordWrap(true);
    m_introduction->setVisible(false);
    m_changes->setObjectName(QStringLiteral("changes"));
    m_skipped->setObjectName(QStringLiteral("skipped"));
    m_skippedLabel->setBuddy(m_skipped);
    m_skippedLabel->setVisible(false);
    m_skipped->setVisible(false);

    auto *layout = new QVBoxLayout(this);
    layout->addWidget(m_introduction);
    layout->addWidget(m_changes, 2);
    layout->addWidget(m_skippedLabel);
    layout->addWidget(m_skipped, 1);
    layout->addWidget(m_buttons);

    connect(m_buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(m_buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connect(m_changes, &QTreeWidget::itemActivated, this, &olChangesView::choose);
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
    return list;
}

void olChangesView::setIntroduction(const QString &text)
{
    m_introduction->setText(text);
    m_introduction->setVisible(true);
}

void olChangesView::addChange(const QString &place, const QString &key, const QString &before, const QString &after)
{
    auto *item = new QTreeWidgetItem(m_changes, {place, before, after});
    item->setData(0, keyRole, key);
    item->setToolTip(0, key);
    item->setToolTip(1, before);
    item->setToolTip(2, after);
}

void olChangesView::addSkipped(const QString &key, const QString &reason)
{
    auto *item = new QTreeWidgetItem(m_skipped, {key, reason});
    item->setToolTip(0, key);
    item->setToolTip(1, reason);
    m_skippedLabel->setVisible(true);
    m_skipped->setVisible(true);
}

void olChangesView::askFor(const QString &acceptText)
{
    m_buttons->setStandardButtons(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    m_buttons->button(QDialogButtonBox::Ok)->setText(acceptText);
    m_buttons->button(QDialogButtonBox::Ok)->setEnabled(m_changes->topLevelItemCount() > 0);
}

void olChangesView::fit()
{
    m_changes->setVisible(m_changes->topLevelItemCount() > 0);
    for (QTreeWidget *list : {m_changes, m_skipped}) {
        if (list->topLevelItemCount() == 0)
            continue;
        list->setMinimumHeight(std::min(heightFor(*list), fontMetrics().height() * 8));
        list->setCurrentItem(list->topLevelItem(0));
        // What is too long for its column is elided, and whole in its tooltip.
        const int widest = fontMetrics().averageCharWidth() * 50;
        for (int column = 0; column + 1 < list->columnCount(); ++column) {
            list->resizeColumnToContents(column);
            list->setColumnWidth(column, std::min(list->columnWidth(column) + columnGap, widest));
        }
    }
    const QSize comfortable(fontMetrics().averageCharWidth() * 100, 0);
    const int height = heightFor(*m_changes) + (m_skipped->topLevelItemCount() > 0 ? heightFor(*m_skipped) : 0) +
                       fontMetrics().height() * 8;
    const QSize room = parentWidget()->screen()->availableSize() * 9 / 10;
    resize(comfortable.expandedTo({0, height}).boundedTo(room));
}

void olChangesView::choose()
{
    const QTreeWidgetItem *item = m_changes->currentItem();
    const bool onlyShows = m_buttons->standardButtons() == QDialogButtonBox::Close;
    if (!item || !onlyShows)
        return;
    const QString key = item->data(0, keyRole).toString();
    accept();
    emit chosen(key);
}
