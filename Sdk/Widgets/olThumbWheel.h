#pragma once

#include <QWidget>

/// The rim of a ribbed wheel that one turns by dragging or with the arrow keys. It knows no number, only turns.
class olThumbWheel : public QWidget
{
    Q_OBJECT

public:
    explicit olThumbWheel(QWidget *parent = nullptr);

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

Q_SIGNALS:
    /// A turn begins.
    void grabbed();

    /// Turned on by that many steps since the last report, backwards where negative. Shift makes a tenth of a turn,
    /// Ctrl ten times as much.
    void turned(double steps);

protected:
    void paintEvent(QPaintEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;

private:
    void turnBy(double pixels, Qt::KeyboardModifiers modifiers);
    [[nodiscard]] double pixelsPerStep() const;
    void paintRibs(QPainter &painter, const QRectF &rim) const;

    double m_angle = 0.0;
    double m_lastX = 0.0;
};
