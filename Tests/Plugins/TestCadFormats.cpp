#include "Embedded/olValue.h"
#include "Kernel/olImportOptions.h"
#include "Preferences/olPreferencesRegistry.h"
#include "Support/PluginTest.h"
#include "Widgets/olTesselationSettings.h"

#include <QtWidgets>

#include <algorithm>
#include <map>
#include <set>

namespace
{

using Lines = std::vector<std::string>;

struct Format {
    const char *name;
    const char *prefix; // of the keys
    Lines extras;
};

// In the order of registration. KBX stands apart: it has no import options.
const std::vector<Format> formats{
    {"Catia V4", "CatiaV4", {}},
    {"Catia V5", "CatiaV5", {}},
    {"Contura", "Wire", {}},
    {"Iges", "IGES", {}},
    {"NX", "NX", {}},
    {"Step", "STEP", {}},
    {"Draftix", "Draftix", {}},
    {"Partwright", "Partwright", {}},
    {"SolidWorks", "SolidWorks", {}},
    {"SolidEdge", "SolidEdge", {}},
    {"STL", "STL", {"STLOptions export int 0"}},
    {"ProE / Creo", "ProE", {}},
    {"JT",
     "JT",
     {"JTOptions USEPLUGIN bool false", "JTOptions ACTIVELAYERFILTER bool true", "JTOptions LOADBREPS int 0"}},
    {"Rhino", "Rhino", {"RhinoOptions USEPLUGIN bool false", "RhinoOptions import nurbs bool true"}},
    {"Base CAD", "BCAD", {}},
    {"KBX",
     "Kbx",
     {"KbxOptions version int 0", "KbxOptions format int 0", "KbxOptions export vertex colors bool false"}},
    {"DGN", "DGN", {}},
    {"PLM XML", "PLMXML", {}},
};

bool hasImportOptions(const Format &format) { return std::string(format.name) != "KBX"; }

const QStringList importOptions =
    QStringLiteral("stitching bool true, stitching tolerance double 0.1, tessellation bool true, "
                   "keep surface data bool true, create groups for layers bool true, chord deviation double 0.075, "
                   "normal tolerance double 10, max chord length double 200, merge geometries bool true, "
                   "remove empty groups bool true, unshare nodes bool false, flush transformations bool false, "
                   "import surfaces bool true, import invisible surfaces bool false, unify surface normals bool true, "
                   "import meshes bool true, import invisible meshes bool false, import curves bool false, "
                   "import invisible curves bool false, import invisible instances bool false, "
                   "import associative meshes bool false, import empty layers bool false, "
                   "import coord systems bool false, import cameras bool false, import lights bool false, "
                   "import variants bool false, import template geometries bool false, "
                   "import referenced files bool true, import mesh LODs int 2")
        .split(QStringLiteral(", "));

const Lines sharedOptions{"BCADOptions use ATF bool false", "PLMXML load referenced files bool true"};

Lines expectedDefaults(const Format &format)
{
    Lines lines;
    if (hasImportOptions(format)) {
        for (const QString &option : importOptions)
            lines.push_back(format.prefix + ("Options " + option.toStdString()));
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
};

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
    for (const auto &[name, groups] :
         std::map<QString, int>{{"Step", 4}, {"JT", 6}, {"Rhino", 5}, {"STL", 5}, {"KBX", 1}})
        EXPECT_EQ(groupsAtHandOver[name], groups) << name.toStdString();
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
            format.extras.size() + (hasImportOptions(format) ? std::size_t(importOptions.size()) - ofPairs : 0);
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

} // namespace
