#pragma once

#include "olHostExport.h"

#include <QList>
#include <QString>
#include <QStringList>

#include <vector>

class QWidget;

/// One control of a page as a person sees it.
struct ORLO_HOST_EXPORT olPageControl {
    QWidget *widget = nullptr;

    /// The labels that belong to it, in the order of the form.
    QList<QWidget *> labels;

    /// Its own text, then the texts of its labels; else what it is called for screen readers. A table or tree without
    /// a label bears the caption of its frame, else of its tab. Mnemonics are no part of a name.
    QStringList names;

    /// Captions of the tabs, frames and group boxes around it, outermost first.
    QStringList captions;

    QString toolTip;

    /// The items of a combo box.
    QStringList choices;

    /// Keys of the settings that it edits.
    QStringList settingKeys;

    /// Captions and first name, joined by slashes: what tells it from the page's other controls.
    [[nodiscard]] QString path() const;
};

/// What a control was looked up as: the control, or null and one sentence that says why there is none.
struct olPageControlFound {
    const olPageControl *control = nullptr;
    QString error;
};

/// The controls of one page in the order of its form. A snapshot: it knows nothing of later changes, and is of use only
/// while the page lives.
class ORLO_HOST_EXPORT olPageIndex
{
public:
    explicit olPageIndex(const QWidget &page);

    [[nodiscard]] const std::vector<olPageControl> &controls() const { return m_controls; }

    /// The one control of that name. Where none bears it, the text is taken for a path: captions around the control,
    /// outermost first and not necessarily all, and its name, with slashes between them.
    [[nodiscard]] olPageControlFound find(const QString &text) const;

    /// Whether a person can get to see the control: false where the page hides it by a rule of its own. A tab that is
    /// not in front and a frame that is folded do not count, a tab that was taken out does.
    [[nodiscard]] static bool isShown(const QWidget &page, const QWidget &control);

private:
    std::vector<olPageControl> m_controls;
};
