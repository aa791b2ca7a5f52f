#pragma once

#include "Editing/olSettingsSearch.h"
#include "olHostExport.h"

#include <QPointer>
#include <QString>
#include <QWidget>

#include <utility>
#include <vector>

/// Lies over a page, out of the way of mouse and keys, and marks controls: a bar before those whose value differs from
/// the default, in pieces while the value is pending, a padlock before those that are locked, a tint behind those that
/// were searched for, and a dot on tabs that hold such.
class ORLO_HOST_EXPORT olSettingMarks : public QWidget
{
    Q_OBJECT

public:
    /// Becomes a child of the page.
    explicit olSettingMarks(QWidget &page);
    ~olSettingMarks() override;

    void setChanged(std::vector<olFoundControl> controls);
    void setPending(std::vector<olFoundControl> controls);
    void setLocked(std::vector<olFoundControl> controls);
    void setHits(std::vector<olFoundControl> controls);

    [[nodiscard]] const std::vector<olFoundControl> &changed() const { return m_changed; }
    [[nodiscard]] const std::vector<olFoundControl> &hits() const { return m_hits; }

    /// What is marked before it at that place of the page; null where nothing is.
    [[nodiscard]] QWidget *markedAt(const QPoint &place) const;

    bool eventFilter(QObject *watched, QEvent *event) override;

signals:
    /// A mark was clicked.
    void clicked(QWidget *control, const QPoint &globalPosition);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    void watch(const std::vector<olFoundControl> &controls);
    void describe(const std::vector<olFoundControl> &controls);
    [[nodiscard]] QRect placeOf(const olFoundControl &control) const;
    void paintHit(QPainter &painter, const olFoundControl &control) const;
    void paintTabs(QPainter &painter, const olFoundControl &control) const;
    [[nodiscard]] QRect barOf(const olFoundControl &control) const;
    [[nodiscard]] QRect padlockOf(const olFoundControl &control) const;
    void paintBar(QPainter &painter, const olFoundControl &control, bool isPending) const;
    void paintPadlock(QPainter &painter, const olFoundControl &control) const;

    std::vector<olFoundControl> m_changed;
    std::vector<olFoundControl> m_pending;
    std::vector<olFoundControl> m_locked;
    std::vector<olFoundControl> m_hits;
    std::vector<std::pair<QPointer<QWidget>, QString>> m_described;
};
