#pragma once

#include <QObject>

class QWidget;

/// Keeps the wheel from changing what the pointer happens to pass over: controls of a page turn only while they have
/// the focus, and are no longer given it by the wheel. Everything else scrolls the page.
class olWheelGuard : public QObject
{
    Q_OBJECT

public:
    /// Ends when the guard is destroyed. It may be a child of the page.
    explicit olWheelGuard(QWidget &page);

    bool eventFilter(QObject *watched, QEvent *event) override;
};
