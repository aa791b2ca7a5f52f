#include "Utilities/olLog.h"

#include <QString>

#include <cstdio>
#include <utility>

namespace
{

olLogObserver *currentObserver = nullptr;

void log(olLogLevel level, const QString &text)
{
    if (currentObserver) {
        currentObserver->logged(level, text);
        return;
    }
    const char *name = level == olLogLevel::Error ? "error" : "info";
    std::fprintf(stderr, "%s: %s\n", name, text.toLocal8Bit().constData());
}

} // namespace

olLogObserver::~olLogObserver() = default;

void olLog::error(const QString &text) { log(olLogLevel::Error, text); }

void olLog::info(const QString &text) { log(olLogLevel::Info, text); }

olLogObserver *olLog::observe(olLogObserver *observer) { return std::exchange(currentObserver, observer); }
