#pragma once

#include "Framework/olPageWidget.h"

/// Shows on a page how a wireframe of a colour will look in the view.
class olWireframePreview : public olPageWidget
{
    Q_OBJECT

public:
    explicit olWireframePreview(QWidget *parent = nullptr);

    void setColor(const QColor &color);
    [[nodiscard]] QColor color() const { return m_color; }

    [[nodiscard]] QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent *) override;

private:
    QColor m_color = Qt::black;
};
