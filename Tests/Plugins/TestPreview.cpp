#include "Plugins/SettingWalk.h"
#include "Session/olPreferencesSession.h"
#include "State/olHostState.h"
#include "State/olValue.h"
#include "Support/PluginTest.h"

#include <QTemporaryDir>

#include <algorithm>
#include <map>
#include <set>
#include <string>
#include <vector>

namespace
{

class Preview : public PluginTest
{
protected:
    /// Whatever calls change, but for how often the view was told to draw.
    static std::map<std::string, std::string> host()
    {
        std::map<std::string, std::string> state;
        for (const olHostValueBase *value : olHostState::the().values())
            state[value->name()] = olValue::toJson(value->any());
        state.erase("viewUpdates");
        for (const auto &[key, reason] : olHostState::the().refusals.get())
            state["refused " + key] = reason.toStdString();
        return state;
    }

    static std::vector<boost::any> valuesOf(const std::string &key, const boost::any &standard)
    {
        std::vector<boost::any> values;
        for (const olSettingChoice &choice : olPreferencesSession::description(key).choices)
            values.push_back(choice.value);
        if (values.empty())
            values = {standard, SettingWalk::another(standard)};
        return values;
    }

    static void applyAlone(olPreferencesEntry &module, const std::string &key, const boost::any &value)
    {
        for (const olOfferedDefault &offered : module.defaults())
            module.setChanged(offered.key, offered.key == key);
        module.setValue(key, value);
        module.applyPreferences();
        module.markClean();
    }

    QTemporaryDir folder;
    olPreferencesSession session{folder.filePath(QStringLiteral("preferences.db")), {}};
};

TEST_F(Preview, TheHostIsAsItWasAfterEverySettingThatIsPreviewedAndOnlyThoseAre)
{
    session.start();
    std::set<std::string> seen;
    std::set<std::string> notPutBack;
    for (olPreferencesEntry *module : modules()) {
        const auto canBe = [](const olOfferedDefault &offered) {
            return olPreferencesSession::description(offered.key).canBePreviewed;
        };
        const bool isOfView = std::any_of(module->defaults().begin(), module->defaults().end(), canBe);
        const std::string name = module->name().toStdString();
        EXPECT_EQ(isOfView, (std::set<std::string>{"Camera", "Render Options", "Navigator", "Selection"}.count(name)))
            << name;
        for (const bool on : {true, false}) {
            if (!isOfView)
                continue;
            SettingWalk::setAll(*module, on);
            module->applyPreferences();
            module->markClean();
            for (const olOfferedDefault &offered : module->defaults()) {
                const std::string &key = offered.key;
                const boost::any kept = module->value(key);
                for (const boost::any &from : valuesOf(key, offered.value)) {
                    for (const boost::any &to : valuesOf(key, offered.value)) {
                        applyAlone(*module, key, from);
                        const auto before = host();
                        session.preview({{key, to}});
                        const auto during = host();
                        EXPECT_TRUE(olValue::identical(module->value(key), from)) << key << " is in force";
                        session.preview({});
                        EXPECT_EQ(host(), before) << key << ": " << olValue::toJson(to);
                        if (during != before)
                            seen.insert(key);
                        EXPECT_TRUE(canBe(offered) || during == before) << key;

                        applyAlone(*module, key, to);
                        applyAlone(*module, key, from);
                        if (host() != before)
                            notPutBack.insert(key);
                    }
                }
                applyAlone(*module, key, kept);
            }
        }
    }
    // The view of a second graphics card is another one only at the next start.
    EXPECT_EQ(notPutBack, std::set<std::string>{"RenderOptions headlight mode"});
    // All but the two that are not previewed and the seven that nothing is called for.
    EXPECT_EQ(seen.size(), 6u + 63u + 16u + 9u - 2u - 7u);
    EXPECT_EQ(seen.count("RenderOptions nvidia sli mode"), 0u);
}

TEST_F(Preview, EssentialsIsPutBackAsWell)
{
    restart(olEdition::Essentials);
    session.start();
    const auto before = host();
    olSettingValues all;
    for (const char *name : {"Camera", "Render Options", "Navigator", "Selection"}) {
        for (const olOfferedDefault &offered : module(name).defaults())
            all[offered.key] = SettingWalk::another(offered.value);
    }
    session.preview(all);
    EXPECT_NE(host(), before);
    session.preview({});
    EXPECT_EQ(host(), before);
}

TEST_F(Preview, OnlyWhatIsPreviewedCountsAsChangedAndWhatElseHappensMeanwhileLeavesItInSight)
{
    session.start();
    calls.take();
    session.preview({{"Camera fov", 60.0f}, {"STEPOptions chord deviation", 3.0}, {"Powerwall width", QString("x")}});
    EXPECT_EQ(calls.take(), std::vector<std::string>{"olOSGWidget::setFov(-1, 60)"});
    session.preview({{"Camera fov", 60.0f}, {"Stereo eye separation", 50.0f}});
    EXPECT_EQ(calls.take(), std::vector<std::string>{"olOSGWidget::setGlobalEyeSeparation(50)"});
    session.preview({});
    EXPECT_EQ(calls.take(),
              (std::vector<std::string>{"olOSGWidget::setFov(-1, 45)", "olOSGWidget::setGlobalEyeSeparation(63)"}));

    // Both modules apply more than what has changed, and a new scene takes its background from the record.
    const std::vector<osg::Color3f> red{{1.0f, 0.0f, 0.0f}};
    session.preview({{"Navigator dolly speed", 7.0f}, {"RenderOptions background colors", red}});
    olPreferencesStore other(session.store().file());
    ASSERT_EQ(session.loadStore().error(), QString());
    ASSERT_TRUE(other.save({{{olHome::Record, "Navigator panning speed"}, {}, olStoreRows::Row::of(3.0f)}}).isOk());
    session.takeOver();
    session.newScene();
    EXPECT_EQ(olHostState::the().navPanningSpeed, 3.0f);
    EXPECT_EQ(olHostState::the().navDollySpeed, 7.0f);
    EXPECT_TRUE(olValue::equal(olHostState::the().backgroundColors.any(), red));

    ASSERT_EQ(session.save().error(), QString());
    EXPECT_EQ(other.load()->values.count({olHome::Record, "Navigator dolly speed"}), 0u) << "never stored";
    ASSERT_EQ(session.commit({&module("Camera")}).error(), QString());
    EXPECT_EQ(olHostState::the().navDollySpeed, 1.0f) << "what is not confirmed goes from the view";
}

} // namespace
