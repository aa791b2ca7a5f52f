#include "Viewer/olBackgroundTable.h"

#include <QHeaderView>
#include <QPainter>
#include <QStyledItemDelegate>
#include <QTableWidget>
#include <qdrawutil.h>

namespace
{

enum Column { ColorColumn, PositionColumn };

// Texts of the cells; a colour that came from such a text goes back into the same one.
QString colorText(const osg::Color3f &color)
{
    return QString::asprintf("%f %f %f", double(color.red()), double(color.green()), double(color.blue()));
}

QString positionText(float position) { return QString::number(double(position), 'g', 6); }

/// What is no number counts as 0, and so does a channel that is missing.
osg::Color3f colorFromText(const QString &text)
{
    const QStringList channels = text.split(QLatin1Char(' '), Qt::SkipEmptyParts);
    return {channels.value(0).toFloat(), channels.value(1).toFloat(), channels.value(2).toFloat()};
}

/// Puts a swatch of the colour before its numbers.
class SwatchDelegate : public QStyledItemDelegate
{
public:
    using QStyledItemDelegate::QStyledItemDelegate;

protected:
    void initStyleOption(QStyleOptionViewItem *option, const QModelIndex &index) const override
    {
        QStyledItemDelegate::initStyleOption(option, index);
        option->features |= QStyleOptionViewItem::HasDecoration;
        option->icon =
            swatch(colorFromText(option->text), option->decorationSize, option->palette.color(QPalette::Text));
    }

private:
    static QIcon swatch(const osg::Color3f &color, const QSize &size, const QColor &border)
    {
        const auto channel = [](float value) { return qBound(0.0f, value, 1.0f); };
        QPixmap pixmap(size);
        pixmap.fill(QColor::fromRgbF(channel(color.red()), channel(color.green()), channel(color.blue())));
        QPainter painter(&pixmap);
        qDrawPlainRect(&painter, pixmap.rect(), border);
        return QIcon(pixmap);
    }
};

} // namespace

void olBackgroundTable::setUp()
{
    m_table.setColumnCount(2);
    m_table.setHorizontalHeaderLabels({tr("Color"), tr("Position")});
    m_table.horizontalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
    m_table.horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    m_table.setSelectionBehavior(QAbstractItemView::SelectRows);
    // Tab would go round the cells for ever; the arrow keys are enough for them.
    m_table.setTabKeyNavigation(false);
    m_table.setItemDelegateForColumn(ColorColumn, new SwatchDelegate(&m_table)); // owned by the table
}

void olBackgroundTable::setColors(const std::vector<osg::Color3f> &colors)
{
    m_table.setRowCount(int(colors.size()));
    for (int row = 0; row < m_table.rowCount(); ++row) {
        setColor(row, colors[size_t(row)]);
        if (!m_table.item(row, PositionColumn))
            setText(row, PositionColumn, positionText(0.0f));
    }
}

std::vector<osg::Color3f> olBackgroundTable::colors() const
{
    std::vector<osg::Color3f> colors;
    colors.reserve(size_t(m_table.rowCount()));
    for (int row = 0; row < m_table.rowCount(); ++row)
        colors.push_back(color(row));
    return colors;
}

void olBackgroundTable::setPositions(const std::vector<float> &positions)
{
    for (int row = 0; row < m_table.rowCount(); ++row) {
        const float position = size_t(row) < positions.size() ? positions[size_t(row)] : 0.0f;
        setText(row, PositionColumn, positionText(position));
    }
}

std::vector<float> olBackgroundTable::positions() const
{
    std::vector<float> positions;
    positions.reserve(size_t(m_table.rowCount()));
    for (int row = 0; row < m_table.rowCount(); ++row)
        positions.push_back(text(row, PositionColumn).toFloat());
    return positions;
}

std::optional<int> olBackgroundTable::selectedRow() const
{
    const QList<QTableWidgetItem *> selected = m_table.selectedItems();
    return selected.isEmpty() ? std::nullopt : std::optional<int>(selected.first()->row());
}

osg::Color3f olBackgroundTable::color(int row) const { return colorFromText(text(row, ColorColumn)); }

void olBackgroundTable::setColor(int row, const osg::Color3f &color) { setText(row, ColorColumn, colorText(color)); }

void olBackgroundTable::addRow()
{
    const auto selected = selectedRow();
    const int row = selected ? *selected + 1 : m_table.rowCount();
    m_table.insertRow(row);
    setText(row, ColorColumn, QString::fromLatin1("0.0 0.0 0.0"));
    setText(row, PositionColumn, QString::fromLatin1("0.0"));
}

void olBackgroundTable::deleteRow()
{
    if (const auto row = selectedRow())
        m_table.removeRow(*row);
}

QString olBackgroundTable::text(int row, int column) const
{
    const QTableWidgetItem *cell = m_table.item(row, column);
    return cell ? cell->text() : QString();
}

void olBackgroundTable::setText(int row, int column, const QString &text)
{
    if (QTableWidgetItem *cell = m_table.item(row, column))
        cell->setText(text);
    else
        m_table.setItem(row, column, new QTableWidgetItem(text)); // owned by the table
}
