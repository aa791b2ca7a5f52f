#pragma once

#include "Utilities/olExport.h"

class QString;

enum class olLogLevel { Info, Error };

/// Is told every line of the host's log.
class ORLO_SDK_EXPORT olLogObserver
{
public:
    virtual ~olLogObserver();
    virtual void logged(olLogLevel level, const QString &text) = 0;
};

/// The host's log. Without an observer its lines go to the standard error stream, each after its level. To be used on
/// the GUI thread.
class ORLO_SDK_EXPORT olLog
{
public:
    static void error(const QString &text);
    static void info(const QString &text);

    /// The observer takes the place of the standard error stream and must outlive its time in office; null ends it.
    /// Returns the one before.
    static olLogObserver *observe(olLogObserver *observer);
};
