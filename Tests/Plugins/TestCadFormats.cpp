#include "State/olPreferencesRegistry.h"
#include "State/olValue.h"
#include "Support/PluginTest.h"
#include "Widgets/olTesselationSettings.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFile>
#include <QGroupBox>

#include <algorithm>
#include <map>
#include <set>
#include <stdexcept>

namespace
{

/// With a module of their own each, in the order of registration; and what their keys begin with.
const std::vector<std::pair<std::string, std::string>> &formats()
{
    static const auto formats = [] {
        std::vector<std::pair<std::string, std::string>> rows;
        QFile file(sourceOfTest(QStringLiteral("Tests/Plugins/cad-formats.txt")));
        if (!file.open(QIODevice::ReadOnly))
            throw std::runtime_error("there is no table of formats");
        for (const QByteArray &line : file.readAll().trimmed().split('\n')) {
            const QList<QByteArray> columns = line.split('\t');
            rows.emplace_back(columns.value(0).toStdString(), columns.value(1).toStdString());
        }
        return rows;
    }();
    return formats;
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
        for (const auto &format : formats())
            (module(format.first.c_str()).*operation)();
    }

    static void startAfresh()
    {
        for (const auto &format : formats())
            module(format.first.c_str()).setDefaults(true);
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
    auto &registry = olPreferencesRegistry::the();
    std::map<QString, int> groupsAtHandOver;
    QObject context;
    plugin.unload();
    QObject::connect(&registry.news(), &olRegistryNews::changed, &context, [&registry, &groupsAtHandOver] {
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

TEST_F(CadFormats, NeverLeakIntoEachOther)
{
    for (const auto &[name, prefix] : formats()) {
        startAfresh();
        const olMessage::Entries before = record().entries();
        editEverything(*module(name.c_str()).page());
        forAll(&olPreferencesEntry::updateData);

        const std::set<std::string> changed = keysThatDiffer(before);
        for (const std::string &key : changed)
            EXPECT_EQ(key.rfind(prefix + "Options ", 0), 0u) << name << " changed " << key;

        // One step further, each of the three choices changes one setting of its pair; two settings have no control.
        const std::size_t unchanged = name == "KBX" ? 0 : 3 + 2;
        EXPECT_EQ(changed.size(), module(name.c_str()).defaults().size() - unchanged) << name;
    }
}

TEST_F(CadFormats, SettingThatAllWriteStaysUntilItsOwnerIsGone)
{
    startAfresh();
    auto &registry = olPreferencesRegistry::the();
    int checks = 0;
    QObject context;
    QObject::connect(&registry.news(), &olRegistryNews::changed, &context, [&registry, &checks] {
        ++checks;
        EXPECT_EQ(record().get("PLMXML load referenced files").empty(), !registry.find(QStringLiteral("PLM XML")));
        EXPECT_EQ(record().get("BCADOptions use ATF").empty(), !registry.find(QStringLiteral("Base CAD")));
    });
    plugin.unload();
    EXPECT_GE(checks, int(formats().size()));
}

} // namespace
