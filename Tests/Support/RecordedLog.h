#pragma once

#include "Utilities/olLog.h"

#include <QString>
#include <QStringList>

/// Collects the host's log while it lives.
class RecordedLog : private olLogObserver
{
public:
    RecordedLog() : m_before(olLog::observe(this)) {}
    ~RecordedLog() override { olLog::observe(m_before); }

    QStringList lines;
    QStringList errors; ///< those of the lines that tell of one

private:
    void logged(olLogLevel level, const QString &text) override
    {
        lines << text;
        if (level == olLogLevel::Error)
            errors << text;
    }

    olLogObserver *m_before;
};
