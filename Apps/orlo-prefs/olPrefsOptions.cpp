#include "olPrefsOptions.h"

#include "Session/olArguments.h"
#include "Session/olTranslations.h"
#include "State/olListed.h"
#include "olNearest.h"
#include "olToolError.h"

namespace
{

QString editionNames() { return olToolError::tr("essentials, design, professional or enterprise"); }

/// `--name VALUE` and `--name=VALUE`, from the front of a list.
class Reader
{
public:
    explicit Reader(QStringList arguments) : m_arguments(std::move(arguments)) {}

    [[nodiscard]] bool atOption() const
    {
        return !m_arguments.isEmpty() && m_arguments.first().startsWith(QLatin1Char('-')) &&
               m_arguments.first().size() > 1;
    }

    [[nodiscard]] QString option()
    {
        const QString written = m_arguments.takeFirst();
        const int equals = written.indexOf(QLatin1Char('='));
        if (equals >= 0)
            m_arguments.prepend(written.mid(equals + 1));
        m_attached = equals >= 0;
        return written.left(equals);
    }

    [[nodiscard]] QString value(const QString &option)
    {
        if (m_arguments.isEmpty())
            throw olToolError(olToolError::tr("%1 needs a value").arg(option));
        m_attached = false;
        return m_arguments.takeFirst();
    }

    void requireNoValue(const QString &option) const
    {
        if (m_attached)
            throw olToolError(olToolError::tr("%1 takes no value").arg(option));
    }

    [[nodiscard]] QStringList rest() const { return m_arguments; }

private:
    QStringList m_arguments;
    bool m_attached = false;
};

olEdition edition(const QString &name)
{
    const std::optional<olEdition> edition = olEditionNamed(name);
    if (!edition)
        throw olToolError(olToolError::tr("there is no edition %1, only %2").arg(name, editionNames()));
    return *edition;
}

QString language(const QString &name)
{
    if (name != QLatin1String(olPrefsOptions::ofUser) && !olTranslations::languages().contains(name))
        throw olToolError(olToolError::tr("there is no language %1, only %2 or user")
                              .arg(name, olListed(olTranslations::languages())));
    return name;
}

} // namespace

olPrefsOptions olPrefsOptions::parsed(const QStringList &arguments)
{
    static const QStringList known{QStringLiteral("--edition"), QStringLiteral("--app-name"), QStringLiteral("--store"),
                                   QStringLiteral("--plugin"),  QStringLiteral("--language"), QStringLiteral("--yes"),
                                   QStringLiteral("--help"),    QStringLiteral("--version")};
    olPrefsOptions options;
    // What is wrong with the options behind it is said in that language.
    olTranslations translations;
    Reader reader(arguments);
    while (reader.atOption()) {
        const QString option = reader.option();
        if (option == QLatin1String("--edition"))
            options.edition = ::edition(reader.value(option));
        else if (option == QLatin1String("--app-name"))
            options.applicationName = reader.value(option);
        else if (option == QLatin1String("--store"))
            options.store = olArguments::file(reader.value(option));
        else if (option == QLatin1String("--plugin"))
            options.plugin = olArguments::file(reader.value(option));
        else if (option == QLatin1String("--language")) {
            options.language = ::language(reader.value(option));
            translations.load(options.languageIndex());
        } else if (option == QLatin1String("--yes"))
            options.isAgreed = true;
        else if (option == QLatin1String("--help") || option == QLatin1String("-h"))
            options.help = true;
        else if (option == QLatin1String("--version"))
            options.version = true;
        else
            throw olToolError(olDidYouMean(olToolError::tr("there is no option %1").arg(option), option, known));
        reader.requireNoValue(option);
    }
    options.arguments = reader.rest();
    if (!options.arguments.isEmpty())
        options.command = options.arguments.takeFirst();
    return options;
}

int olPrefsOptions::languageIndex() const { return qMax(0, olTranslations::languages().indexOf(language)); }

QString olPrefsOptions::optionsHelp()
{
    return QCoreApplication::translate(
               "olPrefsOptions",
               "Options, before the command\n"
               "  --edition NAME     %1 (default professional)\n"
               "  --app-name NAME    the application's name (default orlo)\n"
               "  --store FILE       where the preferences are kept (default the user's store; a script\n"
               "                     begins empty without it, and never writes)\n"
               "  --plugin FILE      the preferences plug-in (default beside the program, then the\n"
               "                     installed plug-in folder)\n"
               "  --language NAME    of the messages: en, zh, ja, ko, or user for the one that is stored\n"
               "                     (default en)\n"
               "  --yes              agrees to what the page would ask before it takes a value\n"
               "  --help, --version\n")
        .arg(editionNames());
}
