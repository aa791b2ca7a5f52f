#include "Session/olTranslations.h"
#include "Support/Files.h"
#include "Support/RecordedLog.h"

#include <QCoreApplication>
#include <QDir>
#include <QLibraryInfo>
#include <QLocale>
#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace
{

class Translations : public testing::Test
{
protected:
    static QString changes() { return QCoreApplication::translate("olChangesView", "Changes"); }

    RecordedLog log;
    QStringList &lines = log.lines;
};

TEST_F(Translations, AreOfOneLanguageAsLongAsTheyStandAndKnowTheirEnglish)
{
    QStringList seen;
    {
        olTranslations translations;
        for (int language = 0; language < olTranslations::languages().size(); ++language) {
            translations.load(language);
            seen << changes();
            EXPECT_EQ(olTranslations::english(seen.last()), language == 0 ? QStringList() : QStringList("Changes"));
            EXPECT_EQ(qApp->property("olTranslationFiles").toStringList().size(), language == 0 ? 0 : 1)
                << "which the process that reads models is told";
        }
    }
    EXPECT_EQ(seen.first(), "Changes");
    EXPECT_EQ(seen.removeDuplicates(), 0);
    EXPECT_EQ(changes(), "Changes");
    EXPECT_EQ(lines, QStringList());
}

TEST_F(Translations, OfTheToolkitAreThoseInstalledOrALineInTheLog)
{
    QStringList seen{"Cancel"};
    olTranslations translations;
    for (int language = 0; language < olTranslations::languages().size(); ++language) {
        translations.load(language);
        translations.loadOfToolkit();
        const QString cancel = QCoreApplication::translate("QPlatformTheme", "Cancel");
        EXPECT_EQ(QLocale().standaloneMonthName(11).contains(QChar(language == 3 ? 0xc6d4 : 0x6708)), language != 0);
        const QString told = lines.join(' ');
        lines.clear();
        if (language == 0 || !told.isEmpty()) {
            EXPECT_EQ(cancel, "Cancel");
            EXPECT_EQ(told.count("qtbase_"), language == 0 ? 0 : 1) << told.toStdString();
        } else {
            seen << cancel;
        }
    }
    EXPECT_EQ(seen.removeDuplicates(), 0);
    const QDir folder(QLibraryInfo::location(QLibraryInfo::TranslationsPath));
    EXPECT_EQ(seen.size(), 1 + folder.entryList({"qtbase_zh_CN.qm", "qtbase_ja.qm", "qtbase_ko.qm"}).size());
}

TEST_F(Translations, ThatAreMissingOrBrokenLeaveEnglishAndALineInTheLog)
{
    const QTemporaryDir plugin;
    const QString library = plugin.filePath("libKernelPreferences.so");
    olTranslations translations;
    translations.load(2);
    translations.loadOfPlugin(library);
    ASSERT_EQ(lines.size(), 1);
    EXPECT_TRUE(lines[0].contains("preferences_ja.qm") && lines[0].contains(plugin.path())) << lines[0].toStdString();

    ASSERT_TRUE(QDir(plugin.path()).mkdir("translations"));
    writtenFile(plugin.filePath("translations/preferences_ja.qm"), QByteArray(3000, 'x'));
    translations.loadOfPlugin(library);
    EXPECT_EQ(lines.size(), 2);
    // Who wants English needs no files.
    translations.load(0);
    translations.loadOfPlugin(library);
    EXPECT_EQ(lines.size(), 2);
}

} // namespace
