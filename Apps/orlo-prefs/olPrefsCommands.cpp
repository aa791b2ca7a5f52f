#include "olPrefsCommands.h"

#include "State/olListed.h"
#include "olPrefsOptions.h"
#include "olToolError.h"

#include <QCoreApplication>
#include <QStringList>

#include <algorithm>
#include <iterator>

namespace
{

struct Words {
    Q_DECLARE_TR_FUNCTIONS(olPrefsCommands)
};

const olPrefsCommand commands[] = {
    {"list", "list [--json | --markdown]",
     QT_TRANSLATE_NOOP("olPrefsCommands", "all modules with their settings, values and defaults"),
     QT_TRANSLATE_NOOP(
         "olPrefsCommands",
         "Lists the modules with their settings: key, type, value, and the default where the value is another.\n"
         "  --json      one array of modules, for programs\n"
         "  --markdown  the catalogue of the documentation: keys, types, defaults, ranges and choices, when a new\n"
         "              value counts, and where they are on the pages, with the tooltips there\n"),
     &olPrefsCommands::list},
    {"get", "get KEY", QT_TRANSLATE_NOOP("olPrefsCommands", "prints the value of a setting as JSON"),
     QT_TRANSLATE_NOOP("olPrefsCommands", "Prints the value that is in force: the stored one, else the default.\n"),
     &olPrefsCommands::get},
    {"set", "set KEY VALUE", QT_TRANSLATE_NOOP("olPrefsCommands", "stores a value, JSON or plain text"),
     QT_TRANSLATE_NOOP(
         "olPrefsCommands",
         "Stores a value. VALUE is JSON of the setting's type; a text needs no quotes. A value that the control of\n"
         "the setting could not hold is refused, and so is any value of a locked setting. The viewer may be "
         "running.\n"),
     &olPrefsCommands::set},
    {"reset", "reset KEY | --all", QT_TRANSLATE_NOOP("olPrefsCommands", "takes a setting back to its default"),
     QT_TRANSLATE_NOOP("olPrefsCommands",
                       "Takes a setting back to its default, which is the site's where the site gives one.\n"
                       "  --all       all settings\n"),
     &olPrefsCommands::reset},
    {"diff", "diff", QT_TRANSLATE_NOOP("olPrefsCommands", "what differs from the defaults"),
     QT_TRANSLATE_NOOP("olPrefsCommands",
                       "Prints a line for each setting that differs from its default: KEY  DEFAULT -> VALUE.\n"),
     &olPrefsCommands::diff},
    {"export", "export [FILE|-]", QT_TRANSLATE_NOOP("olPrefsCommands", "writes all settings to a file of preferences"),
     QT_TRANSLATE_NOOP(
         "olPrefsCommands",
         "Writes the values in force of all settings, with their types, as JSON to a file, or to the standard output\n"
         "with - or without a name. An existing file is replaced.\n"),
     &olPrefsCommands::exportTo},
    {"import", "import [--dry-run] FILE|-", QT_TRANSLATE_NOOP("olPrefsCommands", "stores the settings of such a file"),
     QT_TRANSLATE_NOOP(
         "olPrefsCommands",
         "Stores the settings of a file that export wrote, read from the standard input with -. Unknown keys, values\n"
         "of another type or out of range, and locked settings are named on the standard error stream and skipped.\n"
         "  --dry-run   prints what would change, KEY  VALUE -> NEW VALUE, and stores nothing\n"),
     &olPrefsCommands::importFrom},
    {"profile", "profile list|save|apply|delete",
     QT_TRANSLATE_NOOP("olPrefsCommands", "keeps settings under a name, and takes them from there"),
     QT_TRANSLATE_NOOP(
         "olPrefsCommands",
         "A profile is a set of settings with a name, in a file of preferences. The site may have some too.\n"
         "  list                             the names\n"
         "  save NAME [--changed | --module M]\n"
         "                                   keeps all settings, those that differ from their defaults, or a module's\n"
         "  apply NAME [--dry-run]           stores its settings as import does; or only prints what would change\n"
         "  delete NAME\n"),
     &olPrefsCommands::profile},
    {"log", "log [KEY] [--json]", QT_TRANSLATE_NOOP("olPrefsCommands", "what was changed when, and by which program"),
     QT_TRANSLATE_NOOP(
         "olPrefsCommands",
         "Lists the last saves, the latest first: how far back it is, when, by which program, and what it changed. Of\n"
         "confidential settings nothing is told.\n"
         "  KEY         only the changes of that setting\n"
         "  --json      one array, for programs\n"),
     &olPrefsCommands::log},
    {"undo", "undo [N] [--dry-run]", QT_TRANSLATE_NOOP("olPrefsCommands", "takes the last N saves back"),
     QT_TRANSLATE_NOOP(
         "olPrefsCommands",
         "Takes the last save, or the last N, back and prints what that changes, KEY  VALUE -> NEW VALUE. It is a\n"
         "save itself and can be taken back. Settings that were changed since otherwise, or are locked, are named on "
         "the\n"
         "standard error stream and left; the exit status is then 1.\n"
         "  --dry-run   tells the same, with the same exit status, but stores nothing\n"),
     &olPrefsCommands::undo},
    {"check", "check [--site FILE]",
     QT_TRANSLATE_NOOP("olPrefsCommands", "looks for damage in the store and faults in the site's files"),
     QT_TRANSLATE_NOOP(
         "olPrefsCommands",
         "Prints a line for each thing that is wrong with the store, its copy or the site's files, also\n"
         "for keys that no edition has, and changes nothing. The exit status is 0 when nothing is wrong, else 1.\n"
         "  --site FILE  judges such a file of the site's before it is installed, and nothing else\n"),
     &olPrefsCommands::check},
    {"schema", "schema", QT_TRANSLATE_NOOP("olPrefsCommands", "prints a JSON Schema of the files that name settings"),
     QT_TRANSLATE_NOOP(
         "olPrefsCommands",
         "Prints a JSON Schema of the file that export writes and import reads, and of a site's\n"
         "site.json, for editors to complete and check them by. Settings and ranges are those of the edition.\n"),
     &olPrefsCommands::schema},
    {"script", "script FILE|-", QT_TRANSLATE_NOOP("olPrefsCommands", "runs a script from a file or the standard input"),
     QT_TRANSLATE_NOOP("olPrefsCommands",
                       "Drives the modules operation by operation and prints every host call. A script begins\n"
                       "with empty preferences, or with those of --store, and never writes any.\n"),
     &olPrefsCommands::script},
};

/// The names as a sentence has them.
QString names(const QString &ofTwo)
{
    QStringList names;
    for (const olPrefsCommand &command : commands)
        names << QLatin1String(command.name);
    const QString last = names.takeLast();
    return ofTwo.arg(olListed(names), last);
}

} // namespace

const olPrefsCommand &olPrefsCommands::named(const QString &name)
{
    if (name.isEmpty())
        throw olToolError(
            olToolError::tr("a command is missing: %1; see --help").arg(names(olToolError::tr("%1 or %2"))));
    const auto *found = std::find_if(std::begin(commands), std::end(commands), [&name](const olPrefsCommand &command) {
        return name == QLatin1String(command.name);
    });
    if (found == std::end(commands))
        throw olToolError(olToolError::tr("there is no command %1, only %2; see --help")
                              .arg(name, names(olToolError::tr("%1 and %2"))));
    return *found;
}

QString olPrefsCommands::help()
{
    QString text = Words::tr("Usage: %1\n").arg(QLatin1String("orlo-prefs [OPTIONS] COMMAND")) +
                   Words::tr("Shows and changes ORLO's preferences, and drives them by script. It needs no display.\n"
                             "\n"
                             "Commands; orlo-prefs COMMAND --help tells more of each\n");
    constexpr int column = 33;
    for (const olPrefsCommand &command : commands)
        text += QLatin1String("  ") + QString::fromLatin1(command.usage).leftJustified(column) +
                Words::tr(command.summary) + QLatin1Char('\n');
    return text + QLatin1Char('\n') + olPrefsOptions::optionsHelp() + QLatin1Char('\n') +
           Words::tr("The exit status is 0, or 2 with a message on the standard error stream; of check 1 when it\n"
                     "finds something, and of undo when it leaves something.\n");
}

QString olPrefsCommands::help(const olPrefsCommand &command)
{
    return Words::tr("Usage: %1\n").arg(QLatin1String("orlo-prefs [OPTIONS] ") + QLatin1String(command.usage)) +
           Words::tr(command.details);
}
