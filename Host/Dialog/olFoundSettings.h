#pragma once

#include <QStringList>
#include <QTreeView>

#include <functional>

class olFoundModel;

/// What a search found, as a list of settings with their values. The texts are asked for row by row, as they come into
/// sight.
class olFoundSettings : public QTreeView
{
    Q_OBJECT

public:
    enum Column { Label, Where, Value, Origin, Columns };
    using TextOf = std::function<QString(int row, Column column)>;

    olFoundSettings();

    /// In place of what was listed; the words are marked in the labels. The current row stays where it can.
    void list(int rows, const TextOf &textOf, const QStringList &words);

    /// The first one until another was chosen; -1 where nothing is listed.
    [[nodiscard]] int currentRow() const;

signals:
    /// By Enter or a click.
    void chosen(int row);
    void menuAsked(int row, const QPoint &globalPosition);

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void contextMenuEvent(QContextMenuEvent *event) override;

private:
    olFoundModel *m_model;
};
