#include "Dialog/olChangesView.h"
#include "Dialog/olSettingsTransfer.h"
#include "Host/Dialog/DialogTest.h"
#include "Session/olPreferencesFile.h"
#include "State/olValue.h"
#include "Support/Files.h"

#include <OpenSG/OSGColor.h>
#include <QHeaderView>
#include <QTest>
#include <QTreeWidget>

#include <cmath>
#include <limits>

namespace
{

class PreferencesImport : public DialogTest
{
protected:
    [[nodiscard]] static QStringList rows(const olChangesView &view, const char *list)
    {
        QStringList rows;
        const auto *tree = view.findChild<QTreeWidget *>(list);
        for (int row = 0; row < tree->topLevelItemCount(); ++row) {
            QStringList cells;
            for (int column = 0; column < tree->columnCount(); ++column)
                cells << tree->topLevelItem(row)->text(column);
            rows << cells.join(" | ");
        }
        return rows;
    }
};

} // namespace

TEST(PreferencesFile, ReadsBackEveryTypeExactly)
{
    const olSettingValues values{
        {"b", true},
        {"i", std::numeric_limits<int>::min()},
        {"u", std::numeric_limits<unsigned>::max()},
        {"f", 0.1f},
        {"nan", std::numeric_limits<float>::quiet_NaN()},
        {"d", -std::numeric_limits<double>::infinity()},
        {"q", QString("a \"quoted\"\nüñ€")},
        {"bytes", std::string("\xff\x80 and \xc3\xa4", 9)},
        {"ss", std::vector<std::string>{"", "two"}},
        {"fs", std::vector<float>{1.0f, 0.333333343f}},
        {"c", osg::Color3f(0.25f, 0.1f, 1.0f)},
        {"cs", std::vector<osg::Color3f>{osg::Color3f(0.0f, 0.5f, 1.0f)}},
        {"key \"with\" quotes", 1},
        {"-0 f", -0.0f},
        {"-0 d", -0.0},
        {"-0 fs", std::vector<float>{-0.0f, 0.0f}},
        {"-0 c", osg::Color3f(-0.0f, 0.0f, -0.0f)},
        {"-0 cs", std::vector<osg::Color3f>{osg::Color3f(0.0f, -0.0f, 0.0f)}},
    };
    const auto read = olPreferencesFile::fromJson(olPreferencesFile::toJson(values));
    ASSERT_EQ(read.error(), QString());
    EXPECT_TRUE(read->skipped.empty());
    ASSERT_EQ(read->settings.size(), values.size());
    for (const auto &[key, value] : values)
        EXPECT_TRUE(olValue::identical(read->settings.at(key), value)) << key;
    for (const auto &other :
         {osg::Color3f(0.5f, 0.1f, 1.0f), osg::Color3f(0.25f, 0.5f, 1.0f), osg::Color3f(0.25f, 0.1f, 0)})
        EXPECT_FALSE(olValue::identical(read->settings.at("c"), other));
}

TEST(PreferencesFile, RefusesWhatIsNoFileOfPreferencesAsAWhole)
{
    const auto error = [](const char *text) { return olPreferencesFile::fromJson(text).error(); };
    EXPECT_TRUE(error("{\n\"format\": 1,\n}").startsWith("Line 3: "));
    EXPECT_TRUE(error("{\"format\": 1, \"settings\": {\n\"Key\": 3,\n\"Key\": 3}}").startsWith("Line 3: "));
    EXPECT_TRUE(error("{\"format\": 1, \"settings\": {\n\"a\": {\"type\": \"int\", \"value\": 1,\n\"value\": 2}}}")
                    .contains("Line 3"))
        << "which of the two counts is not clear";
    EXPECT_FALSE(error("").isEmpty());
    EXPECT_FALSE(error("[]").isEmpty());
    EXPECT_FALSE(error(R"({"settings": {}})").isEmpty());
    EXPECT_TRUE(error(R"({"format": 2, "settings": {}})").contains("newer"));
    EXPECT_FALSE(error(R"({"format": 1})").isEmpty());
    EXPECT_TRUE(olPreferencesFile::read("/nowhere/file.json").error().contains("nowhere"));
    EXPECT_TRUE(olPreferencesFile::write("/nowhere/file.json", {}).error().contains("nowhere"));
}

TEST_F(PreferencesImport, ShowsWhatWillChangeAndWhatIsSkippedBeforeAnythingDoes)
{
    start(R"({"Studio title": {"value": "Ours", "locked": true, "reason": "House style."}})");
    dialog->transfer().importFrom(writtenFile(folder.filePath("import.json"), R"({"format": 1, "settings": {
        "Studio samples": {"type": "int", "value": 9},
        "Studio mode": {"type": "int", "value": 1}, "Studio scale": {"type": "float", "value": 1.5},
        "Studio seed": {"type": "int", "value": 8}, "Studio shadows": {"type": "int", "value": 1},
        "Studio title": {"type": "qstring", "value": "Theirs"}, "Unknown": {"type": "int", "value": 1},
        "Studio hidden": {"type": "bool", "value": "yes"}, "Odd": {"type": "matrix", "value": 1}, "Bare": 3}})"));
    auto *view = opened<olChangesView>();
    ASSERT_NE(view, nullptr);
    EXPECT_EQ(rows(*view, "changes"), (QStringList{"Studio: Mode | Hasty | Accurate", "Studio: Samples | 4 | 9",
                                                   "Studio: Studio seed | 7 | 8"}));
    const QStringList skipped = rows(*view, "skipped");
    EXPECT_EQ(skipped.size(), 6) << skipped.join('\n').toStdString();
    EXPECT_TRUE(skipped.contains("Unknown | is not known"));
    EXPECT_TRUE(skipped.contains("Studio shadows | cannot be 1: expected true or false"));
    EXPECT_TRUE(skipped.contains("Studio title | is locked: House style."));
    EXPECT_EQ(module.page.samples->value(), 4);

    const auto *list = view->findChild<QTreeWidget *>("skipped");
    EXPECT_LT(view->findChild<QTreeWidget *>("changes")->y(), view->findChild<QLabel *>("skippedLabel")->y());
    view->resize(400, 10);
    EXPECT_LT(list->geometry().bottom(), view->findChild<QWidget *>("copyAsText")->geometry().top());
    EXPECT_LE(view->findChild<QTreeWidget *>("changes")->header()->length(), list->width())
        << "old and new value are in sight in a narrow window, too";

    view->reject();
    EXPECT_FALSE(canApply()) << "a preview that is cancelled did nothing";
}

TEST_F(PreferencesImport, WritesWhatIsInForceAndTellsOfWhatIsPending)
{
    start();
    module.page.samples->setValue(9);
    const QString exported = folder.filePath("out.json");
    dialog->transfer().exportTo(exported);
    EXPECT_TRUE(says("without the pending changes"));
    const auto contents = olPreferencesFile::read(exported);
    EXPECT_EQ(contents->settings.size(), 7u);
    EXPECT_TRUE(olValue::equal(contents->settings.at("Studio samples"), 4));

    dialog->transfer().exportTo("/nowhere/out.json");
    EXPECT_TRUE(says("/nowhere/out.json"));
    dialog->transfer().importFrom("/nowhere/in.json");
    EXPECT_TRUE(says("/nowhere/in.json"));
    EXPECT_EQ(opened<olChangesView>(), nullptr);
}
