#pragma once

#include "State/olJournal.h"
#include "Utilities/olLog.h"

#include <cstdio>
#include <string>

/// What a script prints, line by line and at once, so that it stands in order with what goes to the standard error
/// stream. While it lives, host calls and errors of the host's log are lines too.
class olTranscript : private olJournalObserver, private olLogObserver
{
public:
    explicit olTranscript(std::FILE *out);
    ~olTranscript() override;
    olTranscript(const olTranscript &) = delete;
    olTranscript &operator=(const olTranscript &) = delete;

    void print(const std::string &line);

private:
    void called(const std::string &call) override;
    void logged(olLogLevel level, const QString &text) override;

    std::FILE *m_out;
    olJournalObserver *m_journalBefore;
    olLogObserver *m_logBefore;
};
