#include "Dialog/olFoundSettings.h"

#include <QAbstractTableModel>
#include <QApplication>
#include <QContextMenuEvent>
#include <QHeaderView>
#include <QKeyEvent>
#include <QPainter>
#include <QStyledItemDelegate>
#include <QTextLayout>

#include <algorithm>
#include <utility>

class olFoundModel : public QAbstractTableModel
{
public:
    using QAbstractTableModel::QAbstractTableModel;

    void list(int rows, olFoundSettings::TextOf textOf)
    {
        beginResetModel();
        m_rows = rows;
        m_textOf = std::move(textOf);
        endResetModel();
    }

    [[nodiscard]] int rowCount(const QModelIndex &parent) const override { return parent.isValid() ? 0 : m_rows; }
    [[nodiscard]] int columnCount(const QModelIndex &) const override { return olFoundSettings::Columns; }
    [[nodiscard]] QVariant data(const QModelIndex &cell, int role) const override
    {
        if (role != Qt::DisplayRole && role != Qt::ToolTipRole)
            return {};
        return m_textOf(cell.row(), olFoundSettings::Column(cell.column()));
    }
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation, int role) const override
    {
        const QString titles[] = {olFoundSettings::tr("Setting"), olFoundSettings::tr("Where"),
                                  olFoundSettings::tr("Value"), olFoundSettings::tr("Origin")};
        return orientation == Qt::Horizontal && role == Qt::DisplayRole ? titles[section] : QVariant();
    }

private:
    int m_rows = 0;
    olFoundSettings::TextOf m_textOf;
};

namespace
{

// In characters.
constexpr int valueWidth = 18;
constexpr int originWidth = 10;

/// Draws a text with the words that were searched for in bold.
class HitDelegate : public QStyledItemDelegate
{
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    QStringList words;

    void paint(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const override
    {
        QStyleOptionViewItem plain = option;
        initStyleOption(&plain, index);
        const QString text = std::exchange(plain.text, QString());
        const QStyle *style = plain.widget ? plain.widget->style() : QApplication::style();
        style->drawControl(QStyle::CE_ItemViewItem, &plain, painter, plain.widget);

        const int margin = style->pixelMetric(QStyle::PM_FocusFrameHMargin, nullptr, plain.widget) + 1;
        const QRect place = option.rect.adjusted(margin, 0, -margin, 0);
        QTextLayout layout(plain.fontMetrics.elidedText(text, Qt::ElideRight, place.width()), plain.font);
        layout.setFormats(hits(layout.text()));
        layout.beginLayout();
        QTextLine line = layout.createLine();
        layout.endLayout();
        const bool isSelected = option.state & QStyle::State_Selected;
        painter->setPen(plain.palette.color(isSelected ? QPalette::HighlightedText : QPalette::Text));
        painter->save();
        painter->setClipRect(option.rect);
        layout.draw(painter, QPointF(place.left(), place.top() + (place.height() - line.height()) / 2.0));
        painter->restore();
    }

private:
    [[nodiscard]] QVector<QTextLayout::FormatRange> hits(const QString &text) const
    {
        QVector<QTextLayout::FormatRange> ranges;
        QTextCharFormat bold;
        bold.setFontWeight(QFont::Bold);
        bold.setFontUnderline(true);
        for (const QString &word : words) {
            for (int at = text.indexOf(word, 0, Qt::CaseInsensitive); at >= 0;
                 at = text.indexOf(word, at + word.size(), Qt::CaseInsensitive))
                ranges.append({at, word.size(), bold});
        }
        return ranges;
    }
};

} // namespace

olFoundSettings::olFoundSettings() : m_model(new olFoundModel(this))
{
    setModel(m_model);
    setItemDelegateForColumn(Label, new HitDelegate(this));
    setObjectName(QStringLiteral("found"));
    setAccessibleName(tr("Settings found"));
    setRootIsDecorated(false);
    setUniformRowHeights(true);
    setAlternatingRowColors(true);
    // The end of a place tells most.
    setTextElideMode(Qt::ElideMiddle);
    setAllColumnsShowFocus(true);
    header()->setSectionsMovable(false);
    header()->setSectionResizeMode(QHeaderView::Stretch);
    header()->setStretchLastSection(false);
    header()->setSectionResizeMode(Value, QHeaderView::Interactive);
    header()->setSectionResizeMode(Origin, QHeaderView::Interactive);
    header()->resizeSection(Value, fontMetrics().averageCharWidth() * valueWidth);
    header()->resizeSection(Origin, fontMetrics().averageCharWidth() * originWidth);
    connect(this, &QTreeView::clicked, this, [this](const QModelIndex &cell) { emit chosen(cell.row()); });
}

void olFoundSettings::list(int rows, const TextOf &textOf, const QStringList &words)
{
    const int current = currentRow();
    static_cast<HitDelegate *>(itemDelegateForColumn(Label))->words = words;
    m_model->list(rows, textOf);
    if (rows > 0)
        setCurrentIndex(m_model->index(std::clamp(current, 0, rows - 1), 0));
}

int olFoundSettings::currentRow() const { return currentIndex().row(); }

void olFoundSettings::keyPressEvent(QKeyEvent *event)
{
    const bool isEnter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (isEnter && currentRow() >= 0)
        emit chosen(currentRow());
    else
        QTreeView::keyPressEvent(event);
}

void olFoundSettings::contextMenuEvent(QContextMenuEvent *event)
{
    const bool byKey = event->reason() == QContextMenuEvent::Keyboard;
    const QModelIndex cell = byKey ? currentIndex() : indexAt(event->pos());
    if (!cell.isValid())
        return;
    const QPoint place = byKey ? viewport()->mapToGlobal(visualRect(cell).bottomLeft()) : event->globalPos();
    emit menuAsked(cell.row(), place);
}
