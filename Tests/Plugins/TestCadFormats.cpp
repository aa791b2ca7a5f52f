#include "Embedded/olValue.h"
#include "FileIO/olFileType.h"
#include "Kernel/olImportOptions.h"
#include "Preferences/olPreferencesRegistry.h"
#include "Support/PluginTest.h"
#include "Widgets/olTesselationSettings.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QSlider>

#include <algorithm>
#include <map>
#include <set>

namespace
{

using Lines = std::vector<std::string>;

struct Format {
    const char *name;
    const char *className;
    const char *prefix; // of the keys
    Lines extras;
};

// In the order of registration. KBX stands apart: it has no import options.
const std::vector<Format> formats{
    {"Catia V4", "olCatiaV4FilePreferencesGUII", "CatiaV4", {}},
    {"Catia V5", "olCatiaV5FilePreferencesGUII", "CatiaV5", {}},
    {"Contura", "olWireFilePreferencesGUII", "Wire", {}},
    {"Iges", "olIgesFilePreferencesGUII", "IGES", {}},
    {"NX", "olNXFilePreferencesGUII", "NX", {}},
    {"Step", "olStepFilePreferencesGUII", "STEP", {}},
    {"Draftix", "olDraftixFilePreferencesGUII", "Draftix", {}},
    {"Partwright", "olPartwrightFilePreferencesGUII", "Partwright", {}},
    {"SolidWorks", "olSolidWorksFilePreferencesGUII", "SolidWorks", {}},
    {"SolidEdge", "olSolidEdgeFilePreferencesGUII", "SolidEdge", {}},
    {"STL", "olStlFilePreferencesGUII", "STL", {"STLOptions export int 0"}},
    {"ProE / Creo", "olProEngineerFilePreferencesGUII", "ProE", {}},
    {"JT",
     "olJtFilePreferencesGUII",
     "JT",
     {"JTOptions USEPLUGIN bool false", "JTOptions ACTIVELAYERFILTER bool true", "JTOptions LOADBREPS int 0"}},
    {"Rhino",
     "olRhinoFilePreferencesGUII",
     "Rhino",
     {"RhinoOptions USEPLUGIN bool false", "RhinoOptions import nurbs bool true"}},
    {"Base CAD", "olGenericCADFilePreferencesGUII", "BCAD", {}},
    {"KBX",
     "olKBXFilePreferencesGUII",
     "Kbx",
     {"KbxOptions version int 0", "KbxOptions format int 0", "KbxOptions export vertex colors bool false"}},
    {"DGN", "olDGNFilePreferencesGUII", "DGN", {}},
    {"PLM XML", "olPLMXMLPreferencesGUII", "PLMXML", {}},
};

bool hasImportOptions(const Format &format) { return std::string(format.name) != "KBX"; }

const Lines importOptions{
    "Options stitching bool true",
    "Options stitching tolerance double 0.1",
    "Options tessellation bool true",
    "Options keep surface data bool true",
    "Options create groups for layers bool true",
    "Options chord deviation double 0.075",
    "Options normal tolerance double 10",
    "Options max chord length double 200",
    "Options merge geometries bool true",
    "Options remove empty groups bool true",
    "Options unshare nodes bool false",
    "Options flush transformations bool false",
    "Options import surfaces bool true",
    "Options import invisible surfaces bool false",
    "Options unify surface normals bool true",
    "Options import meshes bool true",
    "Options import invisible meshes bool false",
    "Options import curves bool false",
    "Options import invisible curves bool false",
    "Options import invisible instances bool false",
    "Options import associative meshes bool false",
    "Options import empty layers bool false",
    "Options import coord systems bool false",
    "Options import cameras bool false",
    "Options import lights bool false",
    "Options import variants bool false",
    "Options import template geometries bool false",
    "Options import referenced files bool true",
    "Options import mesh LODs int 2",
};

const Lines sharedOptions{"BCADOptions use ATF bool false", "PLMXML load referenced files bool true"};

Lines expectedDefaults(const Format &format)
{
    Lines lines;
    if (hasImportOptions(format)) {
        for (const std::string &option : importOptions)
            lines.push_back(format.prefix + option);
        lines.insert(lines.end(), sharedOptions.begin(), sharedOptions.end());
    }
    lines.insert(lines.end(), format.extras.begin(), format.extras.end());
    return lines;
}

bool isShownOn(const QWidget &page, const QWidget *widget)
{
    for (; widget != &page; widget = widget->parentWidget()) {
        if (widget->isHidden())
            return false;
    }
    return true;
}

/// Gives every control that the page shows another value.
void editEverything(QWidget &page)
{
    for (auto *box : page.findChildren<QCheckBox *>()) {
        if (isShownOn(page, box))
            box->toggle();
    }
    for (auto *combo : page.findChildren<QComboBox *>()) {
        if (isShownOn(page, combo))
            combo->setCurrentIndex(combo->currentIndex() + 1);
    }
    auto &block = *page.findChild<olTesselationSettings *>();
    if (isShownOn(page, &block)) {
        block.setChordDeviation(0.3);
        block.setNormalTolerance(15.0);
        block.setMaxChordLength(333.0);
        block.setStitchingTolerance(0.7);
    }
}

class CadFormats : public PluginTest
{
protected:
    static void forAll(void (olPreferencesEntry::*operation)())
    {
        for (const Format &format : formats)
            (module(format.name).*operation)();
    }

    static void startAfresh()
    {
        for (const Format &format : formats)
            module(format.name).setDefaults(true);
        forAll(&olPreferencesEntry::updateGUI);
    }

    static std::set<std::string> keysThatDiffer(const olMessage::Entries &before)
    {
        std::set<std::string> keys;
        for (const auto &[key, value] : record().entries()) {
            const auto found = before.find(key);
            if (found == before.end() || !olValue::equal(found->second, value))
                keys.insert(key);
        }
        return keys;
    }

    static void showAlone(const char *name, const char *key, const QVariant &value)
    {
        auto *access = module(name).page()->findChild<QObject *>(QStringLiteral("olSettingAccess"));
        bool shown = false;
        ASSERT_TRUE(QMetaObject::invokeMethod(access, "setValue", Q_RETURN_ARG(bool, shown),
                                              Q_ARG(QString, QString::fromLatin1(key)), Q_ARG(QVariant, value)));
        EXPECT_TRUE(shown);
    }
};

TEST_F(CadFormats, ComeFirstInTheRegistryEachWithAPageOfItsOwn)
{
    ASSERT_GE(modules().size(), formats.size());
    std::set<const QWidget *> pages;
    for (std::size_t row = 0; row < formats.size(); ++row) {
        const olPreferencesEntry &entry = *modules()[row];
        EXPECT_EQ(entry.name(), QString::fromLatin1(formats[row].name));
        EXPECT_EQ(entry.category(), QStringLiteral("FileIO"));
        EXPECT_EQ(entry.className(), formats[row].className);
        EXPECT_NE(entry.page(), nullptr);
        pages.insert(entry.page());
    }
    EXPECT_EQ(pages.size(), formats.size());
}

TEST_F(CadFormats, HandTheirPageOverWithTheirOwnGroupsOnIt)
{
    const auto &registry = olPreferencesRegistry::the();
    std::map<QString, int> groupsAtHandOver;
    QObject context;
    plugin.unload();
    QObject::connect(&registry, &olPreferencesRegistry::changed, &context, [&registry, &groupsAtHandOver] {
        for (const olPreferencesEntry *entry : registry.entries()) {
            if (!entry->page() || groupsAtHandOver.count(entry->name()))
                continue;
            const auto groups = entry->page()->findChildren<QGroupBox *>();
            groupsAtHandOver[entry->name()] = int(
                std::count_if(groups.begin(), groups.end(), [](const QGroupBox *group) { return !group->isHidden(); }));
        }
    });
    restart();
    EXPECT_EQ(groupsAtHandOver["Step"], 4);
    EXPECT_EQ(groupsAtHandOver["JT"], 6);
    EXPECT_EQ(groupsAtHandOver["Rhino"], 5);
    EXPECT_EQ(groupsAtHandOver["STL"], 5);
    EXPECT_EQ(groupsAtHandOver["KBX"], 1);
}

TEST_F(CadFormats, WriteTheirKeysWithTypesAndDefaultsInOrder)
{
    for (const Format &format : formats) {
        module(format.name).setDefaults(true);
        Lines offered;
        for (const olOfferedDefault &setting : module(format.name).defaults())
            offered.push_back(setting.key + ' ' + olValue::typeName(setting.value) + ' ' +
                              olValue::toJson(setting.value));
        EXPECT_EQ(offered, expectedDefaults(format)) << format.name;
    }
}

TEST_F(CadFormats, NeverLeakIntoEachOther)
{
    for (const Format &format : formats) {
        startAfresh();
        const olMessage::Entries before = record().entries();
        editEverything(*module(format.name).page());
        forAll(&olPreferencesEntry::updateData);

        const std::set<std::string> changed = keysThatDiffer(before);
        for (const std::string &key : changed)
            EXPECT_EQ(key.rfind(format.prefix + std::string("Options "), 0), 0u) << format.name << " changed " << key;

        // One step further, each of the three choices changes one setting of its pair.
        const std::size_t ofPairs = 3;
        const std::size_t expected =
            format.extras.size() + (hasImportOptions(format) ? importOptions.size() - ofPairs : 0);
        EXPECT_EQ(changed.size(), expected) << format.name;
    }
}

TEST_F(CadFormats, ImportersOfOtherTypesSeeNothingOfAnEdit)
{
    startAfresh();
    editEverything(*module("JT").page());
    forAll(&olPreferencesEntry::updateData);
    forAll(&olPreferencesEntry::applyPreferences);
    EXPECT_EQ(olImportOptions::written("JT")->maxChordLength, 333.0);
    EXPECT_EQ(olImportOptions::written("JT")->loadBreps, 1);
    EXPECT_EQ(olImportOptions::written("JT")->legacyLoader, "VWSH");
    EXPECT_EQ(olImportOptions::written("Rhino")->maxChordLength, 200.0);
    EXPECT_EQ(olImportOptions::written("Rhino")->legacyLoader, "");
    EXPECT_EQ(olImportOptions::written("KBX"), nullptr);
}

TEST_F(CadFormats, ConfirmingWithoutAnEditChangesNothingAndSaysSo)
{
    startAfresh();
    const olMessage::Entries before = record().entries();
    forAll(&olPreferencesEntry::updateData);
    EXPECT_EQ(keysThatDiffer(before), std::set<std::string>());
}

TEST_F(CadFormats, SettingThatAllWriteStaysUntilItsOwnerIsGone)
{
    startAfresh();
    const auto &registry = olPreferencesRegistry::the();
    int checks = 0;
    QObject context;
    QObject::connect(&registry, &olPreferencesRegistry::changed, &context, [&registry, &checks] {
        ++checks;
        EXPECT_EQ(record().get("PLMXML load referenced files").empty(), !registry.find(QStringLiteral("PLM XML")));
        EXPECT_EQ(record().get("BCADOptions use ATF").empty(), !registry.find(QStringLiteral("Base CAD")));
    });
    plugin.unload();
    EXPECT_GE(checks, int(formats.size()));
}

TEST_F(CadFormats, QualityFollowsAToleranceThatIsShownAlone)
{
    startAfresh();
    const auto &block = *module("Step").page()->findChild<olTesselationSettings *>();
    const auto &quality = dynamic_cast<QSlider &>(*block.control(olTesselationSettings::Control::Quality));
    const int before = quality.value();
    showAlone("Step", "STEPOptions chord deviation", 0.0001);
    showAlone("Step", "STEPOptions normal tolerance", 1.0);
    EXPECT_GT(quality.value(), before);
    EXPECT_EQ(block.chordDeviation(), 0.0001);
}

TEST_F(CadFormats, TabKeyVisitsTheTessellationBlockBetweenItsNeighbours)
{
    QStringList visited;
    const auto *page = module("Rhino").page();
    const QWidget *widget = page;
    while ((widget = widget->nextInFocusChain()) != page) {
        if (widget->focusPolicy() & Qt::TabFocus && isShownOn(*page, widget))
            visited << (widget->objectName().isEmpty() ? widget->accessibleName() : widget->objectName());
    }
    const int meshes = visited.indexOf(QStringLiteral("meshes"));
    EXPECT_EQ(visited.mid(meshes + 2, 4),
              (QStringList{"Quality", "Chord Deviation", "Normal Tolerance", "Max Chord Length"}));
    EXPECT_EQ(visited.mid(meshes + 8, 1), QStringList{"importVariants"});
    EXPECT_EQ(visited.mid(visited.size() - 3), (QStringList{"useLegacyRhinoLoader", "mergeGeometries", "importNurbs"}));
}

TEST(FileType, NumberOutsideTheTableIsUndefined)
{
    EXPECT_STREQ(olFileType::name(0), "CatiaV4");
    EXPECT_STREQ(olFileType::name(14), "BCAD");
    EXPECT_STREQ(olFileType::name(17), "PLMXML");
    EXPECT_STREQ(olFileType::name(26), "Parasolid");
    EXPECT_STREQ(olFileType::name(32), "USD");
    EXPECT_STREQ(olFileType::name(33), "undefined");
    EXPECT_STREQ(olFileType::name(-1), "undefined");
}

} // namespace
