#include "Embedded/olJournal.h"
#include "Kernel/olImportOptions.h"

#include <gtest/gtest.h>

#include <vector>

namespace
{

struct Journal : olJournalObserver {
    Journal() : before(olJournal::observe(this)) {}
    ~Journal() override { olJournal::observe(before); }
    void called(const std::string &call) override { calls.push_back(call); }

    std::vector<std::string> calls;
    olJournalObserver *before;
};

TEST(ImportOptions, TellTheTypeWithEachCall)
{
    Journal journal;
    olImportOptions options("JT", true, true);
    options.setImportMeshes(true);
    options.setNormalTolerance(10.0);
    options.setImportMeshLODs(2);
    options.setUsePlugin(true);
    options.setLegacyLoader("VWSH");
    options.write();
    EXPECT_EQ(journal.calls,
              (std::vector<std::string>{
                  "olImportOptions(\"JT\", true, true)", "olImportOptions(\"JT\")::setImportMeshes(true)",
                  "olImportOptions(\"JT\")::setNormalTolerance(10)", "olImportOptions(\"JT\")::setImportMeshLODs(2)",
                  "olImportOptions(\"JT\")::setUsePlugin(true)", "olImportOptions(\"JT\")::setLegacyLoader(\"VWSH\")",
                  "olImportOptions(\"JT\")::write()"}));
}

TEST(ImportOptions, ReachTheImportersOnlyWhenWrittenAndOnlyTheirType)
{
    olImportOptions options("one type", true, true);
    options.setChordDeviation(0.5);
    EXPECT_EQ(olImportOptions::written("one type"), nullptr);
    options.write();
    ASSERT_NE(olImportOptions::written("one type"), nullptr);
    EXPECT_EQ(olImportOptions::written("one type")->chordDeviation, 0.5);
    EXPECT_EQ(olImportOptions::written("another type"), nullptr);
}

TEST(ImportOptions, TwoRecordsOfATypeAddUp)
{
    olImportOptions base("both", true, true);
    base.setStitching(false);
    base.write();
    olImportOptions extra("both", true, true);
    extra.setLoadBreps(3);
    extra.write();
    EXPECT_FALSE(olImportOptions::written("both")->stitching);
    EXPECT_EQ(olImportOptions::written("both")->loadBreps, 3);
}

TEST(ImportOptions, FlagsDecideWhereTheyBeginAndWhatTheyReplace)
{
    olImportOptions first("flags", true, true);
    first.setImportLights(true);
    first.write();

    olImportOptions polite("flags", true, false);
    polite.setImportCameras(true);
    polite.write();
    EXPECT_FALSE(olImportOptions::written("flags")->importCameras);

    olImportOptions fresh("flags", false, true);
    fresh.write();
    EXPECT_FALSE(olImportOptions::written("flags")->importLights);
}

TEST(ImportOptions, LegacyLoaderIsForgottenWithThePlugin)
{
    olImportOptions on("legacy", true, true);
    on.setUsePlugin(true);
    on.setLegacyLoader("VWSH");
    on.write();
    EXPECT_EQ(olImportOptions::written("legacy")->legacyLoader, "VWSH");

    olImportOptions off("legacy", true, true);
    off.setUsePlugin(false);
    off.write();
    EXPECT_EQ(olImportOptions::written("legacy")->legacyLoader, "");
}

} // namespace
