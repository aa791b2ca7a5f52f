#include "State/olValue.h"
#include "StoreTest.h"

#include <OpenSG/OSGColor.h>

#include <QDateTime>
#include <QFile>

#include <cmath>
#include <cstring>
#include <limits>
#include <random>

namespace
{

template <class Number> bool sameBits(Number left, Number right)
{
    // Zeros differ in their sign alone.
    return (std::isnan(left) && std::isnan(right)) || (left == right && std::signbit(left) == std::signbit(right));
}
bool sameBits(const std::string &left, const std::string &right) { return left == right; }
bool sameBits(const QString &left, const QString &right) { return left == right; }
bool sameBits(const osg::Color3f &left, const osg::Color3f &right)
{
    return sameBits(left.red(), right.red()) && sameBits(left.green(), right.green()) &&
           sameBits(left.blue(), right.blue());
}
template <class Element> bool sameBits(const std::vector<Element> &left, const std::vector<Element> &right)
{
    return std::equal(left.begin(), left.end(), right.begin(), right.end(),
                      [](const Element &one, const Element &other) { return sameBits(one, other); });
}

class StoreValues : public StoreTest
{
protected:
    template <class T> void isKept(const T &value)
    {
        const Key name = key("value " + std::to_string(m_count++));
        save({{name, value}});
        const Values values = stored();
        const auto found = values.find(name);
        ASSERT_NE(found, values.end()) << name.second << ": " << olValue::toJson(value).substr(0, 80);
        const T *read = boost::any_cast<T>(&found->second);
        ASSERT_TRUE(read) << name.second << " came back as another type";
        EXPECT_TRUE(sameBits(*read, value)) << olValue::toJson(value).substr(0, 80);
    }

    template <class Number> void numbersAreKept()
    {
        using Limits = std::numeric_limits<Number>;
        for (const Number number :
             {Limits::quiet_NaN(), Limits::infinity(), -Limits::infinity(), Number(-0.0), Number(0), Limits::max(),
              Limits::lowest(), Limits::min(), Limits::denorm_min(), Number(0.1), Number(1) / 3, Number(1e16),
              Number(9.999e-5), std::nextafter(Number(1), Number(2)), Number(16777217)})
            isKept(number);
    }

private:
    int m_count = 0;
};

TEST_F(StoreValues, AwkwardNumbersComeBackToTheLastBit)
{
    numbersAreKept<float>();
    numbersAreKept<double>();
    for (const int number : {std::numeric_limits<int>::min(), -1, 0, std::numeric_limits<int>::max()})
        isKept(number);
    for (const unsigned number : {0u, 2147483648u, std::numeric_limits<unsigned>::max()})
        isKept(number);
    isKept(true);
}

TEST_F(StoreValues, AwkwardTextsComeBackToTheLastByte)
{
    std::string everyByte;
    for (int byte = 0; byte < 256; ++byte)
        everyByte += char(byte);
    for (const std::string &text :
         {std::string(), everyByte, std::string(1, '\0'), std::string("\xff\xfe"), std::string("cut off \xe2\x82"),
          std::string("\xed\xb2\x80 a surrogate in UTF-8"), std::string("\xc0\xaf too long"),
          std::string("\xf4\x90\x80\x80 too high"), std::string("\xef\xbb\xbf with a mark"),
          std::string("\xf0\x9f\x98\x80"), std::string("\"quoted\\\" \\udc80 \n\r\t\b\f\x7f"),
          std::string("a' OR 1=1; -- "), std::string(1 << 20, 'x')})
        isKept(text);

    const QChar lone[] = {QChar(0xdc80), QChar('a'), QChar(0xd800), QChar(0xdfff), QChar(0xd83d)};
    for (const QString &text : {QString(), QString(lone, 5), QString(QChar(0xfeff)), QString(QChar(0)),
                                QString::fromUtf8("Grüße 😀"), QString(1 << 20, QChar(0xfffd))})
        isKept(text);
}

TEST_F(StoreValues, AwkwardListsComeBackWhole)
{
    isKept(std::vector<std::string>{});
    isKept(std::vector<std::string>{"", "a, b", "]", "\xff", "/very/long/" + std::string(5000, 'p')});
    isKept(std::vector<std::string>(10000, "path"));
    isKept(std::vector<float>{});
    isKept(std::vector<float>{std::nanf(""), -0.0f, 1e-45f, std::numeric_limits<float>::infinity()});
    isKept(std::vector<float>(10000, 0.1f));
    isKept(osg::Color3f(-0.0f, std::nanf(""), 1e30f));
    isKept(std::vector<osg::Color3f>{});
    isKept(std::vector<osg::Color3f>(300, osg::Color3f(0.1f, 0.2f, 0.3f)));
}

TEST_F(StoreValues, KeysOfAnyBytesAreDifferentKeys)
{
    const Values values{{key(""), 1},         {key("a"), 2},          {key(std::string("a\0b", 3)), 3},
                        {key("\xff\xfe"), 4}, {key("a' -- \" ;"), 5}, {{olHome::Service, "a"}, 6}};
    save(values);
    EXPECT_TRUE(same(stored(), values));
}

TEST(StoreTexts, EveryFloatReadsBackFromItsShortestText)
{
    std::mt19937 random(4711);
    for (int round = 0; round < 200000; ++round) {
        const auto bits = std::uint32_t(random());
        float value = 0;
        std::memcpy(&value, &bits, sizeof value);
        const std::string text = olValue::toJson(value);
        const boost::any read = olValue::fromJson("float", QByteArray::fromStdString(text));
        ASSERT_FALSE(read.empty()) << text;
        ASSERT_TRUE(sameBits(boost::any_cast<float>(read), value)) << text;
    }
}

TEST(StoreTexts, WhatIsNoValueOfTheTypeIsNoneAtAll)
{
    const QByteArray wrong =
        "int 1.5|int 2147483648|int \"1\"|int 1 2|int |uint -1|float 1e39|float 01|float 1.|float +1|"
        "bool 1|bool trueish|string \"open|string \"\\ud800\"|string \"\\u12\"|string \"\xff\"|"
        "strings [\"a\",]|floats [1|color [1, 2]|matrix 1";
    for (const QByteArray &line : wrong.split('|')) {
        const int blank = line.indexOf(' ');
        EXPECT_TRUE(olValue::fromJson(line.left(blank).toStdString(), line.mid(blank + 1)).empty()) << line.data();
    }
}

TEST_F(StoreValues, TheHistoryTellsWhatTheLastFiveHundredSavesChanged)
{
    constexpr int saves = 503;
    for (int number = 1; number <= saves; ++number)
        save({{key("a"), number}});
    const olResult<olStoreRows::Contents> contents = olPreferencesStore(file).load();
    ASSERT_EQ(contents.error(), QString());
    const olStoreRows::History &history = contents->history;
    ASSERT_EQ(history.size(), 500u);
    EXPECT_EQ(history.front().changes.front().before->value, "3");
    EXPECT_EQ(history.back().changes.front().before->value, "502");
    EXPECT_EQ(history.back().changes.front().after->value, "503");
}

TEST_F(StoreValues, ASaveWithNothingToDoTouchesNothing)
{
    save({{key("a"), 1}});
    const QByteArray before = bytesOf(file);
    const QDateTime time = QFileInfo(file).lastModified();
    save({});
    EXPECT_EQ(bytesOf(file), before);
    EXPECT_EQ(QFileInfo(file).lastModified(), time);
    EXPECT_FALSE(QFile::exists(file + "-wal")) << "a saved store is one file";
}

} // namespace
