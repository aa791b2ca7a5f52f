#pragma once

#include <QStringList>

class QWidget;

/// What a person would see go wrong in a window as it stands, one line each.
namespace FormFaults
{

/// Texts that have less room than they need and cannot be read otherwise.
QStringList clipped(const QWidget &window);

/// Texts with letters that no font has.
QStringList withoutLetters(const QWidget &window);

/// Of a window in an East Asian language, texts that have none of its letters, but words, and name no file.
QStringList english(const QWidget &window);

/// Widgets beyond the edge of their parent, without any size, or over one another.
QStringList misplaced(const QWidget &window);

/// What the Tab key does not come to on the page, and where it jumps against the order of reading. Takes the focus.
QStringList unreached(QWidget &window, const QWidget &page);

/// Widgets that do not stand where a mirror would show them when the direction of reading turns.
QStringList unmirrored(QWidget &window);

} // namespace FormFaults
