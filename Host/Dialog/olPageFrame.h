#pragma once

#include "Dialog/olFieldUnits.h"
#include "Dialog/olWheelGuard.h"
#include "Editing/olSettingLocks.h"

#include <QPointer>
#include <QScrollArea>

#include <vector>

class olPreferencesEntry;
class olSettingMarks;

/// A module's page on loan to the dialog: it scrolls, bears marks, and its wheel turns and locks are seen to. When the
/// frame goes the page is as it came.
class olPageFrame : public QScrollArea
{
    Q_OBJECT

public:
    explicit olPageFrame(QWidget &page);
    ~olPageFrame() override;

    [[nodiscard]] QWidget *page() const { return m_page; }
    [[nodiscard]] olSettingMarks &marks() const { return *m_marks; }

    /// Locks the control, and whatever else on the page is there to write to it: a button beside a table, a slider over
    /// three fields. Such a companion names its controls in the property "olCompanionOf".
    void lock(const olFoundControl &control, const QString &reason);

    /// What there is to see of these controls' settings: units in their fields, and when the values take effect.
    void tell(const olPreferencesEntry &entry, const std::vector<olFoundControl> &controls);

    /// What holds for the whole page, one sentence for its head; empty where there is nothing to say.
    [[nodiscard]] const QString &note() const { return m_note; }

    /// Brings the control into sight: its tab to the front, its frames unfolded, scrolled to.
    void reveal(const olFoundControl &control);

    /// In which the page need not be scrolled sideways, in pixels.
    [[nodiscard]] int pageWidth() const;

    /// A page never asks the dialog for more room than it can scroll in.
    [[nodiscard]] QSize minimumSizeHint() const override;

private:
    void showFromTheLeft(const olFoundControl &control);

    QPointer<QWidget> m_page;
    olSettingMarks *m_marks;
    QString m_note;
    olWheelGuard m_wheelGuard;
    olSettingLocks m_locks;
    olFieldUnits m_units;
};
