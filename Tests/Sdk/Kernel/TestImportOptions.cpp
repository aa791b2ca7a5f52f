#include "Kernel/olImportOptions.h"
#include "State/olHostState.h"

#include <gtest/gtest.h>

namespace
{

void write(olImportOptions &&options, void (olImportOptions::*set)(bool), bool value)
{
    (options.*set)(value);
    options.write();
}

TEST(ImportOptions, FlagsDecideWhereTheyBeginAndWhatTheyReplace)
{
    const auto written = [] { return olHostState::the().importRecord("flags"); };
    write({"flags", true, true}, &olImportOptions::setImportLights, true);
    write({"flags", true, true}, &olImportOptions::setStitching, false);
    EXPECT_TRUE(written()->importLights && !written()->stitching) << "two records of a type add up";
    write({"flags", true, false}, &olImportOptions::setImportCameras, true);
    EXPECT_FALSE(written()->importCameras);
    write({"flags", false, true}, &olImportOptions::setImportCameras, true);
    EXPECT_TRUE(written()->importCameras && !written()->importLights);
    olHostState::the().reset();
    EXPECT_EQ(written(), nullptr) << "a host as new has no options";
}

TEST(ImportOptions, LegacyLoaderIsForgottenWithThePlugin)
{
    olImportOptions on("legacy", true, true);
    on.setLegacyLoader("VWSH");
    write(std::move(on), &olImportOptions::setUsePlugin, true);
    EXPECT_EQ(olHostState::the().importRecord("legacy")->legacyLoader, "VWSH");
    write({"legacy", true, true}, &olImportOptions::setUsePlugin, false);
    EXPECT_EQ(olHostState::the().importRecord("legacy")->legacyLoader, "");
}

} // namespace
