#include "Dialog/olSettingMarks.h"
#include "DialogTest.h"

#include <QAction>
#include <QApplication>
#include <QColor>
#include <QImage>
#include <QPainter>
#include <QPalette>
#include <QRegularExpression>
#include <QStyleOptionViewItem>
#include <QTest>
#include <QTreeView>
#include <QTreeWidget>

namespace
{

/// A page of names that the studio does not have.
class PlainModule : public olPreferences
{
public:
    PlainModule() : olPreferences("Plain", "Family")
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
    QCheckBox box{"Untagged"};
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

    [[nodiscard]] QTreeView &found() const { return *dialog->findChild<QTreeView *>("found"); }

    /// The rows of the list of what was found, cells apart by bars.
    [[nodiscard]] QStringList rows() const
    {
        QStringList rows;
        const QAbstractItemModel &model = *found().model();
        for (int row = 0; row < model.rowCount(); ++row) {
            QStringList cells;
            for (int column = 0; column < model.columnCount(); ++column)
                cells << model.index(row, column).data().toString();
            rows << cells.join(" | ");
        }
        return found().isVisible() ? rows : QStringList();
    }

    [[nodiscard]] QPoint placeOf(int row) const { return found().visualRect(found().model()->index(row, 0)).center(); }

    void chooseAtFirstRow(const char *action) const
    {
        menuAction(*found().viewport(), action, placeOf(0)).trigger();
        QCoreApplication::processEvents();
    }

    void type(const QString &text) const
    {
        search()->setFocus();
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
        type(one.text);
        EXPECT_EQ(hits(), one.names) << one.text;
        EXPECT_EQ(listed(), one.names.isEmpty() ? QStringList() : QStringList{"Studio"}) << one.text;
    }
    type("untagged");
    EXPECT_EQ(listed(), (QStringList{"Family", "Plain"}));
    EXPECT_EQ(rows(), QStringList{"Untagged | Plain |  | "});
    type("hidden away");
    EXPECT_EQ(listed(), QStringList()) << "what the page hides is not found";
}

TEST_F(PreferencesDialogSearch, ListsSettingsWithTheirValuesAndGoesThereByEnterOrClick)
{
    start();
    type("s");
    const QStringList all = rows();
    EXPECT_EQ(all.first(), "Cast Shadows | Studio \u203a Picture | on | default");
    EXPECT_TRUE(all.contains("Mode | Studio \u203a Picture | Hasty | default")) << "found by its key";
    const auto *tree = dialog->findChild<QTreeWidget *>();
    EXPECT_EQ(tree->currentItem()->text(1).toInt(), all.size()) << "the tree says how many";
    QImage row(400, 20, QImage::Format_RGB32);
    QPainter painter(&row);
    QStyleOptionViewItem label;
    label.rect = QRect(0, 0, 200, 20);
    found().itemDelegateForColumn(0)->paint(&painter, label, found().model()->index(0, 0));
    EXPECT_FALSE(painter.hasClipping()) << "the value beside it is drawn by the same painter";
    painter.end();

    type("texts");
    EXPECT_EQ(rows().size(), 2) << "the tab's title counts for what is on it";
    QTest::keyClick(search(), Qt::Key_Down);
    EXPECT_TRUE(found().hasFocus());
    QTest::keyClick(&found(), Qt::Key_Down);
    QTest::keyClick(&found(), Qt::Key_Return);
    EXPECT_TRUE(module.page.title->hasFocus());
    EXPECT_EQ(module.page.tabs->currentIndex(), 1);
    EXPECT_EQ(search()->text(), "texts") << "the others are still there";

    type("samples");
    QTest::mouseClick(found().viewport(), Qt::LeftButton, Qt::NoModifier, placeOf(0));
    EXPECT_TRUE(module.page.samples->hasFocus());
    type("title");
    QTest::keyClick(search(), Qt::Key_Return);
    EXPECT_TRUE(module.page.title->hasFocus());
    EXPECT_TRUE(dialog->isVisible()) << "Enter in the search is no OK";
}

TEST_F(PreferencesDialogSearch, ForgivesSlipsAndHyphensInLongerWords)
{
    start();
    for (const char *text : {"accurrate", "acurate", "accu-rate", "shadwos cast"}) {
        type(text);
        EXPECT_EQ(rows().size(), 1) << text;
    }
    for (const char *text : {"mdoe", "accordion"}) {
        type(text);
        EXPECT_EQ(rows().size(), 0) << text;
    }
}

TEST_F(PreferencesDialogSearch, EscapeClearsTheSearchBeforeItCloses)
{
    start();
    type("title");
    QTest::keyClick(search(), Qt::Key_Return);
    ASSERT_TRUE(module.page.title->hasFocus());
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

TEST_F(PreferencesDialogSearch, ChangedOnlyIsOneListOfAllThatDiffersAndIsAlwaysCurrent)
{
    const PlainModule plain;
    start();
    module.page.mode->setCurrentIndex(1);
    ASSERT_TRUE(dialog->apply());
    auto *changedOnly = dialog->findChild<QCheckBox *>("changedOnly");
    changedOnly->setChecked(true);
    EXPECT_EQ(listed(), QStringList{"Studio"});
    EXPECT_EQ(rows(), QStringList{"Mode | Studio \u203a Picture | Accurate | yours"});

    module.page.samples->setValue(9);
    QCoreApplication::processEvents();
    const QStringList both{"Samples | Studio \u203a Picture | 9 | pending",
                           "Mode | Studio \u203a Picture | Accurate | yours"};
    EXPECT_EQ(rows(), both);
    EXPECT_EQ(hits(), (QStringList{"Samples", "Mode"}));

    chooseAtFirstRow("takeBack");
    EXPECT_EQ(rows(), QStringList{both[1]});
    chooseAtFirstRow("reset");
    EXPECT_EQ(rows(), QStringList());
    EXPECT_EQ(module.page.mode->currentIndex(), 0);
    ASSERT_TRUE(dialog->apply());

    module.page.samples->setValue(9);
    QCoreApplication::processEvents();
    type("title");
    EXPECT_EQ(listed(), QStringList()) << "both filters hold";
    search()->clear();
    changedOnly->setChecked(false);
    EXPECT_EQ(listed(), (QStringList{"Studio", "Family", "Plain"}));
}

TEST_F(PreferencesDialogSearch, ACategoryStaysFoldedUntilItIsOpenedAndIsRemembered)
{
    const PlainModule plain;
    start();
    const auto family = [this] {
        return dialog->findChild<QTreeWidget *>()->findItems("Family", Qt::MatchExactly).value(0);
    };
    EXPECT_FALSE(family()->isExpanded());
    type("untagged");
    EXPECT_TRUE(family()->isExpanded()) << "what was found is in sight";
    search()->clear();
    EXPECT_FALSE(family()->isExpanded());
    family()->setExpanded(true);
    dialog->reject();
    dialog = std::make_unique<olPreferencesDialog>(*session);
    EXPECT_TRUE(family()->isExpanded());
    family()->setExpanded(false);
    dialog->open({});
    dialog->reject();
}

TEST_F(PreferencesDialogSearch, FindsModulesThatComeWhileTheDialogIsOpenAndNoneThatGo)
{
    start();
    type("untagged");
    EXPECT_EQ(listed(), QStringList());
    auto late = std::make_unique<PlainModule>();
    QCoreApplication::processEvents();
    EXPECT_EQ(listed(), (QStringList{"Family", "Plain"}));
    EXPECT_EQ(rows().size(), 1);
    late.reset();
    EXPECT_EQ(rows().join(QString()).count(QRegularExpression("\\w")), 0) << "before the list is made anew";
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

TEST_F(PreferencesDialogSearch, IconsFillTheirRoomInTheColourOfTheTextAndLeaveThePainterAsItWas)
{
    start();
    QPalette red = QApplication::palette();
    red.setColor(QPalette::Text, Qt::red);
    QApplication::setPalette(red);
    QImage picture(48, 48, QImage::Format_ARGB32);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    dialog->findChild<QTreeWidget *>()->currentItem()->icon(0).paint(&painter, picture.rect());
    EXPECT_TRUE(painter.transform().isIdentity());
    painter.end();
    int lowest = 0;
    for (int pixel = 0; pixel < 48 * 48; ++pixel) {
        const QColor color = picture.pixelColor(pixel % 48, pixel / 48);
        lowest = color.alpha() > 0 ? pixel / 48 : lowest;
        ASSERT_TRUE(color.alpha() == 0 || (color.red() > 200 && color.green() == 0)) << color.name().toStdString();
    }
    EXPECT_GT(lowest, 36) << "it fills the room that it has";
}

TEST_F(PreferencesDialogSearch, TabGoesRoundTheWholeDialogInAReadersOrder)
{
    StudioModule other("Other");
    start(R"({"Studio title": {"locked": true}})");
    // The order must not depend on which pages were looked at before.
    dialog->open("Other");
    dialog->open("Studio");
    module.page.samples->setValue(9);
    ASSERT_TRUE(canApply());
    const auto named = [this](const char *name) { return dialog->findChild<QWidget *>(name); };
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
