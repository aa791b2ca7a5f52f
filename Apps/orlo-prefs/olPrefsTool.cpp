#include "olPrefsTool.h"

#include "Embedded/olHostState.h"
#include "Embedded/olValue.h"
#include "Preferences/olPreferencesEntry.h"
#include "Preferences/olPreferencesRegistry.h"
#include "olModalAnswers.h"
#include "olNearest.h"
#include "olScriptRunner.h"
#include "olSettingsCatalogue.h"
#include "olSettingsList.h"
#include "olToolError.h"

#include <QFile>

#include <cstdio>

namespace
{

void requireSuccess(const QString &error)
{
    if (!error.isEmpty())
        throw olToolError(error);
}

void print(const std::string &text) { std::fwrite(text.data(), 1, text.size(), stdout); }

/// A text setting takes any text as it is, so that nobody has to quote within quotes.
boost::any valueFrom(const std::string &type, const QString &written)
{
    boost::any value = olValue::fromJson(type, written.toUtf8());
    if (!value.empty())
        return value;
    if (type == "qstring")
        return written;
    if (type == "string")
        return written.toStdString();
    return {};
}

/// A script shows the modules as they are, at whatever site it runs.
QStringList siteFiles(const olPrefsOptions &options)
{
    return options.command == QLatin1String("script") ? QStringList() : olSiteDefaults::systemFiles();
}

} // namespace

olPrefsTool::olPrefsTool(const olPrefsOptions &options)
    : m_options(options),
      m_session(options.store.isEmpty() ? olPreferencesStore::userFile() : options.store, siteFiles(options))
{
    olHostState::the().edition = options.edition;
    olHostState::the().applicationName = options.applicationName;
    // A tool opens no device and no server, whatever it applies.
    olHostState::the().isPassive = true;
}

void olPrefsTool::run()
{
    if (m_options.command == QLatin1String("list"))
        return list();
    if (m_options.command == QLatin1String("get"))
        return get();
    if (m_options.command == QLatin1String("set"))
        return set();
    if (m_options.command == QLatin1String("script"))
        return script();
    if (m_options.command.isEmpty())
        throw olToolError(QStringLiteral("a command is missing: list, get, set or script; see --help"));
    throw olToolError(
        QStringLiteral("there is no command %1, only list, get, set and script; see --help").arg(m_options.command));
}

void olPrefsTool::list()
{
    const QString form = m_options.arguments.value(0);
    const bool json = form == QLatin1String("--json");
    const bool markdown = form == QLatin1String("--markdown");
    requireArguments(json || markdown ? 1 : 0, "list [--json | --markdown]");
    loadEverything();
    if (json)
        print(olSettingsList::json());
    else if (markdown)
        print(olSettingsCatalogue());
    else
        print(olSettingsList::table());
}

void olPrefsTool::get()
{
    requireArguments(1, "get KEY");
    loadEverything();
    const Setting asked = setting(m_options.arguments.first());
    print(olValue::toJson(asked.entry->value(asked.key)) + '\n');
}

void olPrefsTool::set()
{
    requireArguments(2, "set KEY VALUE");
    loadEverything();
    const Setting changed = setting(m_options.arguments.at(0));
    if (const auto reason = m_session.lockReason(changed.key))
        throw olToolError(QStringLiteral("\"%1\" is locked: %2").arg(m_options.arguments.at(0), *reason));
    const QString &written = m_options.arguments.at(1);
    const boost::any value = valueFrom(changed.type, written);
    if (value.empty())
        throw olToolError(
            QStringLiteral("%1 is no value for \"%2\": expected %3")
                .arg(written, m_options.arguments.at(0), QString::fromStdString(olValue::expectation(changed.type))));
    changed.entry->setValue(changed.key, value);
    requireSuccess(m_session.save());
    printNotices();
}

void olPrefsTool::script()
{
    requireArguments(1, "script FILE|-");
    const QString &name = m_options.arguments.first();
    QFile file(name);
    const bool isOpen =
        name == QLatin1String("-") ? file.open(stdin, QIODevice::ReadOnly) : file.open(QIODevice::ReadOnly);
    if (!isOpen)
        throw olToolError(QStringLiteral("Cannot read the script %1: %2.").arg(name, file.errorString()));
    if (!m_options.store.isEmpty())
        loadStore(olStoreUse::LookAt);
    // The language that was stored is that of a start, which a script does not run; its controls go by the names of
    // the untranslated pages.
    olHostState::the().displayLanguage.reset();
    loadPlugin();
    olScriptRunner(m_session, stdout).run(file);
}

void olPrefsTool::loadStore(olStoreUse use)
{
    requireSuccess(m_session.loadStore(use));
    printNotices();
}

void olPrefsTool::printNotices()
{
    const QStringList notices = m_session.takeNotices();
    for (const QString &notice : notices)
        std::fprintf(stderr, "%s\n", qPrintable(notice));
}

void olPrefsTool::loadPlugin() { requireSuccess(m_session.loadPlugin(olPluginLoader::locate(m_options.plugin))); }

void olPrefsTool::loadEverything()
{
    // Some defaults come with a message to the user, of whom there is none here.
    const olModalAnswers silent;
    loadStore(olStoreUse::Own);
    loadPlugin();
    m_session.fillDefaults();
    printNotices();
}

void olPrefsTool::requireArguments(int count, const char *usage) const
{
    if (m_options.arguments.size() != count)
        throw olToolError(QStringLiteral("usage: orlo-prefs [OPTIONS] %1").arg(QLatin1String(usage)));
}

olPrefsTool::Setting olPrefsTool::setting(const QString &written)
{
    const std::string key = written.toStdString();
    if (olPreferencesEntry *owner = olPreferencesRegistry::the().ownerOf(key))
        return {owner, key, olValue::typeName(owner->findDefault(key)->value)};
    QStringList known;
    for (const std::string &each : olPreferencesSession::keys())
        known << QString::fromStdString(each);
    throw olToolError(QStringLiteral("there is no setting \"%1\"%2").arg(written, olDidYouMean(written, known)));
}
