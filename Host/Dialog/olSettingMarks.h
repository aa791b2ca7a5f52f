#pragma once

#include "Editing/olSettingsSearch.h"
#include "olHostExport.h"

#include <QPointer>
#include <QString>
#include <QWidget>

#include <utility>
#include <vector>

/// Lies over a page, out of the way of mouse and keys, and marks controls: a small bar before those whose value differs
/// from the default, a tint behind those that were searched for, and a dot on tabs that hold such.
class ORLO_HOST_EXPORT olSettingMarks : public QWidget
{
    Q_OBJECT

public:
    /// Becomes a child of the page.
    explicit olSettingMarks(QWidget &page);
    ~olSettingMarks() override;

    void setChanged(std::vector<olFoundControl> controls);
    void setHits(std::vector<olFoundControl> controls);

    [[nodiscard]] const std::vector<olFoundControl> &changed() const { return m_changed; }
    [[nodiscard]] const std::vector<olFoundControl> &hits() const { return m_hits; }

    bool eventFilter(QObject *watched, QEvent *event) override;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    void watch(const std::vector<olFoundControl> &controls);
    void describe(const std::vector<olFoundControl> &controls);
    [[nodiscard]] QRect placeOf(const olFoundControl &control) const;
    void paintHit(QPainter &painter, const olFoundControl &control) const;
    void paintTabs(QPainter &painter, const olFoundControl &control) const;
    void paintChanged(QPainter &painter, const olFoundControl &control) const;

    std::vector<olFoundControl> m_changed;
    std::vector<olFoundControl> m_hits;
    std::vector<std::pair<QPointer<QWidget>, QString>> m_described;
};
