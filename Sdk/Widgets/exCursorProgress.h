#pragma once

#include "Utilities/olExport.h"

/// The wheel that shows progress at the cursor.
class ORLO_SDK_EXPORT exCursorProgress
{
public:
    /// Where the wheel turns: at the cursor, or in the lower left corner of the view.
    enum Position : int { AtCursor = 0, InCorner = 1 };

    /// Its diameter in pixels.
    static int getBaseSize();
    static void setPreferredSize(int pixels);

    static Position getPreferredPosition();
    static void setPreferredPosition(Position position);

    static bool getPreferredVisibility();
    static void setPreferredVisibility(bool visible);
};
