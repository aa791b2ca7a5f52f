#include "Dialog/olSettingMarks.h"
#include "DialogTest.h"

#include <QElapsedTimer>
#include <QTest>
#include <QTreeWidget>

namespace
{

/// A page of names that the studio does not have.
class PlainModule : public olPreferences
{
public:
    PlainModule() : olPreferences(QStringLiteral("Plain"), QStringLiteral("Family"))
    {
        box.setParent(&page);
        addPreferencesGUI(&page);
    }
    ~PlainModule() override { subPreferencesGUI(&page); }

    void setDefaults(olMessage &, bool) override {}
    void updateGUI() override {}
    void updateData() override {}
    void applyPreferences() override {}

    QWidget page;
    QCheckBox box{QStringLiteral("Untagged")};
};

class PreferencesDialogSearch : public DialogTest
{
protected:
    /// Names of the controls that are marked on the studio's page.
    [[nodiscard]] QStringList hits() const
    {
        QStringList names;
        const auto *marks = module.page.findChild<olSettingMarks *>();
        for (const olFoundControl &hit : marks ? marks->hits() : std::vector<olFoundControl>())
            names << hit.name;
        return names;
    }

    void type(const QString &text) const
    {
        search()->clear();
        QTest::keyClicks(search(), text);
    }
};

} // namespace

TEST_F(PreferencesDialogSearch, FindsByLabelTooltipChoiceAndKeyAndMarksWhatItFound)
{
    const PlainModule plain;
    start();
    EXPECT_TRUE(search()->hasFocus());
    struct {
        const char *text;
        QStringList names;
    } const searches[] = {
        {"cast shad", {"Cast Shadows"}},
        {"PIXEL", {"Samples"}},
        {"accurate", {"Mode"}},
        {"studio title", {"Title"}},
        {"<b>", {}},
    };
    for (const auto &one : searches) {
        type(QString::fromLatin1(one.text));
        EXPECT_EQ(hits(), one.names) << one.text;
        EXPECT_EQ(listed(), one.names.isEmpty() ? QStringList() : QStringList{"Studio"}) << one.text;
    }
    type(QStringLiteral("untagged"));
    EXPECT_EQ(listed(), (QStringList{"Family", "Plain"}));
    EXPECT_TRUE(plain.page.isVisible()) << "the first page with a hit is shown";
    type(QStringLiteral("hidden away"));
    EXPECT_EQ(listed(), QStringList()) << "what the page hides is not found";
}

TEST_F(PreferencesDialogSearch, BringsTheTabWithTheHitToTheFront)
{
    start();
    type(QStringLiteral("title"));
    EXPECT_EQ(module.page.tabs->currentIndex(), 1);
    QTest::keyClick(search(), Qt::Key_Return);
    EXPECT_TRUE(module.page.title->hasFocus());
    EXPECT_TRUE(dialog->isVisible()) << "Enter in the search is no OK";
}

TEST_F(PreferencesDialogSearch, EscapeClearsTheSearchBeforeItCloses)
{
    start();
    type(QStringLiteral("title"));
    module.page.title->setFocus();
    QTest::keyClick(module.page.title, Qt::Key_Escape);
    EXPECT_TRUE(dialog->isVisible());
    EXPECT_EQ(search()->text(), QString());
    EXPECT_EQ(hits(), QStringList());
    EXPECT_EQ(listed(), QStringList{"Studio"});
    QTest::keyClick(module.page.title, Qt::Key_F, Qt::ControlModifier);
    EXPECT_TRUE(search()->hasFocus());
    QTest::keyClick(search(), Qt::Key_Escape);
    EXPECT_FALSE(dialog->isVisible());
}

TEST_F(PreferencesDialogSearch, ChangedOnlyShowsThePagesThatDifferFromTheirDefaults)
{
    const PlainModule plain;
    start();
    auto *changedOnly = dialog->findChild<QCheckBox *>(QStringLiteral("changedOnly"));
    changedOnly->setChecked(true);
    EXPECT_EQ(listed(), QStringList());
    changedOnly->setChecked(false);
    EXPECT_EQ(listed(), (QStringList{"Studio", "Family", "Plain"}));
    dialog->open(QStringLiteral("Studio"));

    module.page.samples->setValue(9);
    changedOnly->setChecked(true);
    EXPECT_EQ(listed(), QStringList{"Studio"});
    EXPECT_EQ(hits(), QStringList{"Samples"});
    type(QStringLiteral("title"));
    EXPECT_EQ(listed(), QStringList()) << "both filters hold";
}

TEST_F(PreferencesDialogSearch, FindsModulesThatComeWhileTheDialogIsOpen)
{
    start();
    type(QStringLiteral("untagged"));
    EXPECT_EQ(listed(), QStringList());
    const PlainModule late;
    QCoreApplication::processEvents();
    EXPECT_EQ(listed(), (QStringList{"Family", "Plain"}));
}

TEST_F(PreferencesDialogSearch, TheTreeShowsWhetherItHasTheKeys)
{
    start();
    auto *tree = dialog->findChild<QTreeWidget *>();
    const QRect row = tree->visualItemRect(tree->currentItem());
    const QImage without = tree->viewport()->grab(row).toImage();
    QTest::keyClick(search(), Qt::Key_Down);
    ASSERT_TRUE(tree->hasFocus());
    EXPECT_NE(tree->viewport()->grab(row).toImage(), without);
}

TEST_F(PreferencesDialogSearch, TabGoesRoundTheWholeDialogInAReadersOrder)
{
    StudioModule other(QStringLiteral("Other"));
    start(R"({"Studio title": {"locked": true}})");
    // The order must not depend on which pages were looked at before.
    dialog->open(QStringLiteral("Other"));
    dialog->open(QStringLiteral("Studio"));
    module.page.samples->setValue(9);
    ASSERT_TRUE(canApply());
    const auto named = [this](const char *name) { return dialog->findChild<QWidget *>(QLatin1String(name)); };
    const std::vector<QWidget *> round{search(),
                                       named("changedOnly"),
                                       named("more"),
                                       dialog->findChild<QTreeWidget *>(),
                                       named("restorePage"),
                                       named("locked"),
                                       module.page.tabs->findChild<QTabBar *>(),
                                       module.page.shadows,
                                       module.page.samples,
                                       module.page.mode,
                                       changes(),
                                       button(QDialogButtonBox::Ok),
                                       button(QDialogButtonBox::Cancel),
                                       button(QDialogButtonBox::Apply)};
    search()->setFocus();
    for (int step = 0; step < int(2 * round.size()); ++step) {
        ASSERT_EQ(dialog->focusWidget(), round[step % round.size()])
            << "step " << step << " came to " << dialog->focusWidget()->metaObject()->className() << " "
            << dialog->focusWidget()->objectName().toStdString();
        QTest::keyClick(dialog->focusWidget(), Qt::Key_Tab);
    }
    for (int step = int(2 * round.size()); step > 0; --step) {
        ASSERT_EQ(dialog->focusWidget(), round[step % round.size()]) << "back, step " << step;
        QTest::keyClick(dialog->focusWidget(), Qt::Key_Backtab);
    }
}
