#pragma once

#include "Utilities/olWithoutMnemonic.h"

#include <QAbstractButton>
#include <QApplication>
#include <QEvent>
#include <QMessageBox>
#include <QStringList>
#include <QTest>
#include <QTimer>
#include <gtest/gtest.h>

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

/// Presses a button of each box, in the order in which they were given, and Escape where the box has no such button.
/// The test fails where fewer boxes open.
class BoxAnswers : public BoxWatch
{
public:
    explicit BoxAnswers(const QStringList &buttons = {})
        : BoxWatch([this](QMessageBox &box) { press(box); }), m_buttons(buttons)
    {
    }
    ~BoxAnswers() override { EXPECT_EQ(m_buttons, QStringList()) << "a question that the test expected never came"; }

    void next(const QString &button) { m_buttons << button; }

private:
    void press(QMessageBox &box)
    {
        if (m_buttons.isEmpty())
            return;
        const QString wanted = m_buttons.takeFirst();
        for (QAbstractButton *button : box.buttons()) {
            if (olWithoutMnemonic(button->text()) == wanted)
                return button->click();
        }
        QTest::keyClick(&box, Qt::Key_Escape);
    }

    QStringList m_buttons;
};
