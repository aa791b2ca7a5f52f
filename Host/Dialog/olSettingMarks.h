#pragma once

#include "Editing/olPendingChanges.h"
#include "Editing/olSettingsSearch.h"
#include "olHostExport.h"

#include <QPointer>
#include <QString>
#include <QWidget>

#include <utility>
#include <vector>

/// Lies over a page, out of the way of mouse and keys, and marks controls: every setting has a mark in its margin that
/// tells its state and can be clicked; those that were searched for have a tint behind them, and tabs that hold such a
/// dot.
class ORLO_HOST_EXPORT olSettingMarks : public QWidget
{
    Q_OBJECT

public:
    struct Mark {
        olFoundControl control;
        olSettingState state;
    };

    /// What is worth knowing of a setting besides its value, in short behind its control.
    struct Remark {
        olFoundControl control;
        QString brief;
    };

    /// Becomes a child of the page.
    explicit olSettingMarks(QWidget &page);
    ~olSettingMarks() override;

    void setMarks(std::vector<Mark> marks);
    void setRemarks(std::vector<Remark> remarks);
    void setHits(std::vector<olFoundControl> controls);

    [[nodiscard]] const std::vector<Mark> &marks() const { return m_marks; }
    [[nodiscard]] const std::vector<olFoundControl> &hits() const { return m_hits; }

    /// What is marked before it at that place of the page; null where nothing is.
    [[nodiscard]] QWidget *markedAt(const QPoint &place) const;

    /// What a state is called, for who cannot see the mark.
    [[nodiscard]] static QString toldState(olSettingState state);

    bool eventFilter(QObject *watched, QEvent *event) override;

signals:
    /// A mark was clicked.
    void clicked(QWidget *control, const QPoint &globalPosition);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    void watch(const olFoundControl &control);
    void describe();
    [[nodiscard]] QRect placeOf(const olFoundControl &control) const;
    [[nodiscard]] QRect marginOf(const olFoundControl &control) const;
    void paintHit(QPainter &painter, const olFoundControl &control) const;
    void paintTabs(QPainter &painter, const olFoundControl &control) const;
    void paintMark(QPainter &painter, const Mark &mark) const;
    void paintRemark(QPainter &painter, const Remark &remark) const;
    void paintPadlock(QPainter &painter, const QRectF &place) const;

    std::vector<Mark> m_marks;
    std::vector<Remark> m_remarks;
    std::vector<olFoundControl> m_hits;
    std::vector<std::pair<QPointer<QWidget>, QString>> m_described;
};
