#include "Framework/olTypedAccess.h"

#include <QString>
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

TEST(TypedRead, NeverConvertsBetweenNeighbours)
{
    bool flag = false;
    int number = 0;
    unsigned natural = 0;
    QString text;
    diagnosticOf([&] {
        olMessage integer = recordWith(1);
        EXPECT_FALSE(getFromMessage(integer, key, flag));
        EXPECT_FALSE(getFromMessage(integer, key, natural));
        olMessage boolean = recordWith(true);
        EXPECT_FALSE(getFromMessage(boolean, key, number));
        olMessage bytes = recordWith(std::string("text"));
        EXPECT_FALSE(getFromMessage(bytes, key, text));
    });
}

TEST(TypedRead, IsSilentAboutWhatIsAbsentOrEmpty)
{
    olMessage record;
    float out = 7.0f;
    EXPECT_EQ(diagnosticOf([&] { EXPECT_FALSE(getFromMessage(record, key, out)); }), "");
    record.set(key, boost::any(), true);
    EXPECT_EQ(diagnosticOf([&] { EXPECT_FALSE(getFromMessage(record, key, out)); }), "");
    EXPECT_EQ(out, 7.0f);
}

TEST(CompareAndSet, InsertsWhatIsAbsentOrEmptyEvenWithoutComparing)
{
    olMessage record;
    EXPECT_TRUE(setIfChanged(record, key, 1.0f, false));
    olMessage empty = recordWith(boost::any());
    EXPECT_TRUE(setIfChanged(empty, key, 1.0f, true));
    EXPECT_EQ(boost::any_cast<float>(empty.get(key)), 1.0f);
}

TEST(CompareAndSet, LeavesAPresentKeyAloneWithoutComparing)
{
    olMessage record = recordWith(QString("text"));
    EXPECT_FALSE(setIfChanged(record, key, 1.0f, false));
    EXPECT_EQ(boost::any_cast<QString>(record.get(key)), QString("text"));
}

TEST(CompareAndSet, ReportsOnlyAnotherValue)
{
    olMessage record = recordWith(1.0f);
    EXPECT_FALSE(setIfChanged(record, key, 1.0f, true));
    EXPECT_TRUE(setIfChanged(record, key, 2.0f, true));
    EXPECT_FALSE(setIfChanged(record, key, 2.0f, true));

    olMessage zero = recordWith(0.0f);
    EXPECT_FALSE(setIfChanged(zero, key, -0.0f, true));
    EXPECT_FALSE(std::signbit(boost::any_cast<float>(zero.get(key))));

    const float nan = std::numeric_limits<float>::quiet_NaN();
    olMessage notANumber = recordWith(nan);
    EXPECT_TRUE(setIfChanged(notANumber, key, nan, true));
}

TEST(CompareAndSet, ReplacesAnotherTypeSilently)
{
    olMessage record = recordWith(1.0);
    EXPECT_EQ(diagnosticOf([&] { EXPECT_TRUE(setIfChanged(record, key, 1.0f, true)); }), "");
    EXPECT_EQ(boost::any_cast<float>(record.get(key)), 1.0f);
}

TEST(CompareAndSet, SeesTheSmallestChangeOfAColour)
{
    const osg::Color3f colour(0.5f, 0.5f, 0.5f);
    const osg::Color3f close(0.5f, std::nextafter(0.5f, 1.0f), 0.5f);
    ASSERT_TRUE(colour == close) << "the colours' own comparison has a tolerance";

    olMessage record = recordWith(colour);
    EXPECT_TRUE(setIfChanged(record, key, close, true));
    EXPECT_FALSE(setIfChanged(record, key, close, true));

    using Colours = std::vector<osg::Color3f>;
    olMessage list = recordWith(Colours{colour});
    EXPECT_TRUE(setIfChanged(list, key, Colours{close}, true));
    EXPECT_TRUE(setIfChanged(list, key, Colours{close, close}, true));
}

TEST(Record, TakesAValueWithoutTheFlagOnlyWhereItHasNone)
{
    olMessage record;
    record.set(key, 1, false);
    record.set(key, 2, false);
    EXPECT_EQ(boost::any_cast<int>(record.get(key)), 1);
    record.set(key, 3, true);
    EXPECT_EQ(boost::any_cast<int>(record.get(key)), 3);
    record.remove(key);
    EXPECT_TRUE(record.get(key).empty());
}

} // namespace
