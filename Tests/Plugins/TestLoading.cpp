#include "Framework/olSettingList.h"
#include "State/olHostState.h"
#include "State/olPreferencesRegistry.h"
#include "Support/PluginTest.h"

#include <QCheckBox>
#include <QFile>

#include <algorithm>
#include <map>
#include <stdexcept>
#include <utility>

namespace
{

bool isMapped(const char *library)
{
    QFile maps(QStringLiteral("/proc/self/maps"));
    return maps.open(QIODevice::ReadOnly) && maps.readAll().contains(library);
}

std::vector<QString> registered()
{
    std::vector<QString> names;
    for (const olPreferencesEntry *entry : olPreferencesRegistry::the().entries())
        names.push_back(entry->name());
    return names;
}

using Loading = PluginTest;

/// Class, category and name of each module, in the order of registration.
std::vector<std::string> registrations()
{
    std::vector<std::string> found;
    for (const olPreferencesEntry *entry : olPreferencesRegistry::the().entries()) {
        const QString category = entry->category().isEmpty() ? QString() : entry->category() + " > ";
        found.push_back(entry->className() + ": " + (category + entry->name()).toStdString());
    }
    return found;
}

// Which modules there are, and in which order, is in the catalogue of the settings.
TEST_F(Loading, EveryModuleHasItsPageButEssentialsLacksTheTessellationAndTheCamerasPage)
{
    const auto all = registrations();
    for (const olEdition edition : {olEdition::Design, olEdition::Professional, olEdition::Enterprise}) {
        restart(edition);
        EXPECT_EQ(plugin.enter().error(), QString()) << "entering twice registers nothing twice";
        EXPECT_EQ(registrations(), all);
        for (const olPreferencesEntry *entry : modules())
            EXPECT_TRUE(entry->page()) << entry->className();
    }

    const std::string tessellation = "olTesselationPreferencesGUII: Import > Tesselation";
    auto expected = all;
    expected.erase(std::remove(expected.begin(), expected.end(), tessellation), expected.end());
    ASSERT_EQ(expected.size(), all.size() - 1);
    restart(olEdition::Essentials);
    EXPECT_EQ(registrations(), expected);
    for (const olPreferencesEntry *entry : modules())
        EXPECT_EQ(entry->page() == nullptr, entry->name() == "Camera") << entry->className();

    // The edition is asked at each call, so a later one makes up for what was left out.
    olHostState::the().edition = olEdition::Professional;
    EXPECT_EQ(plugin.enter().error(), QString());
    expected.push_back(tessellation);
    EXPECT_EQ(registrations(), expected);
}

int taggedControls(const QWidget &page)
{
    const auto widgets = page.findChildren<QWidget *>();
    return int(std::count_if(widgets.begin(), widgets.end(),
                             [](const QWidget *widget) { return widget->property("olSettingKeys").isValid(); }));
}

TEST_F(Loading, APageIsHandedOverWithAllOfItsSettings)
{
    plugin.unload();
    std::map<const olPreferencesEntry *, int> atHandOver;
    const auto watch = QObject::connect(&olPreferencesRegistry::the().news(), &olRegistryNews::changed, [&atHandOver] {
        for (const olPreferencesEntry *entry : modules()) {
            if (entry->page())
                atHandOver.emplace(entry, taggedControls(*entry->page()));
        }
    });
    ASSERT_EQ(plugin.load(QStringLiteral(ORLO_PLUGIN_FILE)).error(), QString());
    QObject::disconnect(watch);
    ASSERT_EQ(atHandOver.size(), modules().size());
    for (const auto &[entry, count] : atHandOver)
        EXPECT_EQ(count, taggedControls(*entry->page())) << entry->className();
}

TEST_F(Loading, APageCanBeAskedForItsSettingsNoMoreWhenItsControlsGo)
{
    int asked = 0;
    for (const olPreferencesEntry *entry : modules()) {
        QWidget *page = entry->page();
        auto *access = page->findChild<QObject *>("olSettingAccess");
        ASSERT_TRUE(access) << entry->className();
        const int controls = taggedControls(*page);
        QObject::connect(access, &QObject::destroyed, [page, controls, &asked] {
            EXPECT_EQ(taggedControls(*page), controls);
            ++asked;
        });
    }
    const int pages = int(modules().size());
    plugin.unload();
    EXPECT_EQ(asked, pages);
}

TEST(SettingOrder, ThatNamesWhatIsNotListedEndsTheProcessInEveryBuild)
{
    testing::FLAGS_gtest_death_test_style = "threadsafe";
    QObject module;
    const olSetting<bool> listed{"Listed", true};
    const olSetting<bool> forgotten{"Forgotten", true};
    QCheckBox box;
    olSettingList list(module);
    list.add(listed, &box);
    list.showOnPage({&listed});
    EXPECT_DEATH(list.showOnPage({&listed, &forgotten}), "\"Forgotten\" stands in an order");
}

TEST_F(Loading, UnloadingDestroysTheModulesLastFirst)
{
    ASSERT_TRUE(isMapped("libKernelPreferences.so"));

    // Each departure must take the last of those still there.
    auto expected = registered();
    const auto watch = QObject::connect(&olPreferencesRegistry::the().news(), &olRegistryNews::changed, [&expected] {
        expected.pop_back();
        EXPECT_EQ(registered(), expected);
    });
    plugin.unload();
    QObject::disconnect(watch);

    EXPECT_TRUE(registered().empty());
    EXPECT_FALSE(isMapped("libKernelPreferences.so"));
}

TEST_F(Loading, ASettingThatAllFormatsWriteStaysUntilItsOwnerIsGone)
{
    writeDefaults();
    std::size_t checks = modules().size();
    auto &registry = olPreferencesRegistry::the();
    const auto watch = QObject::connect(&registry.news(), &olRegistryNews::changed, [&registry, &checks] {
        --checks;
        EXPECT_EQ(record().get("PLMXML load referenced files").empty(), !registry.find(QStringLiteral("PLM XML")));
        EXPECT_EQ(record().get("BCADOptions use ATF").empty(), !registry.find(QStringLiteral("Base CAD")));
    });
    plugin.unload();
    QObject::disconnect(watch);
    EXPECT_EQ(checks, 0u);
}

TEST_F(Loading, WhatTheRecordStillHoldsOutlivesTheLibrary)
{
    record().set("Someone else's", std::vector<float>{1.0f, 0.5f}, true);
    plugin.unload();
    EXPECT_EQ(boost::any_cast<std::vector<float>>(record().get("Someone else's")), (std::vector<float>{1.0f, 0.5f}));
    record().remove("Someone else's");
}

TEST_F(Loading, AModuleThatCannotBeBuiltIsTriedAgainAndTheOthersStay)
{
    const auto names = registered();
    const std::size_t failing = names.size() / 2;
    plugin.unload();

    int attempts = 0;
    olPreferencesRegistry::the().setRegistrationHook([&](const QString &name) {
        if (name == names[failing] && ++attempts == 1)
            throw std::runtime_error("no room for it");
    });
    const QString file = QStringLiteral(ORLO_PLUGIN_FILE);
    QLibrary library(file);
    ASSERT_TRUE(library.load());
    const auto entry = reinterpret_cast<void (*)()>(library.resolve("initPreferencesPlugin"));
    EXPECT_THROW(entry(), std::runtime_error);
    EXPECT_EQ(registered(), std::vector<QString>(names.begin(), names.begin() + std::ptrdiff_t(failing)));

    entry();
    EXPECT_EQ(registered(), names);
    EXPECT_EQ(attempts, 2);
    olPreferencesRegistry::the().setRegistrationHook({});
    library.unload();
    EXPECT_TRUE(registered().empty());
}

TEST_F(Loading, TheLoaderReportsAModuleThatCannotBeBuilt)
{
    plugin.unload();
    const std::pair<void (*)(const QString &), const char *> hooks[] = {
        {[](const QString &) { throw std::runtime_error("no room for it"); }, "no room for it"},
        {[](const QString &) { throw 42; }, "a module could not be built"}};
    for (const auto &[hook, reason] : hooks) {
        olPreferencesRegistry::the().setRegistrationHook(hook);
        const QString error = plugin.load(QStringLiteral(ORLO_PLUGIN_FILE)).error();
        olPreferencesRegistry::the().setRegistrationHook({});
        EXPECT_TRUE(error.contains("libKernelPreferences.so") && error.contains(reason)) << error.toStdString();
        EXPECT_TRUE(registered().empty());
        EXPECT_FALSE(isMapped("libKernelPreferences.so"));
    }
}

// What else is no plug-in is tried on the command line.
TEST_F(Loading, ALibraryThatLacksItsFunctionsIsReportedInOneSentence)
{
    plugin.unload();
    const QString file = QStringLiteral(ORLO_UNRESOLVED_LIBRARY);
    const QString error = plugin.load(file).error();
    EXPECT_TRUE(error.startsWith(QStringLiteral("Cannot load the preferences plug-in ") + file)) << error.toStdString();
    EXPECT_TRUE(error.contains(QStringLiteral("functionThatNoHostHas"))) << error.toStdString();
    EXPECT_FALSE(error.contains(QLatin1Char('\n')));
    EXPECT_FALSE(plugin.isLoaded());
}

} // namespace
