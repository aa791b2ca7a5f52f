#pragma once

#include <OpenSG/OSGColor.h>

#include <QCoreApplication>

#include <optional>
#include <vector>

class QTableWidget;

/// The background gradient in a table of a page: a row is a colour and its position, both as texts that can be typed
/// over. Made where it is needed; all that it knows stands in the table.
class olBackgroundTable
{
    Q_DECLARE_TR_FUNCTIONS(olBackgroundTable)

public:
    explicit olBackgroundTable(QTableWidget &table) : m_table(table) {}

    /// Gives the table its columns, once.
    void setUp();

    /// One row a colour. Rows that stay keep their position, new ones get 0.
    void setColors(const std::vector<osg::Color3f> &colors);
    [[nodiscard]] std::vector<osg::Color3f> colors() const;

    /// The positions of the rows that there are: a row without one gets 0, what is left over is dropped.
    void setPositions(const std::vector<float> &positions);
    [[nodiscard]] std::vector<float> positions() const;

    /// The row of the first selected item.
    [[nodiscard]] std::optional<int> selectedRow() const;

    [[nodiscard]] osg::Color3f color(int row) const;
    void setColor(int row, const osg::Color3f &color);

    /// Black at 0, below the selected row or else at the end.
    void addRow();

    /// The selected row, one at a time; nothing where none is selected.
    void deleteRow();

private:
    [[nodiscard]] QString text(int row, int column) const;
    void setText(int row, int column, const QString &text);

    QTableWidget &m_table;
};

// Both settings of the gradient stand in the one table, each in its column.

struct olBackgroundColors {
    QTableWidget *widget;
};
inline void showOn(const olBackgroundColors &column, const std::vector<osg::Color3f> &colors)
{
    olBackgroundTable(*column.widget).setColors(colors);
}
inline void takeFrom(const olBackgroundColors &column, std::vector<osg::Color3f> &colors)
{
    colors = olBackgroundTable(*column.widget).colors();
}

struct olBackgroundPositions {
    QTableWidget *widget;
};
inline void showOn(const olBackgroundPositions &column, const std::vector<float> &positions)
{
    olBackgroundTable(*column.widget).setPositions(positions);
}
inline void takeFrom(const olBackgroundPositions &column, std::vector<float> &positions)
{
    positions = olBackgroundTable(*column.widget).positions();
}
