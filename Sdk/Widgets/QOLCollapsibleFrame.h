#pragma once

#include "Utilities/olExport.h"

#include <QFrame>

class olFoldHeader;

/// A captioned group of a page that folds away under its header. Forms put children and layout directly into it. A
/// folded frame clips its content and keeps Tab out of it; whether the content is hidden or enabled stays the page's.
/// Whether it is folded is remembered until the program ends.
class ORLO_SDK_EXPORT QOLCollapsibleFrame : public QFrame
{
    Q_OBJECT
    Q_PROPERTY(QString caption READ caption WRITE setCaption)
    Q_PROPERTY(bool folded READ isFolded WRITE setFolded NOTIFY toggled)

public:
    explicit QOLCollapsibleFrame(QWidget *parent = nullptr);

    /// Shown as it is: an ampersand makes no mnemonic.
    void setCaption(const QString &caption);
    [[nodiscard]] QString caption() const { return m_caption; }

    /// A focus inside moves to the header. From the first showing on, the state is remembered for frames of the same
    /// place on the same page.
    void setFolded(bool folded);
    [[nodiscard]] bool isFolded() const { return m_folded; }

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;
    [[nodiscard]] bool hasHeightForWidth() const override;
    [[nodiscard]] int heightForWidth(int width) const override;

    bool eventFilter(QObject *watched, QEvent *event) override;

Q_SIGNALS:
    void toggled(bool folded);

protected:
    bool event(QEvent *event) override;
    void changeEvent(QEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void showEvent(QShowEvent *event) override;

private:
    [[nodiscard]] bool isContent(const QWidget *widget) const;
    [[nodiscard]] QString place() const;
    [[nodiscard]] QSize boundedHint(QSize content) const;
    void recallState();
    void limitHeight();
    void placeHeader();
    void updateHeader();
    void putHeaderFirstInTabOrder();

    olFoldHeader *m_header;
    QString m_caption;
    bool m_folded = false;
    bool m_recalled = false;
    int m_unfoldedMinimum = 0;
    int m_unfoldedMaximum = QWIDGETSIZE_MAX;
};
