#pragma once

#include <QWidget>

/// The wheel that shows how far a still frame has come, as large and at the place that the host's state says.
class olProgressWheel : public QWidget
{
    Q_OBJECT

public:
    explicit olProgressWheel(QWidget &view);

    /// From 0 to 1; hidden once it is complete, and where the host does not want it.
    void setProgress(double progress);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    void place();

    QWidget &m_view;
    double m_progress = 1.0;
};
