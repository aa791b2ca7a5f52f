#pragma once

#include <QApplication>
#include <QEvent>
#include <QMessageBox>
#include <QTimer>

#include <functional>

/// Hands every message box that opens while it lives to a function, which is to close it.
class BoxWatch : public QObject
{
public:
    explicit BoxWatch(std::function<void(QMessageBox &)> answer) : m_answer(std::move(answer))
    {
        qApp->installEventFilter(this);
    }

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        auto *box = event->type() == QEvent::Show ? qobject_cast<QMessageBox *>(watched) : nullptr;
        if (box) {
            ++count;
            QTimer::singleShot(0, box, [this, box] { m_answer(*box); });
        }
        return false;
    }

    int count = 0;

private:
    std::function<void(QMessageBox &)> m_answer;
};
