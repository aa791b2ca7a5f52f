#pragma once

#include <QVariant>
#include <QWidget>

/// What every page is: a QWidget that aligns its fields before it is shown first. The functions below do what those of
/// QWidget do and stand here for the sake of loading, as those of olModule do: a page inherits some fifty.
class olPageWidget : public QWidget
{
    Q_OBJECT

public:
    using QWidget::QWidget;
    ~olPageWidget() override;

    [[nodiscard]] int devType() const override { return QWidget::devType(); }
    [[nodiscard]] QPaintEngine *paintEngine() const override { return QWidget::paintEngine(); }
    [[nodiscard]] QSize sizeHint() const override { return QWidget::sizeHint(); }
    [[nodiscard]] QSize minimumSizeHint() const override { return QWidget::minimumSizeHint(); }
    [[nodiscard]] int heightForWidth(int width) const override { return QWidget::heightForWidth(width); }
    [[nodiscard]] bool hasHeightForWidth() const override { return QWidget::hasHeightForWidth(); }
    [[nodiscard]] QVariant inputMethodQuery(Qt::InputMethodQuery query) const override
    {
        return QWidget::inputMethodQuery(query);
    }
    void setVisible(bool visible) override { QWidget::setVisible(visible); }
    bool eventFilter(QObject *watched, QEvent *event) override { return QWidget::eventFilter(watched, event); }

protected:
    bool event(QEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override { QWidget::mousePressEvent(event); }
    void mouseReleaseEvent(QMouseEvent *event) override { QWidget::mouseReleaseEvent(event); }
    void mouseDoubleClickEvent(QMouseEvent *event) override { QWidget::mouseDoubleClickEvent(event); }
    void mouseMoveEvent(QMouseEvent *event) override { QWidget::mouseMoveEvent(event); }
    void wheelEvent(QWheelEvent *event) override { QWidget::wheelEvent(event); }
    void keyPressEvent(QKeyEvent *event) override { QWidget::keyPressEvent(event); }
    void keyReleaseEvent(QKeyEvent *event) override { QWidget::keyReleaseEvent(event); }
    void focusInEvent(QFocusEvent *event) override { QWidget::focusInEvent(event); }
    void focusOutEvent(QFocusEvent *event) override { QWidget::focusOutEvent(event); }
    void enterEvent(QEvent *event) override { QWidget::enterEvent(event); }
    void leaveEvent(QEvent *event) override { QWidget::leaveEvent(event); }
    void paintEvent(QPaintEvent *event) override { QWidget::paintEvent(event); }
    void moveEvent(QMoveEvent *event) override { QWidget::moveEvent(event); }
    void resizeEvent(QResizeEvent *event) override { QWidget::resizeEvent(event); }
    void closeEvent(QCloseEvent *event) override { QWidget::closeEvent(event); }
    void contextMenuEvent(QContextMenuEvent *event) override { QWidget::contextMenuEvent(event); }
    void tabletEvent(QTabletEvent *event) override { QWidget::tabletEvent(event); }
    void actionEvent(QActionEvent *event) override { QWidget::actionEvent(event); }
    void dragEnterEvent(QDragEnterEvent *event) override { QWidget::dragEnterEvent(event); }
    void dragMoveEvent(QDragMoveEvent *event) override { QWidget::dragMoveEvent(event); }
    void dragLeaveEvent(QDragLeaveEvent *event) override { QWidget::dragLeaveEvent(event); }
    void dropEvent(QDropEvent *event) override { QWidget::dropEvent(event); }
    void showEvent(QShowEvent *event) override { QWidget::showEvent(event); }
    void hideEvent(QHideEvent *event) override { QWidget::hideEvent(event); }
    void changeEvent(QEvent *event) override { QWidget::changeEvent(event); }
    void inputMethodEvent(QInputMethodEvent *event) override { QWidget::inputMethodEvent(event); }
    bool nativeEvent(const QByteArray &type, void *message, long *result) override
    {
        return QWidget::nativeEvent(type, message, result);
    }
    bool focusNextPrevChild(bool next) override { return QWidget::focusNextPrevChild(next); }

    [[nodiscard]] int metric(PaintDeviceMetric metric) const override { return QWidget::metric(metric); }
    void initPainter(QPainter *painter) const override { QWidget::initPainter(painter); }
    QPaintDevice *redirected(QPoint *offset) const override { return QWidget::redirected(offset); }
    [[nodiscard]] QPainter *sharedPainter() const override { return QWidget::sharedPainter(); }

    void timerEvent(QTimerEvent *event) override { QWidget::timerEvent(event); }
    void childEvent(QChildEvent *event) override { QWidget::childEvent(event); }
    void customEvent(QEvent *event) override { QWidget::customEvent(event); }
    void connectNotify(const QMetaMethod &signal) override { QWidget::connectNotify(signal); }
    void disconnectNotify(const QMetaMethod &signal) override { QWidget::disconnectNotify(signal); }

private:
    bool m_isAligned = false;
};
