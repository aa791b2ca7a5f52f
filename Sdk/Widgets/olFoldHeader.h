#pragma once

#include <QAbstractButton>

/// The header of a collapsible frame: a flat button that a click, Space and Enter toggle, and that the arrow keys fold
/// and unfold.
class olFoldHeader : public QAbstractButton
{
    Q_OBJECT

public:
    explicit olFoldHeader(QWidget *parent);

    void showState(const QString &caption, bool folded);

    [[nodiscard]] QSize sizeHint() const override;

Q_SIGNALS:
    void foldAsked(bool folded);

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    [[nodiscard]] int padding() const;
    [[nodiscard]] QRect arrowRect() const;
    [[nodiscard]] QRect textRect() const;

    QString m_caption;
    bool m_folded = false;
};
