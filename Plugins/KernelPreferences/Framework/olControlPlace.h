#pragma once

#include <QString>
#include <QStringList>

class QWidget;

/// Where a person finds a control.
struct olControlPlace {
    /// Its own text, else that of the label that belongs to it, else what it is called for screen readers; a table or
    /// tree without a label bears the caption of its frame, else of its tab. Without the marks of mnemonics.
    QString label;

    /// Captions of the tabs, frames and group boxes around it, outermost first.
    QStringList captions;

    [[nodiscard]] static olControlPlace of(const QWidget &control);
};
