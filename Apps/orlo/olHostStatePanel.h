#pragma once

#include "State/olHostValue.h"

#include <QWidget>

class QLineEdit;
class QTreeWidget;
class QTreeWidgetItem;

/// Shows every value of the host's state, and marks what changed since the panel was last cleared of its marks.
class olHostStatePanel : public QWidget, private olHostObserver
{
    Q_OBJECT

public:
    explicit olHostStatePanel(QWidget *parent = nullptr);
    ~olHostStatePanel() override;

private:
    void stateChanged(const olHostValueBase &value) override;
    void fill();
    void filter(const QString &text);

    QLineEdit *m_filter;
    QTreeWidget *m_values;
};
