#include "olSupport.h"

#include "Session/olPreferencesFile.h"
#include "Session/olPreferencesSession.h"
#include "State/olEdition.h"
#include "State/olHostState.h"
#include "State/olListed.h"
#include "State/olPreferencesEntry.h"
#include "State/olValue.h"
#include "olHostSettings.h"

#include <QCoreApplication>
#include <QSysInfo>

#include <Standard_Version.hxx>

#include <cstdio>

namespace
{

struct Words {
    Q_DECLARE_TR_FUNCTIONS(olSupport)
};

constexpr int mostLines = 100;

} // namespace

olLogTail::olLogTail() : m_before(olLog::observe(this)) {}

olLogTail::~olLogTail() { olLog::observe(m_before); }

void olLogTail::logged(olLogLevel level, const QString &text)
{
    const QString line = QLatin1String(level == olLogLevel::Error ? "error: " : "info: ") + text;
    std::fprintf(stderr, "%s\n", line.toLocal8Bit().constData());
    m_lines << line;
    if (m_lines.size() > mostLines)
        m_lines.removeFirst();
}

QString olSupportInformation(const olPreferencesSession &session, const olLogTail &log)
{
    olSettingValues changed;
    QStringList secrets;
    for (const std::string &key : olPreferencesSession::keys()) {
        const boost::any now = olPreferencesSession::moduleOf(key)->value(key);
        if (now.empty() || olValue::equal(now, session.defaultValue(key)))
            continue;
        if (olHostSettings::isConfidential(key))
            secrets << QString::fromStdString(key);
        else
            changed[key] = now;
    }
    QStringList lines{
        Words::tr("orlo %1, edition %2")
            .arg(QCoreApplication::applicationVersion(), olEditionName(olHostState::the().edition)),
        QStringLiteral("Qt %1, OpenCASCADE %2").arg(QLatin1String(qVersion()), QLatin1String(OCC_VERSION_COMPLETE)),
        QStringLiteral("%1, %2").arg(QSysInfo::prettyProductName(), QSysInfo::currentCpuArchitecture()),
        QString(),
        Words::tr("Changed settings:"),
        QString::fromUtf8(olPreferencesFile::toJson(changed)).trimmed()};
    if (!secrets.isEmpty())
        lines << Words::tr("Changed and left out: %1").arg(olListed(secrets));
    lines << QString() << Words::tr("End of the log:") << log.lines();
    return lines.join(QLatin1Char('\n')) + QLatin1Char('\n');
}
