#include "Session/olModuleAccess.h"
#include "Session/olSettingDescription.h"
#include "State/olValue.h"
#include "Support/PluginTest.h"

#include <QString>

#include <cmath>
#include <string>
#include <vector>

// Ranges, choices and units of every setting are in the catalogue of the settings.

namespace
{

class Descriptions : public PluginTest
{
protected:
    Descriptions() { writeDefaults(); }
};

TEST_F(Descriptions, AgreeWithWhatTheModuleOffersAndThePageHolds)
{
    for (const olPreferencesEntry *module : modules()) {
        const olModuleAccess access(*module);
        for (const olOfferedDefault &offered : module->defaults()) {
            const olSettingDescription setting = olSettingDescription::of(*module, offered.key);
            EXPECT_TRUE(olValue::identical(setting.standard, offered.value)) << offered.key;
            EXPECT_EQ(setting.whyNot(offered.value), QString()) << offered.key;
            EXPECT_EQ(setting.label.isEmpty(), access.value(offered.key, setting.type).empty()) << offered.key;
        }
    }
}

TEST_F(Descriptions, AreThereWithoutAPageToo)
{
    restart(olEdition::Essentials);
    const olSettingDescription fov = olSettingDescription::of(module("Camera"), "Camera fov");
    EXPECT_EQ(fov.unit, QStringLiteral("°"));
    EXPECT_EQ(fov.whyNot(500.0f), QStringLiteral("cannot be 500: expected a number from 1 to 100"));
    EXPECT_EQ(fov.whyNot(std::nanf("")), QStringLiteral("cannot be \"nan\": expected a number from 1 to 100"));
    EXPECT_EQ(olSettingDescription::of(module("Render Options"), "RenderOptions fixed resx").maximum, 1920.0)
        << "what this edition's page can hold";
}

TEST_F(Descriptions, ReadAsAPersonReadsThem)
{
    const auto text = [](const char *name, const char *key, const boost::any &value) {
        return olModuleAccess(module(name)).text(key, value).toStdString();
    };
    EXPECT_EQ(text("Camera", "Camera fov", 45.5f), "45.5°");
    EXPECT_EQ(text("Step", "STEPOptions max chord length", 100000.0), "100000 mm");
    EXPECT_EQ(text("Navigator", "Interaction mode", 2), "Mirra");
    EXPECT_EQ(text("Navigator", "Interaction mode", 7), "7");
    EXPECT_EQ(text("Render Options", "RenderOptions multisample quality low", 4), "4 Samples");
    EXPECT_EQ(text("Virtual Reality", "StarVR Foveated Rendering Enabled", false), "Non-Foveated Rendering");
    EXPECT_EQ(text("MainWindow", "MainWindow show fps", true), "on");
    EXPECT_EQ(text("MainWindow", "MainWindow show tool buttons text", false), "off");
    EXPECT_EQ(text("FileIO", "texture search paths", std::vector<std::string>{"/a", "b c"}), "/a, b c");
    EXPECT_EQ(text("FileIO", "FileIO tmp path", QString()), "none");
    EXPECT_EQ(text("Camera", "Camera fov", 45), "") << "of another type";
}

TEST_F(Descriptions, TellOfTheQuestionWhereThePageAsksIt)
{
    const char *const key = "WebInterface enable web server2";
    const auto question = [&] { return olSettingDescription::of(module("WebInterface"), key).warning; };
    ASSERT_TRUE(question());
    EXPECT_TRUE(olValue::equal(question()->value, true));
    EXPECT_EQ(question()->accept, QStringLiteral("Enable"));
    EXPECT_EQ(question()->reject, QStringLiteral("Do Not Enable"));

    qputenv("ORLO_DISABLE_WEBINTERFACE", "1");
    restart();
    EXPECT_FALSE(question());
    qunsetenv("ORLO_DISABLE_WEBINTERFACE");
}

} // namespace
