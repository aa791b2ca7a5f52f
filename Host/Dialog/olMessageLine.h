#pragma once

#include <QFrame>

class QLabel;
class QToolButton;

/// One line of the dialog that says what went wrong or what was done. Out of sight while there is nothing to say.
class olMessageLine : public QFrame
{
    Q_OBJECT

public:
    olMessageLine();

    void showError(const QString &text);
    void showNote(const QString &text);
    void clear();

    [[nodiscard]] QString text() const;

signals:
    /// By its button; it is out of sight then.
    void closed();

private:
    void show(const QString &text, bool isError);

    QLabel *m_icon;
    QLabel *m_text;
    QToolButton *m_close;
};
