#pragma once

#include <QHash>
#include <QObject>
#include <QPointer>
#include <QString>

class QLabel;
class QLineEdit;
class QWidget;

/// Shows the unit of a number within its field, behind the number, where it is no part of the text. The fields are as
/// before when this is destroyed.
class olFieldUnits : public QObject
{
    Q_OBJECT

public:
    ~olFieldUnits() override;

    /// In every field of the control; a control without a field shows none, nor one with a label behind it.
    void show(QWidget &control, const QString &unit);

    /// The same with what the number, a part of one, is in per cent.
    void showShare(QWidget &control);

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void place(QLineEdit &field) const;

    QHash<QLineEdit *, QPointer<QLabel>> m_units;
};
