#pragma once

#include <QString>

class QWidget;

/// What a person chose to do about a start that went wrong.
struct olStartRemedy {
    enum Kind { Quit, OtherFile, DefaultsForThisRun };

    Kind kind = Quit;
    QString file; ///< for another one
};

/// Says in a window of its own what is wrong with the store or with the plug-in, and asks what to do. Also where the
/// program was started from an icon, and nobody reads what it prints.
[[nodiscard]] olStartRemedy olAskAboutStore(const QString &fault);
[[nodiscard]] olStartRemedy olAskAboutPlugin(const QString &fault);
