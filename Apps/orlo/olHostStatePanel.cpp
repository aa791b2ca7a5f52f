#include "olHostStatePanel.h"

#include "State/olHostState.h"
#include "State/olValue.h"

#include <QLineEdit>
#include <QTreeWidget>
#include <QVBoxLayout>

namespace
{

enum Column { NameColumn, ValueColumn };

QString valueText(const olHostValueBase &value)
{
    const QString text = QString::fromStdString(olValue::toJson(value.any()));
    return value.isRecordedOnly() ? olHostStatePanel::tr("%1 (only recorded)").arg(text) : text;
}

} // namespace

olHostStatePanel::olHostStatePanel(QWidget *parent)
    : QWidget(parent), m_filter(new QLineEdit), m_values(new QTreeWidget)
{
    m_values->setAccessibleName(tr("Host state"));
    m_filter->setPlaceholderText(tr("Filter"));
    m_filter->setAccessibleName(tr("Filter the host state"));
    m_filter->setClearButtonEnabled(true);
    m_values->setHeaderLabels({tr("Name"), tr("Value")});
    m_values->setRootIsDecorated(false);
    m_values->setAlternatingRowColors(true);
    m_values->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_values->setColumnWidth(NameColumn, fontMetrics().averageCharWidth() * 22);

    auto *layout = new QVBoxLayout(this);
    layout->addWidget(m_filter);
    layout->addWidget(m_values, 1);

    connect(m_filter, &QLineEdit::textChanged, this, &olHostStatePanel::filter);
    fill();
    olHostState::the().addObserver(*this);
}

olHostStatePanel::~olHostStatePanel() { olHostState::the().removeObserver(*this); }

void olHostStatePanel::fill()
{
    for (const olHostValueBase *value : olHostState::the().values()) {
        auto *item = new QTreeWidgetItem(m_values);
        item->setText(NameColumn, QString::fromLatin1(value->name()));
        item->setToolTip(NameColumn, item->text(NameColumn));
        item->setText(ValueColumn, valueText(*value));
        item->setToolTip(ValueColumn, item->text(ValueColumn));
    }
}

void olHostStatePanel::stateChanged(const olHostValueBase &value)
{
    const auto items = m_values->findItems(QString::fromLatin1(value.name()), Qt::MatchExactly, NameColumn);
    const QString text = valueText(value);
    for (QTreeWidgetItem *item : items) {
        if (item->text(ValueColumn) == text)
            continue;
        item->setText(ValueColumn, text);
        item->setToolTip(ValueColumn, text);
        QFont bold = item->font(ValueColumn);
        bold.setBold(true);
        item->setFont(ValueColumn, bold);
        m_values->scrollToItem(item);
    }
}

void olHostStatePanel::filter(const QString &text)
{
    for (int row = 0; row < m_values->topLevelItemCount(); ++row) {
        QTreeWidgetItem *item = m_values->topLevelItem(row);
        item->setHidden(!item->text(NameColumn).contains(text, Qt::CaseInsensitive));
    }
}
