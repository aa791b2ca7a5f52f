#pragma once

#include "Session/olUndo.h"

#include <QDialog>
#include <QString>

#include <functional>
#include <string>

class QPushButton;
class QTreeWidget;

/// Lists the saves of the store, the latest first, each with what it changed, and lets one choose to go back before it.
class olHistoryView : public QDialog
{
    Q_OBJECT

public:
    /// How a person finds a setting.
    using PlaceOf = std::function<QString(const std::string &key)>;

    olHistoryView(const olUndo &undo, const PlaceOf &placeOf, QWidget *parent);

signals:
    /// The save of that number and all later ones are to be taken back. The view closes.
    void chosen(int number);

private:
    void add(const olStoreRows::Save &save, const olUndo &undo, const PlaceOf &placeOf);
    void choose();

    QTreeWidget *m_list;
    QPushButton *m_goBack;
};
