#include "Dialog/olPreferencesDialog.h"
#include "Session/olPreferencesSession.h"
#include "Support/PluginTest.h"

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QTemporaryDir>
#include <QTest>

namespace
{

class PageNotes : public PluginTest
{
protected:
    PageNotes()
    {
        restart();
        session.start();
        dialog.open(QStringLiteral("Camera"));
    }

    QString noteOn(const char *page)
    {
        dialog.open(QLatin1String(page));
        const auto *note = dialog.findChild<QLabel *>(QStringLiteral("pageNote"));
        return note->isVisible() ? note->text() : QString();
    }

    QTemporaryDir folder;
    olPreferencesSession session{folder.filePath(QStringLiteral("preferences.db")), {}};
    olPreferencesDialog dialog{session};
};

TEST_F(PageNotes, SayWhatHoldsForAllOrMostOfAPage)
{
    EXPECT_EQ(noteOn("Camera"), QString());
    EXPECT_TRUE(noteOn("Catia V4").contains(QStringLiteral("reader")));
    EXPECT_TRUE(noteOn("Step").contains(QStringLiteral("next import")));
    EXPECT_TRUE(noteOn("STL").contains(QStringLiteral("next import"))) << "but for what it writes";
    EXPECT_EQ(noteOn("MainWindow"), QString());
}

TEST_F(PageNotes, UnitsStandInTheFieldsOfNumbers)
{
    const auto units = [](const char *page) {
        QStringList texts;
        for (const olPreferencesEntry *entry : modules()) {
            if (entry->name() != QLatin1String(page))
                continue;
            for (const QLabel *label : entry->page()->findChildren<QLabel *>(QStringLiteral("unit")))
                texts << label->text();
        }
        return texts;
    };
    dialog.open(QStringLiteral("Navigator"));
    EXPECT_EQ(units("Camera"), (QStringList{QString::fromUtf8("°"), "mm", "mm", "mm", "mm", "mm"}));
    EXPECT_EQ(units("Navigator"), (QStringList{"px", "ms"}));
    dialog.open(QStringLiteral("Step"));
    EXPECT_EQ(units("Step"), QStringList()) << "they stand behind the fields already";
    dialog.open(QStringLiteral("MainWindow"));
    EXPECT_EQ(units("MainWindow"), QStringList{"= 100 %"});
    auto &opacity = *control<QWidget>("MainWindow", "windowOpacity").findChild<QLineEdit *>();
    opacity.selectAll();
    QTest::keyClicks(&opacity, QStringLiteral("0.35"));
    EXPECT_EQ(units("MainWindow"), QStringList{"= 35 %"});
}

} // namespace
