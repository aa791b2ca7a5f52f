#include "Framework/olTypedAccess.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace
{

const std::string key = "Some key";

olMessage recordWith(const boost::any &value)
{
    olMessage record;
    record.set(key, value, true);
    return record;
}

/// What is written to the standard error stream while `read` runs.
template <class Read> std::string diagnosticOf(Read &&read)
{
    testing::internal::CaptureStderr();
    read();
    return testing::internal::GetCapturedStderr();
}

TEST(TypedRead, TakesOnlyExactlyItsOwnType)
{
    olMessage record = recordWith(1.5);
    float out = 7.0f;
    const std::string diagnostic = diagnosticOf([&] { EXPECT_FALSE(getFromMessage(record, key, out)); });
    EXPECT_EQ(out, 7.0f);
    const std::string line = "getFromMessage : Attribute 'Some key' has wrong type (is:'double' != req:'float')!\n";
    EXPECT_EQ(diagnostic.substr(0, line.size()), line);
    EXPECT_GT(diagnostic.size(), line.size()) << "the call stack follows";

    double held = 0.0;
    EXPECT_TRUE(getFromMessage(record, key, held));
    EXPECT_EQ(held, 1.5);
}

TEST(CompareAndSet, InsertsWhatIsAbsentOrEmptyAndOverwritesOnlyWhenComparing)
{
    olMessage record;
    EXPECT_TRUE(setIfChanged(record, key, 1.0f, false));
    EXPECT_FALSE(setIfChanged(record, key, 2.0f, false));
    EXPECT_EQ(boost::any_cast<float>(record.get(key)), 1.0f);
    olMessage empty = recordWith(boost::any());
    EXPECT_TRUE(setIfChanged(empty, key, 1.0f, true));
}

TEST(CompareAndSet, ReportsOnlyAnotherValue)
{
    olMessage record = recordWith(1.0f);
    EXPECT_FALSE(setIfChanged(record, key, 1.0f, true));
    EXPECT_TRUE(setIfChanged(record, key, 2.0f, true));

    olMessage zero = recordWith(0.0f);
    EXPECT_FALSE(setIfChanged(zero, key, -0.0f, true));
    EXPECT_FALSE(std::signbit(boost::any_cast<float>(zero.get(key))));

    olMessage another = recordWith(1.0);
    EXPECT_EQ(diagnosticOf([&] { EXPECT_TRUE(setIfChanged(another, key, 1.0f, true)); }), "") << "replaced silently";
    EXPECT_EQ(boost::any_cast<float>(another.get(key)), 1.0f);

    const float nan = std::numeric_limits<float>::quiet_NaN();
    olMessage notANumber = recordWith(nan);
    EXPECT_TRUE(setIfChanged(notANumber, key, nan, true));
}

} // namespace
