#pragma once

#include "olScriptParser.h"

#include <optional>
#include <string>

class QWidget;

/// Does to a control what a user would, with the same signals and within the same bounds. Every function throws
/// olToolError where a user could not, and then has changed nothing.
namespace olControlDriver
{

/// The control's value as scripts print it; empty where it has none, as a button.
[[nodiscard]] std::string value(const QWidget &control);

/// Ticks, chooses, types or sets, whichever is the control's way.
void edit(QWidget &control, const olScriptValue &value);

/// Presses a button.
void click(QWidget &control);

/// Selects in a table or tree as a click would. Rows and columns count from 0, the rows of a tree as they stand one
/// below the other when it is unfolded. Without a column it is the whole row where that can be selected.
void select(QWidget &control, int row, std::optional<int> column);
void selectNothing(QWidget &control);

} // namespace olControlDriver
