#include "Dialog/olPreferencesDialog.h"
#include "Kernel/olPreferences.h"
#include "Session/olPreferencesSession.h"
#include "State/olPreferencesEntry.h"
#include "State/olPreferencesRegistry.h"
#include "Support/BoxWatch.h"
#include "Support/CleanHost.h"
#include "Utilities/olMessage.h"

#include <QDialogButtonBox>
#include <QFile>
#include <QPushButton>
#include <QSpinBox>
#include <QTemporaryDir>
#include <QTest>
#include <QTreeWidget>
#include <gtest/gtest.h>

#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

namespace
{

/// A module with one number, that tells what the host asks of it.
class CountingModule : public olPreferences
{
public:
    explicit CountingModule(const char *name = "Counter", const char *category = "")
        : olPreferences(name, category), m_key(name)
    {
        page.setObjectName("counterPage");
        addPreferencesGUI(&page);
    }
    ~CountingModule() override { subPreferencesGUI(&page); }

    void setDefaults(olMessage &, bool flag) override
    {
        tell("defaults");
        getData().set(m_key, defaultValue, flag);
    }
    void updateGUI() override
    {
        tell("gui");
        const int *value = boost::any_cast<int>(&getData().get(m_key));
        page.setValue(value ? *value : -1);
    }
    void updateData() override
    {
        tell("data");
        const int *before = boost::any_cast<int>(&getData().get(m_key));
        if (before && *before == page.value())
            addUnchanged(m_key.c_str());
        getData().set(m_key, page.value(), true);
    }
    void applyPreferences() override
    {
        tell("apply");
        appliedChange = isChanged(m_key.c_str());
    }
    void preferencesLoaded(olMessage &) override { tell("loaded"); }
    void preferencesNewScene(olMessage &) override { tell("scene"); }
    void preferencesInitialApply(olMessage &message) override
    {
        tell("initial");
        olPreferences::preferencesInitialApply(message);
    }

    [[nodiscard]] int value() const { return boost::any_cast<int>(getData().get(m_key)); }

    QSpinBox page;
    std::vector<std::string> told;
    std::string failing; ///< what it throws at
    bool appliedChange = false;
    int defaultValue = 3;

private:
    void tell(const std::string &asked)
    {
        told.push_back(asked);
        if (asked == failing)
            throw std::runtime_error("no more paint");
    }

    std::string m_key;
};

using Told = std::vector<std::string>;

class Session : public testing::Test
{
protected:
    Session() { cleanHost(); }
    ~Session() override { cleanHost(); }

    /// A later run of the host with the same store.
    void nextRun()
    {
        cleanHost();
        session = std::make_unique<olPreferencesSession>(file);
        ASSERT_EQ(session->loadStore().error(), QString());
    }

    QTemporaryDir folder;
    QString file = folder.filePath("deep/preferences.db");
    std::unique_ptr<olPreferencesSession> session = std::make_unique<olPreferencesSession>(file);
    CountingModule module;
    std::vector<olPreferencesEntry *> shown{olPreferencesRegistry::the().find("Counter")};
};

TEST_F(Session, StartsInTheHostsOrder)
{
    session->start();
    EXPECT_EQ(module.told, (Told{"defaults", "loaded", "gui", "initial", "apply"}));
    EXPECT_TRUE(module.appliedChange) << "at the first apply everything counts as changed";
}

TEST_F(Session, KeepsWhatWasConfirmedForTheNextRunAndDefaultsForTheRest)
{
    const olPreferencesStore::Key foreign{olHome::Service, "Someone else's"};
    ASSERT_TRUE(olPreferencesStore(file).save({{foreign, {}, olStoreRows::Row::of(true)}}).isOk());
    CountingModule other("Other");
    ASSERT_TRUE(session->loadStore().isOk());
    session->start();
    module.page.setValue(7);
    EXPECT_EQ(session->commit(shown).error(), QString());
    EXPECT_TRUE(module.appliedChange);

    nextRun();
    session->start();
    EXPECT_EQ(module.value(), 7);
    EXPECT_EQ(module.page.value(), 7);
    EXPECT_EQ(other.value(), 3);

    // Chosen again, the default is a choice; restored, it is none.
    module.page.setValue(3);
    EXPECT_EQ(session->commit(shown).error(), QString());
    nextRun();
    EXPECT_EQ(boost::any_cast<int>(olPreferences::getData().get("Counter")), 3);
    session->start();
    EXPECT_EQ(session->commit(shown, {}, {"Counter"}).error(), QString());
    nextRun();
    EXPECT_TRUE(olPreferences::getData().get("Counter").empty());
    EXPECT_EQ(olPreferencesStore(file).load()->values.count(foreign), 1u) << "what no module knows stays";
}

TEST_F(Session, AModuleThatThrowsIsToldOfAndNothingElseComesToHarm)
{
    const QString failure = "The module Counter has failed: no more paint.";
    CountingModule other("Other");
    for (const char *asked : {"defaults", "loaded", "gui", "initial", "scene"}) {
        module.failing = asked;
        other.told.clear();
        session->start();
        session->newScene();
        EXPECT_EQ(session->takeNotices(), QStringList(failure)) << asked;
        EXPECT_EQ(other.told, (Told{"defaults", "loaded", "gui", "initial", "apply", "scene"})) << asked;
    }

    module.failing = "data";
    module.page.setValue(7);
    other.page.setValue(7);
    shown.insert(shown.begin(), olPreferencesRegistry::the().find("Other"));
    EXPECT_EQ(session->commit(shown).error(), failure);
    EXPECT_EQ(other.value(), 3);
    EXPECT_FALSE(QFile::exists(file));

    module.failing = "apply";
    EXPECT_EQ(session->commit(shown).error(), QString());
    EXPECT_EQ(session->takeNotices(), QStringList(failure));
    nextRun();
    EXPECT_EQ(module.value() + other.value(), 14);
}

TEST_F(Session, TheDialogFillsAPageOnceAnOpeningAndDropsEditsOnCancel)
{
    session->start();
    module.told.clear();
    olPreferencesDialog dialog(*session);
    dialog.open("Counter");
    dialog.open("Counter");
    EXPECT_EQ(module.told, Told{"gui"});

    module.page.setValue(9);
    // A page that tells nothing of its settings is watched all the same.
    const BoxAnswers boxes({"Discard"});
    dialog.reject();
    EXPECT_EQ(module.value(), 3);
    dialog.open("Counter");
    EXPECT_EQ(module.page.value(), 3);

    module.told.clear();
    module.page.setValue(9);
    QTest::mouseClick(dialog.findChild<QDialogButtonBox *>()->button(QDialogButtonBox::Ok), Qt::LeftButton);
    EXPECT_FALSE(dialog.isVisible());
    EXPECT_EQ(module.told, (Told{"data", "apply"}));
    EXPECT_EQ(module.value(), 9);
}

TEST_F(Session, TheDialogListsModulesUnderTheirCategoriesAndGivesPagesBack)
{
    auto child = std::make_unique<CountingModule>("Child", "Family");
    const CountingModule family("Family", "Family");
    session->start();
    {
        olPreferencesDialog dialog(*session);
        const auto *tree = dialog.findChild<QTreeWidget *>();
        ASSERT_EQ(tree->topLevelItemCount(), 2) << "a module named as its category is the category's own entry";
        EXPECT_EQ(tree->topLevelItem(1)->text(0), "Family");
        EXPECT_EQ(tree->topLevelItem(1)->child(0)->text(0), "Child");
        dialog.open("Child");
        dialog.open("Family");
        // A module may go while the dialog shows its page.
        child.reset();
        dialog.open("Counter");
        EXPECT_TRUE(dialog.apply());
    }
    EXPECT_EQ(family.page.parent(), nullptr);
    EXPECT_EQ(module.page.parent(), nullptr);
}

} // namespace
