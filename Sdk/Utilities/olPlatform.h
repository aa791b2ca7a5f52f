#pragma once

#include "Utilities/olExport.h"

#include <QIcon>
#include <QString>

/// The application and the desktop it runs on.
class ORLO_SDK_EXPORT olPlatform
{
public:
    /// Where the application's data is installed, without a separator at the end.
    static QString getDataDir();

    /// The name of the application, as programs see it: `orlo`.
    static QString getAppName();

    /// The name with its version, as people see it; it titles message boxes.
    static QString getAppVersionName();

    /// What sizes in pixels are multiplied by on the primary screen; 1 at 96 dots per inch, and where there is no
    /// screen.
    static float getDpiScaleX();
    static float getDpiScaleY();

    /// Size of a tool button's icon on this screen, in pixels.
    static int getMediumIconSizeX();
    static int getMediumIconSizeY();

    /// An icon of the host by its name (`FileOpen`), from the desktop's theme or else from the widget style. Never
    /// null: an unknown name gets the icon of a file.
    static QIcon getIcon(const QString &name);
};
