#pragma once

#include "Session/olUndo.h"

#include <QDialog>

#include <cstddef>

class QPushButton;
class QTreeWidget;

/// Lists the saves of the store, the latest first, each with what it changed, and lets one choose to go back before it.
class olHistoryView : public QDialog
{
    Q_OBJECT

public:
    olHistoryView(const olStoreRows::History &history, QWidget *parent);

signals:
    /// That many saves, counted from the latest, are to be taken back. The view closes.
    void chosen(std::size_t saves);

private:
    void add(const olStoreRows::Save &save);
    void choose();

    QTreeWidget *m_list;
    QPushButton *m_goBack;
};
