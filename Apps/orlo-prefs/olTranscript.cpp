#include "olTranscript.h"

#include "State/olValue.h"

#include <QString>

olTranscript::olTranscript(std::FILE *out)
    : m_out(out), m_journalBefore(olJournal::observe(this)), m_logBefore(olLog::observe(this))
{
}

olTranscript::~olTranscript()
{
    olLog::observe(m_logBefore);
    olJournal::observe(m_journalBefore);
}

void olTranscript::print(const std::string &line)
{
    std::fprintf(m_out, "%s\n", line.c_str());
    std::fflush(m_out);
}

void olTranscript::called(const std::string &call) { print("call " + call); }

void olTranscript::logged(olLogLevel level, const QString &text)
{
    if (level == olLogLevel::Error)
        print("log error " + olValue::quoted(text.toStdString()));
}
