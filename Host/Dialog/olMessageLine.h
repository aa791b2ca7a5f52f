#pragma once

#include <QFrame>

class QLabel;
class QPushButton;
class QToolButton;

/// One line of the dialog that says what went wrong or what was done. Out of sight while there is nothing to say.
class olMessageLine : public QFrame
{
    Q_OBJECT

public:
    olMessageLine();

    void showError(const QString &text);
    /// With a button of that text where one is given.
    void showNote(const QString &text, const QString &action = {});
    void clear();

    [[nodiscard]] QString text() const;

signals:
    /// By its button; it is out of sight then.
    void closed();

    /// The button of the note was pressed.
    void actionAsked();

protected:
    void changeEvent(QEvent *event) override;

private:
    void show(const QString &text, const QString &action, bool isError);
    void shade();

    QLabel *m_icon;
    QLabel *m_text;
    QPushButton *m_action;
    QToolButton *m_close;
    bool m_isError = false;
};
