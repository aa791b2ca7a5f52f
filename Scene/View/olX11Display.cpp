#include "View/olX11Display.h"

#include <QX11Info>

// Alone in its file: the macros of X11 break the headers of most others.
void *olX11Display() { return QX11Info::isPlatformX11() ? QX11Info::display() : nullptr; }
