#include "Kernel/olPreferences.h"
#include "State/olPreferencesRegistry.h"
#include "State/olValue.h"
#include "Support/PluginTest.h"
#include "olHostSettings.h"

#include <QMetaObject>
#include <QVariant>

#include <map>
#include <set>

// What must hold for every module there is, whatever it is about. A new module is covered without being named here.

namespace
{

using Values = std::map<std::string, boost::any>;

Values valuesOf(const olPreferencesEntry &module)
{
    Values values;
    for (const olOfferedDefault &offered : module.defaults())
        values[module.className() + ' ' + offered.key] = module.value(offered.key);
    return values;
}

void expectSame(const Values &left, const Values &right)
{
    ASSERT_EQ(left.size(), right.size());
    for (const auto &[key, value] : left) {
        EXPECT_TRUE(olValue::equal(value, right.at(key)))
            << key << ": " << olValue::toJson(value) << " and then " << olValue::toJson(right.at(key));
    }
}

/// What the control of a key holds; invalid for a key without one.
QVariant onPage(const olPreferencesEntry &module, const std::string &key)
{
    auto *access = module.page() ? module.page()->findChild<QObject *>("olSettingAccess") : nullptr;
    QVariant value;
    if (access)
        QMetaObject::invokeMethod(access, "value", Q_RETURN_ARG(QVariant, value),
                                  Q_ARG(QString, QString::fromStdString(key)));
    return value;
}

class Contract : public PluginTest, public testing::WithParamInterface<olEdition>
{
protected:
    Contract() : PluginTest(GetParam()) { writeDefaults(); }
};

TEST_P(Contract, DefaultsShownAndTakenBackChangeNothing)
{
    for (olPreferencesEntry *module : modules()) {
        const Values before = valuesOf(*module);
        module->updateGUI();
        for (int turn = 0; turn < 2; ++turn) {
            module->updateData();
            expectSame(before, valuesOf(*module));
        }
    }
}

TEST_P(Contract, AKeyHasOneOwner)
{
    // Every format offers these two, because each asks for them; their owners remove them.
    const std::set<std::string> shared{"BCADOptions use ATF", "PLMXML load referenced files"};
    std::map<std::string, std::string> owners;
    for (const olPreferencesEntry *module : modules()) {
        for (const olOfferedDefault &offered : module->defaults()) {
            EXPECT_FALSE(olValue::typeName(offered.value).empty()) << offered.key << " has a type of no setting";
            const auto [owner, isNew] = owners.emplace(offered.key, module->className());
            EXPECT_TRUE(isNew || shared.count(offered.key))
                << offered.key << " of " << module->className() << " is also " << owner->second << "'s";
        }
    }
}

template <class T> bool isOffered(const olHostSetting<T> &setting)
{
    const olPreferencesEntry *owner = olPreferencesRegistry::the().ownerOf(setting.key);
    return owner && boost::any_cast<T>(&owner->findDefault(setting.key)->value);
}

TEST_P(Contract, TheSettingsThatTheHostGoesByAreThereWithTheirTypes)
{
    for (const auto &number : {olHostSettings::language, olHostSettings::webPort, olHostSettings::webSslPort})
        EXPECT_TRUE(isOffered(number)) << number.key;
    for (const auto &flag : {olHostSettings::webLocalhostOnly, olHostSettings::webUseWhiteList})
        EXPECT_TRUE(isOffered(flag)) << flag.key;
    EXPECT_TRUE(isOffered(olHostSettings::webWhiteList));
}

TEST_P(Contract, DefaultsWithoutTheFlagOverwriteNothing)
{
    for (olPreferencesEntry *module : modules()) {
        if (module->home() != olHome::Record)
            continue;
        const auto offered = module->defaults();
        for (const olOfferedDefault &setting : offered)
            record().set(setting.key, std::string("someone's own"), true);
        module->setDefaults(false);
        for (const olOfferedDefault &setting : offered)
            EXPECT_EQ(olValue::typeName(record().get(setting.key)), "string") << setting.key;
        module->setDefaults(true);
        for (const olOfferedDefault &setting : offered)
            EXPECT_TRUE(olValue::equal(record().get(setting.key), setting.value)) << setting.key;
    }
}

TEST_P(Contract, AWrongTypeReachesTheHostNoMoreThanAMissingKey)
{
    testing::internal::CaptureStderr(); // what the reader says of wrong types is tested where it belongs
    for (olPreferencesEntry *module : modules()) {
        if (module->home() != olHome::Record)
            continue;
        const auto offered = module->defaults();
        for (const olOfferedDefault &setting : offered) {
            module->setDefaults(true);
            module->updateGUI();
            module->applyPreferences();

            record().remove(setting.key);
            calls.take();
            module->applyPreferences();
            const auto missing = calls.take();
            module->updateGUI();
            const QVariant control = onPage(*module, setting.key);

            // No setting is a single character.
            record().set(setting.key, 'x', true);
            module->applyPreferences();
            EXPECT_EQ(calls.take(), missing) << setting.key;
            module->updateGUI();
            EXPECT_EQ(onPage(*module, setting.key), control) << setting.key;
        }
    }
    testing::internal::GetCapturedStderr();
}

TEST_P(Contract, TearingDownLeavesNoKey)
{
    plugin.unload();
    EXPECT_TRUE(record().entries().empty()) << "first key left: " << record().entries().begin()->first;
}

TEST_P(Contract, NothingEditedMeansNothingChangedForTheTrackingModules)
{
    // These store plainly and report nothing, so everything of theirs counts as changed.
    const std::set<std::string> plain{"olMainWindowPreferencesGUII", "olFileIOPreferencesGUII", "olWrlPreferencesGUII",
                                      "olKBXFilePreferencesGUII"};
    for (olPreferencesEntry *module : modules()) {
        auto *tracking = dynamic_cast<olPreferences *>(module->object());
        if (!tracking || plain.count(module->className()))
            continue;
        module->updateGUI();
        module->updateData();
        for (const olOfferedDefault &offered : module->defaults()) {
            const bool hasControl = onPage(*module, offered.key).isValid();
            EXPECT_EQ(tracking->isChanged(offered.key.c_str()), !hasControl && module->page()) << offered.key;
        }
    }
}

/// What a host may do in another order than ours: the pages are filled last.
TEST_P(Contract, AnotherHostsOrderOfStartingWorksToo)
{
    olMessage &data = record();
    data.set("Camera fov", 60.0f, true);
    for (olPreferencesEntry *module : modules()) {
        module->setDefaults(false);
        module->preferencesLoaded();
    }
    for (olPreferencesEntry *module : modules())
        module->preferencesInitialApply();
    for (olPreferencesEntry *module : modules())
        module->updateGUI();
    const auto otherOrder = calls.take();
    EXPECT_NE(std::find(otherOrder.begin(), otherOrder.end(), "olOSGWidget::setFov(-1, 60)"), otherOrder.end());

    for (olPreferencesEntry *module : modules()) {
        const Values some = valuesOf(*module);
        module->updateData();
        expectSame(some, valuesOf(*module));
    }
}

INSTANTIATE_TEST_SUITE_P(Editions, Contract,
                         testing::Values(olEdition::Essentials, olEdition::Design, olEdition::Enterprise));

} // namespace
