#include "Dialog/olSettingsTransfer.h"
#include "Host/Dialog/DialogTest.h"
#include "Session/olUndo.h"
#include "State/olValue.h"
#include "Support/Files.h"

#include <QTest>
#include <QTreeWidget>

#include <string>
#include <vector>

namespace
{

/// A session with the dialog, and another program that saves into the same store.
class Following : public DialogTest
{
protected:
    using Values = olPreferencesStore::Values;

    static olPreferencesStore::Key key(const std::string &name) { return {olHome::Record, name}; }

    [[nodiscard]] Values stored()
    {
        const olResult<olStoreRows::Contents> contents = other.load();
        EXPECT_EQ(contents.error(), QString());
        return contents.isOk() ? contents->values : Values();
    }

    void saveOutside(const Values &changed, const std::vector<olPreferencesStore::Key> &removed = {})
    {
        std::vector<olStoreRows::Change> changes;
        for (const auto &[key, value] : changed)
            changes.push_back({key, {}, olStoreRows::Row::of(value)});
        for (const olPreferencesStore::Key &key : removed)
            changes.push_back({key, {}, {}});
        ASSERT_EQ(other.save(changes).error(), QString());
    }

    [[nodiscard]] QWidget &line() const { return *dialog->findChild<QWidget *>("outsideChanges"); }
    [[nodiscard]] QString said() const
    {
        QStringList texts;
        for (const QLabel *label : line().findChildren<QLabel *>())
            texts << label->text();
        return line().isVisible() ? texts.join(QString()) : QString();
    }
    [[nodiscard]] QPushButton &choice(const char *name) const { return *line().findChild<QPushButton *>(name); }

    olPreferencesStore other{store};
};

TEST_F(Following, WhatAnotherProgramSavesComesIntoForceWithinASecond)
{
    start();
    session->follow();
    module.applied = 0;
    saveOutside({{key("Studio samples"), 9}});
    EXPECT_TRUE(QTest::qWaitFor([this] { return module.applied == 1; }, 1000));
    EXPECT_EQ(module.changed, std::vector<std::string>{"Studio samples"}) << "all others count as untouched";
    EXPECT_EQ(module.page.samples->value(), 9);
    EXPECT_FALSE(canApply()) << "nothing is pending";
    EXPECT_TRUE(said().contains("Samples") && said().contains("to 9")) << said().toStdString();

    // Taken away, the default holds again; and what was not changed is not touched.
    saveOutside({}, {key("Studio samples")});
    session->takeOver();
    EXPECT_EQ(module.page.samples->value(), 4);
    const int applied = module.applied;
    session->takeOver();
    EXPECT_EQ(module.applied, applied);

    saveOutside({{key("Studio seed"), 3}});
    session->takeOver();
    EXPECT_EQ(module.applied, applied + 1) << "also without a control";
}

TEST_F(Following, PendingChangesStayAndTheSameSettingIsAskedFor)
{
    start();
    module.page.samples->setValue(7);
    module.page.mode->setCurrentIndex(1);
    saveOutside({{key("Studio scale"), 2.5f}});
    session->takeOver();
    EXPECT_EQ(module.page.samples->value(), 7);
    EXPECT_EQ(module.page.mode->currentIndex(), 1);
    EXPECT_EQ(module.page.scale->text(), "2.5");
    EXPECT_EQ(module.value<int>("Studio samples"), 4) << "pending is not in force";
    EXPECT_FALSE(choice("useTheirs").isVisible());

    saveOutside({{key("Studio samples"), 9}, {key("Studio scale"), 3.0f}});
    session->takeOver();
    EXPECT_EQ(module.page.samples->value(), 7);
    EXPECT_TRUE(said().contains("to 9") && said().contains("7")) << said().toStdString();
    EXPECT_TRUE(said().contains("host-tests set") && said().contains("to 3")) << "with what was taken over";
    choice("useTheirs").click();
    EXPECT_EQ(module.page.samples->value(), 9);
    EXPECT_FALSE(choice("useTheirs").isVisible());
    EXPECT_TRUE(said().contains("to 3") && !said().contains("to 9")) << said().toStdString();
    EXPECT_TRUE(canApply()) << "the other change is still pending";

    module.page.samples->setValue(5);
    saveOutside({{key("Studio samples"), 6}});
    session->takeOver();
    choice("keepMine").click();
    EXPECT_TRUE(dialog->apply());
    EXPECT_EQ(module.value<int>("Studio samples"), 5);

    module.page.samples->setValue(3);
    saveOutside({{key("Studio samples"), 8}});
    session->takeOver();
    EXPECT_TRUE(choice("keepMine").isVisible());
    EXPECT_TRUE(dialog->apply());
    EXPECT_FALSE(choice("keepMine").isVisible()) << "what is applied leaves nothing to choose";
}

TEST_F(Following, ASaveWritesNoOlderValueOfWhatWasNotChangedHere)
{
    start();
    saveOutside({{key("Studio samples"), 9}});
    session->takeOver();
    saveOutside({{key("Studio samples"), 12}});
    module.page.mode->setCurrentIndex(1);
    ASSERT_TRUE(dialog->apply()) << "before the other one's save was seen";
    Values values = stored();
    EXPECT_TRUE(olValue::identical(values[key("Studio samples")], 12));
    EXPECT_TRUE(olValue::identical(values[key("Studio mode")], 1));
    session->takeOver();
    EXPECT_EQ(module.value<int>("Studio samples"), 12);
}

TEST_F(Following, HistoryRemembersSavesAndGoingBackIsPending)
{
    start();
    for (const int samples : {8, 16}) {
        module.page.samples->setValue(samples);
        ASSERT_TRUE(dialog->apply());
    }
    saveOutside({{key("WebInterface white list"), std::string("secret")}, {key("Studio mode"), 1}});
    session->takeOver();
    const olResult<olUndo> undo = olUndo::of(*session, 2);
    ASSERT_TRUE(undo.isOk());
    ASSERT_EQ(undo->history().size(), 3u);
    EXPECT_EQ(undo->history().back().changes.size(), 1u) << "what is confidential is not remembered";
    EXPECT_EQ(undo->history().front().changes.front().after->value, "8");
    ASSERT_EQ(undo->changes().size(), 2u);

    dialog->transfer().showHistory();
    auto *view = opened<QDialog>();
    ASSERT_NE(view, nullptr);
    auto *list = view->findChild<QTreeWidget *>();
    ASSERT_EQ(list->topLevelItemCount(), 3);
    EXPECT_EQ(list->topLevelItem(0)->text(1), "host-tests");
    EXPECT_EQ(list->topLevelItem(0)->text(2), "Studio: Mode: default to Accurate") << "not its number";
    EXPECT_EQ(list->topLevelItem(1)->text(2), "Studio: Samples: 8 to 16");
    list->setCurrentItem(list->topLevelItem(1));
    saveOutside({{key("Studio scale"), 2.5f}});
    view->findChild<QPushButton *>("goBack")->click();
    auto *changesView = opened<QDialog>();
    ASSERT_NE(changesView, nullptr);
    changesView->accept();
    EXPECT_EQ(module.page.samples->value(), 8);
    EXPECT_EQ(module.page.mode->currentIndex(), 0);
    EXPECT_EQ(module.value<int>("Studio samples"), 16) << "nothing is in force yet";
    ASSERT_TRUE(dialog->apply());
    EXPECT_EQ(module.value<int>("Studio samples"), 8);
}

TEST_F(Following, UndoLeavesWhatChangedSinceOrIsLocked)
{
    start(R"({"Studio title": {"locked": true}})");
    saveOutside({{key("Studio samples"), 8}, {key("Studio seed"), 3}, {key("Studio title"), QString("x")}});
    saveOutside({{key("Studio samples"), 9}, {key("Studio mode"), 1}});
    olUndo undo = *olUndo::of(*session, 2);
    EXPECT_EQ(undo.changes().size(), 3u);
    saveOutside({{key("Studio samples"), 20}});
    ASSERT_EQ(undo.save().error(), QString());
    ASSERT_EQ(undo.left().size(), 2u);
    EXPECT_EQ(undo.left().front().key, "Studio title");
    EXPECT_EQ(undo.left().back().key, "Studio samples");
    Values values = stored();
    EXPECT_EQ(values.size(), 2u);
    EXPECT_TRUE(olValue::identical(values[key("Studio samples")], 20));
    EXPECT_EQ(olUndo::of(*session, 1)->changes().size(), 2u) << "what was taken back can be taken back";
}

TEST_F(Following, AChangedFileOfTheSiteIsTold)
{
    start();
    (void)session->takeNotices();
    session->follow();
    writtenFile(siteFile, R"({"Studio samples": {"value": 16}})");
    EXPECT_TRUE(QTest::qWaitFor([this] { return session->takeNotices().join(QString()).contains(siteFile); }, 1000));
    EXPECT_EQ(module.value<int>("Studio samples"), 4) << "it counts from the next start";
}

} // namespace
