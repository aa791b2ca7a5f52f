#include "Dialog/olHistoryView.h"

#include "Dialog/olWindowPlace.h"
#include "Editing/olValueText.h"

#include <QDateTime>
#include <QDialogButtonBox>
#include <QHeaderView>
#include <QLabel>
#include <QLocale>
#include <QPushButton>
#include <QScreen>
#include <QTreeWidget>
#include <QVBoxLayout>

olHistoryView::olHistoryView(const olUndo &undo, const PlaceOf &placeOf, QWidget *parent)
    : QDialog(parent), m_list(new QTreeWidget), m_goBack(new QPushButton(tr("&Go Back...")))
{
    setWindowTitle(tr("History"));
    setWindowModality(Qt::WindowModal);
    auto *introduction =
        new QLabel(undo.history().empty() ? tr("Nothing has been saved yet.")
                                          : tr("Going back takes back the save that is chosen and all later "
                                               "ones. What that changes is shown first."));
    introduction->setWordWrap(true);
    m_list->setObjectName(QStringLiteral("saves"));
    m_list->setAccessibleName(tr("Saves"));
    m_list->setHeaderLabels({tr("When"), tr("Program"), tr("Changes")});
    m_list->setUniformRowHeights(true);
    m_list->setAlternatingRowColors(true);
    m_goBack->setObjectName(QStringLiteral("goBack"));
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Close);
    buttons->addButton(m_goBack, QDialogButtonBox::ActionRole);

    auto *layout = new QVBoxLayout(this);
    layout->addWidget(introduction);
    layout->addWidget(m_list, 1);
    layout->addWidget(buttons);

    for (auto save = undo.history().rbegin(); save != undo.history().rend(); ++save)
        add(*save, undo, placeOf);
    m_list->setCurrentItem(m_list->topLevelItem(0));
    m_goBack->setEnabled(m_list->topLevelItemCount() > 0);
    for (int column = 0; column < 2; ++column) {
        m_list->resizeColumnToContents(column);
        m_list->setColumnWidth(column, m_list->columnWidth(column) + fontMetrics().averageCharWidth() * 2);
    }
    const QSize comfortable(olWindowPlace::letterWidth(fontMetrics()) * 110, fontMetrics().height() * 26);
    resize(comfortable.boundedTo(parent->screen()->availableSize() * 9 / 10));
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connect(m_goBack, &QPushButton::clicked, this, &olHistoryView::choose);
    connect(m_list, &QTreeWidget::itemSelectionChanged, this,
            [this] { m_goBack->setEnabled(m_list->currentItem() != nullptr); });
}

void olHistoryView::add(const olStoreRows::Save &save, const olUndo &undo, const PlaceOf &placeOf)
{
    const QDateTime time = QDateTime::fromString(QString::fromStdString(save.time), Qt::ISODateWithMs).toLocalTime();
    const QString when = QLocale().toString(time, QLocale::ShortFormat);
    const auto line = [&](const olStoreRows::Change &change) {
        const std::string &key = change.key.second;
        const auto text = [&](const auto &row) {
            return row ? olShortValueText(key, undo.value(change.key, row)) : tr("default");
        };
        return tr("%1: %2 to %3", "setting, old and new value")
            .arg(placeOf(key), text(change.before), text(change.after));
    };
    const int count = int(save.changes.size());
    auto *item = new QTreeWidgetItem(m_list, {when, QString::fromStdString(save.program),
                                              count == 1 ? line(save.changes.front()) : tr("%1 settings").arg(count)});
    item->setData(0, Qt::UserRole, save.number);
    for (const olStoreRows::Change &change : save.changes) {
        const QString told = line(change);
        if (count == 1)
            item->setToolTip(2, told);
        else
            (new QTreeWidgetItem(item, {QString(), QString(), told}))->setToolTip(2, told);
    }
}

void olHistoryView::choose()
{
    QTreeWidgetItem *item = m_list->currentItem();
    if (!item)
        return;
    if (item->parent())
        item = item->parent();
    const int number = item->data(0, Qt::UserRole).toInt();
    accept();
    emit chosen(number);
}
