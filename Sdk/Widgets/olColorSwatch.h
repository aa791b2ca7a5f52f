#pragma once

#include <QColor>
#include <QPushButton>

/// A button that shows a colour.
class olColorSwatch : public QPushButton
{
    Q_OBJECT

public:
    explicit olColorSwatch(QWidget *parent = nullptr);

    void setColor(const QColor &color);

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QColor m_color = Qt::black;
};
