#include "olPrefsTool.h"

#include "State/olHostState.h"
#include "olPrefsCommands.h"
#include "olToolError.h"

#include <cerrno>
#include <cstdio>
#include <cstring>

namespace
{

/// A script shows the modules as they are, at whatever site it runs; another site's file is judged by itself.
QStringList siteFiles(const olPrefsOptions &options)
{
    const bool isAnywhere = options.command == QLatin1String("script") ||
                            (options.command == QLatin1String("check") && !options.arguments.isEmpty());
    return isAnywhere ? QStringList() : olSiteDefaults::systemFiles();
}

} // namespace

olPrefsTool::olPrefsTool(const olPrefsOptions &options)
    : m_options(options),
      m_session(options.store.isEmpty() ? olPreferencesStore::userFile() : options.store, siteFiles(options))
{
    olHostState::the().edition = options.edition;
    olHostState::the().applicationName = options.applicationName;
}

int olPrefsTool::run()
{
    m_session.translations().load(m_options.languageIndex());
    m_command = &olPrefsCommands::named(m_options.command);
    // Only in the first place: later it may be a value.
    const QString first = m_options.arguments.value(0);
    if (first == QLatin1String("--help") || first == QLatin1String("-h")) {
        printHelp();
        return 0;
    }
    if (!isForPeople())
        m_session.translations().load(0);
    m_command->run(*this);
    return m_status;
}

void olPrefsTool::printHelp()
{
    m_session.translations().load(m_options.languageIndex());
    // A store that cannot be read leaves it English.
    if (isOfUser() && m_session.loadStore(olStoreUse::LookAt).isOk())
        m_session.translations().load(olHostState::the().displayLanguage);
    const QString &command = m_options.command;
    const QString text =
        command.isEmpty() ? olPrefsCommands::help() : olPrefsCommands::help(olPrefsCommands::named(command));
    print(text.toStdString());
}

bool olPrefsTool::isForPeople() const
{
    return m_command->name != std::string("script") && m_command->name != std::string("schema") &&
           !m_options.arguments.contains(QStringLiteral("--json"));
}

void olPrefsTool::requireArguments(int count) const
{
    if (m_options.arguments.size() != count)
        failUsage();
}

void olPrefsTool::failUsage() const
{
    throw olToolError(olToolError::tr("usage: orlo-prefs [OPTIONS] %1").arg(QLatin1String(m_command->usage)));
}

void olPrefsTool::loadStore(olStoreUse use)
{
    requireSuccess(m_session.loadStore(use));
    if (isForPeople() && isOfUser())
        m_session.translations().load(olHostState::the().displayLanguage);
    printNotices();
}

void olPrefsTool::loadPlugin() { requireSuccess(m_session.loadPlugin(m_options.plugin)); }

void olPrefsTool::fillDefaults()
{
    // Some defaults come with a message to the user, of whom there is none here.
    m_silent.emplace();
    m_session.fillDefaults();
    printNotices();
}

void olPrefsTool::open(olStoreUse use)
{
    loadStore(use);
    loadPlugin();
    fillDefaults();
}

void olPrefsTool::requireConsent(const std::string &key, const olSettingWarning &warning) const
{
    if (!m_options.isAgreed)
        throw olToolError(
            olToolError::tr("\"%1\" is only set with --yes: %2")
                .arg(QString::fromStdString(key), QString(warning.text).replace(QLatin1Char('\n'), QLatin1Char(' '))));
}

void olPrefsTool::save()
{
    requireSuccess(m_session.save());
    printNotices();
}

void olPrefsTool::print(const std::string &text)
{
    const bool isWritten = std::fwrite(text.data(), 1, text.size(), stdout) == text.size() && std::fflush(stdout) == 0;
    if (!isWritten)
        throw olToolError(
            olToolError::tr("Cannot write the output: %1.").arg(QString::fromLocal8Bit(std::strerror(errno))));
}

void olPrefsTool::printNotices()
{
    const QStringList notices = m_session.takeNotices();
    for (const QString &notice : notices)
        std::fprintf(stderr, "%s\n", qPrintable(notice));
}
