#include "Session/olTranslations.h"

#include "State/olListed.h"
#include "Utilities/olLog.h"
#include "Utilities/olWithoutMnemonic.h"

#include <QCoreApplication>
#include <QDir>
#include <QEvent>
#include <QFileInfo>
#include <QHash>
#include <QLibraryInfo>
#include <QLocale>
#include <QMutex>
#include <QMutexLocker>
#include <QTranslator>
#include <QVariant>

namespace
{

struct Words {
    Q_DECLARE_TR_FUNCTIONS(olTranslations)
};

// Of the application: the programs that it starts speak its language.
constexpr auto filesProperty = "olTranslationFiles";

/// English by translation, which several texts may share. Whoever knows a setting by its English name finds it in any
/// language.
struct Sources {
    QHash<QString, QStringList> texts;
    QMutex guard; ///< models are read in threads of their own, which translate too
};

Sources &sources()
{
    static Sources all;
    return all;
}

/// Remembers what it translated from.
class Translator : public QTranslator
{
public:
    QString translate(const char *context, const char *text, const char *comment, int count) const override
    {
        const QString translated = QTranslator::translate(context, text, comment, count);
        if (translated.isEmpty())
            return translated;
        const QString source = olWithoutMnemonic(QString::fromUtf8(text));
        const QMutexLocker lock(&sources().guard);
        QStringList &english = sources().texts[olWithoutMnemonic(translated)];
        if (!english.contains(source))
            english << source;
        return translated;
    }
};

} // namespace

olTranslations::olTranslations() = default;

olTranslations::~olTranslations() { load(0); }

const QStringList &olTranslations::languages()
{
    static const QStringList names{QStringLiteral("en"), QStringLiteral("zh"), QStringLiteral("ja"),
                                   QStringLiteral("ko")};
    return names;
}

void olTranslations::load(int language)
{
    m_translators.clear();
    {
        const QMutexLocker lock(&sources().guard);
        sources().texts.clear();
    }
    if (m_language != 0)
        QLocale::setDefault(QLocale::system());
    if (QCoreApplication::instance())
        QCoreApplication::instance()->setProperty(filesProperty, QVariant());
    m_language = language;
    if (language == 0)
        return;
    const QString &code = languages().at(language);
    const QDir programFolder(QCoreApplication::applicationDirPath());
    add(QStringLiteral("orlo_") + code, {programFolder.filePath(QStringLiteral("translations")),
                                         programFolder.filePath(QStringLiteral(ORLO_TRANSLATIONS_FROM_BIN))});
}

void olTranslations::loadOfToolkit()
{
    if (m_language == 0)
        return;
    const QString &code = languages().at(m_language);
    // Dates are in the same language; the person's own manner counts where it is of that language.
    if (QLocale::system().language() != QLocale(code).language())
        QLocale::setDefault(QLocale(code));
    add(QStringLiteral("qtbase_") + (code == QLatin1String("zh") ? QStringLiteral("zh_CN") : code),
        {QLibraryInfo::location(QLibraryInfo::TranslationsPath)});
}

void olTranslations::loadOfPlugin(const QString &library)
{
    if (m_language != 0)
        add(QStringLiteral("preferences_") + languages().at(m_language),
            {QFileInfo(library).dir().filePath(QStringLiteral("translations"))});
}

QStringList olTranslations::english(const QString &text)
{
    // What shows ampersands as they are, has not been read as a text with mnemonics.
    const QMutexLocker lock(&sources().guard);
    return sources().texts.value(text, sources().texts.value(olWithoutMnemonic(text)));
}

void olTranslations::add(const QString &name, const QStringList &folders)
{
    for (const QString &folder : folders) {
        const QString file = QDir(folder).filePath(name + QStringLiteral(".qm"));
        auto translator = std::make_unique<Translator>();
        if (!translator->load(file))
            continue;
        QCoreApplication::installTranslator(translator.get());
        // Later it would come to what is made meanwhile, and boxes of buttons would take their own texts back.
        QCoreApplication::sendPostedEvents(nullptr, QEvent::LanguageChange);
        m_translators.push_back(std::move(translator));
        QCoreApplication *application = QCoreApplication::instance();
        application->setProperty(filesProperty, application->property(filesProperty).toStringList() << file);
        return;
    }
    olLog::error(
        Words::tr("There is no usable translation %1.qm in %2: its texts stay English.").arg(name, olListed(folders)));
}
