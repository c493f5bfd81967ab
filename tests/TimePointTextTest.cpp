#include <Orvik/TimePoints/Core/Duration.h>
#include <Orvik/TimePoints/Core/Formatters/ClockDurationFormatter.h>
#include <Orvik/TimePoints/Core/Formatters/Iso8601TimePointFormatter.h>
#include <Orvik/TimePoints/Core/Formatters/TimeCodeDurationFormatter.h>
#include <Orvik/TimePoints/Core/Parsers/Iso8601TimePointParser.h>
#include <Orvik/TimePoints/Core/TimePoint.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdint>
#include <limits>
#include <random>
#include <stdexcept>
#include <string>

using namespace Orvik::TimePoints;
using ::testing::StrEq;
using ::testing::ThrowsMessage;

namespace {

constexpr int64_t kMin = std::numeric_limits<int64_t>::min();
constexpr int64_t kSecond = 1000000000;

struct PointText {
    int64_t nanoseconds;
    const char* text;
};

}  // namespace

TEST(TimePointText, WritesUtcWithNineFractionDigitsAndNamesTheNamedPoints)
{
    const PointText rows[] = {
        {0, "1970-01-01T00:00:00.000000000Z"},
        {-1, "1969-12-31T23:59:59.999999999Z"},
        {951825600 * kSecond + 40000000, "2000-02-29T12:00:00.040000000Z"},
        {kMin, "1677-09-21T00:12:43.145224192Z"},
        {std::numeric_limits<int64_t>::max() - 1, "2262-04-11T23:47:16.854775806Z"},
        {TimePoint::Empty().ToNanoseconds(), "unset"},
        {TimePoint::MinValue().ToNanoseconds(), "min"},
        {TimePoint::MaxValue().ToNanoseconds(), "max"},
    };
    const Iso8601TimePointFormatter formatter;
    const Iso8601TimePointParser parser;
    for (const PointText& row : rows) {
        SCOPED_TRACE(row.text);
        EXPECT_EQ(TimePoint(row.nanoseconds).ToString(formatter), row.text);
        EXPECT_EQ(TimePoint::Parse(row.text, parser), TimePoint(row.nanoseconds));
    }
}

TEST(TimePointText, ReadsFractionsOffsetsAndTheRfc3339Variants)
{
    const PointText rows[] = {
        {0, "1970-01-01T00:00:00Z"},
        {0, "1970-01-01t00:00:00z"},
        {0, "1970-01-01 00:00:00Z"},
        {500000000, "1970-01-01T00:00:00.5Z"},
        {1, "1970-01-01T00:00:00.000000001Z"},
        {-3600 * kSecond, "1970-01-01T00:00:00+01:00"},
        {1800 * kSecond, "1970-01-01T00:00:00-00:30"},
        {std::numeric_limits<int64_t>::max(), "2262-04-11T23:47:16.854775807Z"},
        {TimePoint::Empty().ToNanoseconds(), "1677-09-21T00:12:43.145224193Z"},
    };
    const Iso8601TimePointParser parser;
    for (const PointText& row : rows) {
        SCOPED_TRACE(row.text);
        EXPECT_EQ(parser.Parse(row.text), TimePoint(row.nanoseconds));
    }
}

TEST(TimePointText, RefusesNamingTextAndReason)
{
    const char* const syntax = "expected YYYY-MM-DDTHH:MM:SS, up to nine fraction digits, and Z or +HH:MM";
    const struct {
        const char* text;
        const char* reason;
    } refusals[] = {
        {"2262-04-11T23:47:16.854775808Z",
         "outside the 64-bit time line, 1677-09-21T00:12:43.145224192Z to 2262-04-11T23:47:16.854775807Z"},
        {"2262-04-12T00:00:00+00:01",
         "outside the 64-bit time line, 1677-09-21T00:12:43.145224192Z to 2262-04-11T23:47:16.854775807Z"},
        {"2026-02-29T00:00:00Z", "no such day"},
        {"2026-13-01T00:00:00Z", "no such day"},
        {"2026-01-01T24:00:00Z", "the time of day must be 00:00:00 to 23:59:59"},
        {"2026-01-01T00:00:60Z", "the time of day must be 00:00:00 to 23:59:59"},
        {"2026-01-01T00:00:00+24:00", "the offset must be 00:00 to 23:59"},
        {"2026-01-01T00:00:00", syntax},
        {"2026-01-01T00:00:00.Z", syntax},
        {"2026-01-01T00:00:00.1234567890Z", syntax},
        {"2026-01-01T00:00:00+0100", syntax},
        {"2026-01-01T00:00:00Z ", syntax},
        {"26-01-01T00:00:00Z", syntax},
        {"", syntax},
        {"Unset", syntax},
    };
    const Iso8601TimePointParser parser;
    for (const auto& row : refusals) {
        SCOPED_TRACE(row.text);
        EXPECT_FALSE(parser.IsStringFormatValid(row.text));
        EXPECT_THAT([&] { parser.Parse(row.text); },
                    ThrowsMessage<std::invalid_argument>(
                        StrEq(std::string("Invalid time point '") + row.text + "': " + row.reason)));
    }
}

TEST(TimePointText, EveryPointReadsBackAsItself)
{
    const Iso8601TimePointFormatter formatter;
    const Iso8601TimePointParser parser;
    std::mt19937_64 random(20);
    for (int i = 0; i < 20000; ++i) {
        const TimePoint point(static_cast<int64_t>(random()));
        const auto [read, back] = parser.TryParse(formatter.Format(point));
        ASSERT_TRUE(read && back == point) << point.ToNanoseconds();
    }
}

TEST(DurationText, ClockFormWritesEveryDurationToTheNanosecond)
{
    const struct {
        Duration duration;
        const char* text;
    } rows[] = {
        {Duration(), "00:00:00.000000000"},
        {Duration(-1), "-00:00:00.000000001"},
        {Duration::FromMinutes(24 * 60), "24:00:00.000000000"},
        {Duration::FromSeconds(3661) + Duration::FromMilliseconds(40), "01:01:01.040000000"},
        {Duration::MinValue(), "-2562047:47:16.854775808"},
        {Duration::MaxValue(), "2562047:47:16.854775807"},
    };
    const ClockDurationFormatter formatter;
    for (const auto& row : rows) {
        SCOPED_TRACE(row.text);
        EXPECT_EQ(row.duration.ToString(formatter), row.text);
    }
}

TEST(DurationText, TimecodeFormCountsWholeFramesTowardZero)
{
    const TimeCodeDurationFormatter fps25(Rate(25, 1));
    const TimeCodeDurationFormatter drop(Rate(30000, 1001), true);
    const struct {
        const DurationFormatter& formatter;
        Duration duration;
        const char* text;
    } rows[] = {
        {fps25, Duration::FromMilliseconds(1040), "00:00:01:01"},  {fps25, Duration::FromMilliseconds(1079), "00:00:01:01"},
        {fps25, Duration::FromSeconds(-1), "-00:00:01:00"},        {fps25, Duration::FromMilliseconds(-39), "00:00:00:00"},
        {fps25, Duration::FromMinutes(25 * 60), "25:00:00:00"},    {drop, Duration::FromMilliseconds(60060), "00:01:00;02"},
        {drop, Duration::FromMilliseconds(600600), "00:10:00;18"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.text);
        EXPECT_EQ(row.formatter.Format(row.duration), row.text);
    }
    EXPECT_THAT([] { TimeCodeDurationFormatter(Rate(25, 1), true); },
                ThrowsMessage<std::invalid_argument>(StrEq("Orvik::TimePoints::TimeCodeDurationFormatter: drop-frame "
                                                           "counting needs 30000/1001 frames a second or a whole "
                                                           "multiple of it")));
}
