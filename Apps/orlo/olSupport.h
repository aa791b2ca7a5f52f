#pragma once

#include "Utilities/olLog.h"

#include <QString>
#include <QStringList>

class olPreferencesSession;

/// Keeps the end of the host's log, and passes it on to the standard error stream.
class olLogTail : public olLogObserver
{
public:
    olLogTail();
    ~olLogTail() override;
    olLogTail(const olLogTail &) = delete;
    olLogTail &operator=(const olLogTail &) = delete;

    void logged(olLogLevel level, const QString &text) override;

    [[nodiscard]] const QStringList &lines() const { return m_lines; }

private:
    olLogObserver *m_before;
    QStringList m_lines;
};

/// What somebody who is to help wants to know: versions, the settings that differ from their defaults, and the end of
/// the log. Of a setting that may be a secret it says only that it was changed.
[[nodiscard]] QString olSupportInformation(const olPreferencesSession &session, const olLogTail &log);
