#pragma once

#include <QtCore/qnamespace.h>

/// What a mouse button means in the view, in each of the interaction styles.
namespace olMouseStyle
{

enum class Action { None, Orbit, Pan, Dolly };

/// The style is the host's interaction mode: 0, 1 or 2; any other counts as 0.
[[nodiscard]] Action actionFor(int style, Qt::MouseButtons buttons, Qt::KeyboardModifiers modifiers);

} // namespace olMouseStyle
