#include "Kernel/olImportOptions.h"

#include <gtest/gtest.h>

namespace
{

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
