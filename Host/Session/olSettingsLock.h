#pragma once

class QString;

/// Removes the lock on the application settings that a killed program left: a module writes there when it is applied,
/// and the toolkit would wait for it without end. A lock whose owner lives stays; then the answer is a sentence about
/// it, else an empty text.
[[nodiscard]] QString olRemoveAbandonedLock();
