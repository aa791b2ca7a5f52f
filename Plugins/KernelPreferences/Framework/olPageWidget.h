#pragma once

#include <QWidget>

/// What every page is: a QWidget that aligns its fields before it is shown first.
class olPageWidget : public QWidget
{
    Q_OBJECT

public:
    using QWidget::QWidget;

protected:
    bool event(QEvent *event) override;

private:
    bool m_isAligned = false;
};
