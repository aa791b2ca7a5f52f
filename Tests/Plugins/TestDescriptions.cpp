#include "Session/olModuleAccess.h"
#include "Session/olSettingDescription.h"
#include "State/olValue.h"
#include "Support/PluginTest.h"

#include <QStringList>

#include <cmath>
#include <map>
#include <set>

// What every setting says of its range and choices, against what was written down by hand.

namespace
{

QString number(double value) { return QString::number(value, 'g', 12); }

/// "1..100 2 decimals °", or "0 Off, 1 On"; empty where anything of the type can be set.
QString bounds(const olSettingDescription &setting)
{
    QStringList parts;
    if (!std::isinf(setting.minimum) || !std::isinf(setting.maximum)) {
        parts << (std::isinf(setting.minimum) ? QString() : number(setting.minimum)) + QStringLiteral("..") +
                     (std::isinf(setting.maximum) ? QString() : number(setting.maximum));
    }
    if (setting.decimals)
        parts << QStringLiteral("%1 decimals").arg(*setting.decimals);
    if (!setting.unit.isEmpty())
        parts << setting.unit;
    QStringList choices;
    for (const olSettingChoice &choice : setting.choices)
        choices << QString::fromStdString(olValue::toJson(choice.value)) + QLatin1Char(' ') + choice.text;
    if (!choices.isEmpty())
        parts << choices.join(QStringLiteral(", "));
    if (setting.isEditable)
        parts << QStringLiteral("or any");
    return parts.join(QLatin1Char(' '));
}

const char *const samples = "1 1 Sample, 2 2 Samples, 4 4 Samples, 8 8 Samples, 16 16 Samples";
const char *const units =
    R"("millimeter" millimeter, "centimeter" centimeter, "meter" meter, "inch" inch, "foot" foot)";

std::map<std::string, QString> byHand()
{
    std::map<std::string, QString> table{
        {"Camera fov", "1..100 °"},
        {"Stereo eye separation", "mm"},
        {"Stereo zero plane parallaxe", "mm"},
        {"Powerwall width", "mm"},
        {"Powerwall height", "mm"},
        {"Powerwall distance", "mm"},
        {"Devices spacemouse height", "mm"},
        {"RenderOptions enable postprocess antialias", "0 off, 1 on"},
        {"RenderOptions antialiase time", "s"},
        {"RenderOptions headlight mode", "0 Auto, 1 Always On, 2 Always Off, 3 Ignore"},
        {"RenderOptions hardware antialiasing quality", "0 Off, 1 2x, 2 4x, 3 8x, 4 16x"},
        {"RenderOptions nvidia sli mode", "0 Alternate Frame, 1 Multicast Stereo"},
        {"RenderOptions near plane", "1e-06.. mm"},
        {"RenderOptions far plane", "1e-06.. mm"},
        {"RenderOptions downscale quality", "0 Low, 1 Medium, 2 High"},
        {"RenderOptions fixed resx", "0..16384 px"},
        {"RenderOptions fixed resy", "0..16384 px"},
        {"RenderOptions progress cursor size", "0..2147483647 px"},
        {"Navigator mode", "0 Trackball, 3 TwoAxis, 1 Fly, 4 Orientation"},
        {"Navigator animate camera duration", "0.."},
        {"Navigator panning speed", "0..1000 2 decimals"},
        {"Navigator speed mode", "0 Unconstrained, 1 Limited, 2 Linear"},
        {"Navigator dolly speed", "0..1000 2 decimals"},
        {"Navigator dolly axis", "0 Vertical Only, 1 Horizontal Only, 2 Horizontal and Vertical"},
        {"Navigator orbit detection area", "0..99999 px"},
        {"Navigator orbit detection time", "0..99999 ms"},
        {"Interaction mode", "0 ORLO, 1 Contura, 2 Mirra"},
        {"Selection preselection color", "0..1"},
        {"RenderOptions selection color", "0..1"},
        {"MainWindow window opacity", "0.1..1"},
        {"MainWindow user language", "0 English, 1 Chinese, 2 Japanese, 3 Korean"},
        {"Devices spacemouse view", "0 Camera, 1 Object"},
        {"Devices spacemouse rotation pivot", "0 Camera, 1 Selected Object/Origin, 2 Focus Distance"},
        {"Devices joystick id", "0..99"},
        {"Help Location", "0 Marvane Knowledge Network, 1 Installed Help"},
        {"Help Popup", "0 Toolclips, 1 Simple Toolclips"},
        {"WebInterface port", "0..2147483647"},
        {"WebInterface ssl port", "0..2147483647"},
        {"VR Teleport Ground Mode", "0 On Geometry, 1 On Ground Plane"},
        {"VR Teleport Range", "0.. mm"},
        {"VR Visualise Hands", "0 Controllers, 1 Hands"},
        {"StarVR Foveated Rendering Enabled", "true Foveated Rendering, false Non-Foveated Rendering"},
        {"StarVR Foveated FOV Factor", "0..1"},
        {"StarVR Foveated Resolution Scale", "0..1"},
        {"StarVR Non-Foveated Resolution Scale", "0..1"},
        {"StarVR Front View Resolution Scale", "0..1"},
        {"StarVR Side View Resolution Scale", "0..1"},
        {"Loader compress texture mode", "0 None, 1 Auto, 2 Always"},
        {"Loader compress texture size", "32 32, 64 64, 128 128, 256 256, 512 512, 1024 1024"},
        {"BCADOptions max parallel tasks", "-1..32768"},
        {"Optimizer Topology Tolerance", "mm"},
        {"Optimizer Topology Method", "0 Create New, 1 Reuse Existing (If Any), 2 No Topology"},
        {"Optimizer Teselation Quality", "mm"},
        {"JTOptions LOADBREPS", "0 Tesselate All Breps, 1 Load JT Breps Only, 2 Load XT Breps Only, 3 Load All Breps"},
        {"STLOptions export", "0 Ascii, 1 Binary"},
        {"KbxOptions version", "0 KBX 2016/2017, 2014 KBX 2014/2015, 2013 KBX 2013, 2012 KBX 2012, 2011 KBX 2011"},
        {"KbxOptions format", "0 Binary, 1 Text"},
        {"WrlFileIO reader optimization", "0 Auto, 1 Catia, 2 Pro Engineer"},
        {"MirraFileIO units", QString::fromLatin1(units) + " or any"},
        {"MirraFileIO import units", QString::fromLatin1(units) + R"(, "ignore" ignore or any)"},
    };
    for (const char *quality : {"low", "medium", "high", "ultra"}) {
        table[std::string("RenderOptions multisample quality ") + quality] = samples;
        table[std::string("RenderOptions raytracing supersampling quality ") + quality] = samples;
    }
    for (const char *format : {"CatiaV4", "CatiaV5", "Wire", "IGES", "NX", "STEP", "Draftix", "Partwright",
                               "SolidWorks", "SolidEdge", "STL", "ProE", "JT", "Rhino", "BCAD", "DGN", "PLMXML"}) {
        const std::string options = std::string(format) + "Options ";
        table[options + "stitching tolerance"] = "0..1000 mm";
        table[options + "chord deviation"] = "0.0001..1000 mm";
        table[options + "normal tolerance"] = "0.1..90 °";
        table[options + "max chord length"] = "0.0001..1000000 mm";
        table[options + "import mesh LODs"] = "0 off, 2 on";
    }
    return table;
}

class Descriptions : public PluginTest
{
protected:
    Descriptions()
    {
        for (olPreferencesEntry *module : modules())
            module->setDefaults(true);
    }
};

TEST_F(Descriptions, OfEverySettingAreWhatWasWrittenDownByHand)
{
    std::map<std::string, QString> expected = byHand();
    std::set<std::string> seen;
    for (const olPreferencesEntry *module : modules()) {
        for (const std::string &key : olModuleAccess(*module).keys()) {
            const olSettingDescription setting = olSettingDescription::of(*module, key);
            EXPECT_EQ(bounds(setting).toStdString(), expected[key].toStdString()) << key;
            const bool hasControl = !olModuleAccess(*module).value(key, setting.type).empty();
            EXPECT_EQ(setting.label.isEmpty(), !hasControl) << key;
            seen.insert(key);
        }
        for (const olOfferedDefault &offered : module->defaults()) {
            const olSettingDescription setting = olSettingDescription::of(*module, offered.key);
            EXPECT_TRUE(olValue::identical(setting.standard, offered.value)) << offered.key;
            EXPECT_EQ(setting.whyNot(offered.value), QString()) << offered.key;
            EXPECT_EQ(seen.count(offered.key), 1u) << offered.key;
        }
    }
    for (const auto &[key, text] : expected)
        EXPECT_EQ(seen.count(key), 1u) << key;
}

TEST_F(Descriptions, AreThereWithoutAPageToo)
{
    restart(olEdition::Essentials);
    const olSettingDescription fov = olSettingDescription::of(module("Camera"), "Camera fov");
    EXPECT_EQ(bounds(fov), QStringLiteral("1..100 °"));
    EXPECT_EQ(fov.whyNot(500.0f), QStringLiteral("cannot be 500: expected a number from 1 to 100"));
    EXPECT_EQ(bounds(olSettingDescription::of(module("Render Options"), "RenderOptions fixed resx")),
              QStringLiteral("0..1920 px"))
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
