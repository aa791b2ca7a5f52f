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
    testing::internal::CaptureStderr();
    EXPECT_TRUE(setIfChanged(another, key, 1.0f, true));
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "") << "replaced silently";
    EXPECT_EQ(boost::any_cast<float>(another.get(key)), 1.0f);

    const float nan = std::numeric_limits<float>::quiet_NaN();
    olMessage notANumber = recordWith(nan);
    EXPECT_TRUE(setIfChanged(notANumber, key, nan, true));
}

} // namespace
