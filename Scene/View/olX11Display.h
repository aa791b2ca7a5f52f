#pragma once

/// Qt's own connection to the X server; null where Qt runs on something else.
[[nodiscard]] void *olX11Display();
