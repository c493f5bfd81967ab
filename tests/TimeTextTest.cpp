#include <Orvik/TimePoints/Core/Duration.h>
#include <Orvik/TimePoints/Core/Formatters/ClockDurationFormatter.h>
#include <Orvik/TimePoints/Core/Formatters/Iso8601TimePointFormatter.h>
#include <Orvik/TimePoints/Core/Formatters/SmpteTimeCodeFormatter.h>
#include <Orvik/TimePoints/Core/Formatters/TimeCodeDurationFormatter.h>
#include <Orvik/TimePoints/Core/Parsers/Iso8601TimePointParser.h>
#include <Orvik/TimePoints/Core/Parsers/SmpteTimeCodeParser.h>
#include <Orvik/TimePoints/Core/TimeCode.h>
#include <Orvik/TimePoints/Core/TimePoint.h>

#include <gmock/gmock.h>

#include <cstdint>
#include <limits>
#include <ostream>
#include <random>
#include <stdexcept>
#include <string>
#include <vector>

using namespace Orvik::TimePoints;
using ::testing::StrEq;
using ::testing::ThrowsMessage;

namespace {

constexpr int64_t kSecond = 1000000000;
const Rate kNtsc30(30000, 1001);
const Rate kNtsc60(60000, 1001);
const Rate kFps25(25, 1);

struct Counting {
    Rate rate;
    bool isDrop;
    int nominal;  // frames of a displayed second
    const char* name;
};

// Names the case in test listings instead of its bytes.
void PrintTo(const Counting& counting, std::ostream* out) { *out << counting.name; }

std::string Label(const Rate& rate, int64_t sample, bool isDrop)
{
    return SmpteTimeCodeFormatter().Format(TimeCode(rate, sample, isDrop, false));
}

void WriteTwoDigits(std::string& text, size_t position, int value)
{
    text[position] = static_cast<char>('0' + value / 10);
    text[position + 1] = static_cast<char>('0' + value % 10);
}

struct PointText {
    int64_t nanoseconds;
    const char* text;
};

}  // namespace

// Every label of the day in order, each one made by hand: the parser must take exactly the
// labels that drop-frame counting does not skip, each as the next frame count, and the formatter
// must write that count as the same label, with the clock fields of TimeCode. So every frame of
// the day round-trips, and every refused label is one the formatter never writes. Non-drop
// counting depends on the rate rounded up alone, so 30000/1001 and 60000/1001 run with drop-frame
// here (their non-drop labels are those of 30 and 60; 24000/1001 covers the rounding).
class TimeCodeDay : public ::testing::TestWithParam<Counting> {};

TEST_P(TimeCodeDay, EveryFrameRoundTripsAndOnlySkippedLabelsAreRefused)
{
    const Counting& counting = GetParam();
    const SmpteTimeCodeParser parser(counting.rate);
    const SmpteTimeCodeFormatter formatter;
    const int dropped = counting.isDrop ? counting.nominal / 15 : 0;
    std::string label = "00:00:00:00";
    label[8] = counting.isDrop ? ';' : ':';
    int64_t next = 0;
    for (int hour = 0; hour < 24; ++hour) {
        WriteTwoDigits(label, 0, hour);
        for (int minute = 0; minute < 60; ++minute) {
            WriteTwoDigits(label, 3, minute);
            for (int second = 0; second < 60; ++second) {
                WriteTwoDigits(label, 6, second);
                for (int frame = 0; frame < counting.nominal; ++frame) {
                    WriteTwoDigits(label, 9, frame);
                    const bool skipped = second == 0 && minute % 10 != 0 && frame < dropped;
                    const auto [read, timeCode] = parser.TryParse(label);
                    if (read == skipped) {
                        FAIL() << label << (skipped ? " is read" : " is refused");
                    }
                    if (skipped)
                        continue;
                    const TimeCode expected(counting.rate, next, counting.isDrop, false);
                    if (timeCode != expected || formatter.Format(expected) != label || expected.Hour() != hour
                        || expected.Minute() != minute || expected.Second() != second || expected.Sample() != frame) {
                        FAIL() << label << " and frame " << next << " do not match: read " << timeCode.TotalSample()
                               << ", written " << formatter.Format(expected);
                    }
                    ++next;
                }
            }
        }
    }
    EXPECT_EQ(Label(counting.rate, next, counting.isDrop), counting.isDrop ? "00:00:00;00" : "00:00:00:00")
        << "the next day starts again";
}

INSTANTIATE_TEST_SUITE_P(EachRate, TimeCodeDay,
                         ::testing::Values(Counting{Rate(24, 1), false, 24, "r24"}, Counting{kFps25, false, 25, "r25"},
                                           Counting{Rate(30, 1), false, 30, "r30"}, Counting{Rate(48, 1), false, 48, "r48"},
                                           Counting{Rate(50, 1), false, 50, "r50"}, Counting{Rate(60, 1), false, 60, "r60"},
                                           Counting{Rate(24000, 1001), false, 24, "r23_976"},
                                           Counting{kNtsc30, true, 30, "r29_97Drop"},
                                           Counting{kNtsc60, true, 60, "r59_94Drop"}),
                         [](const ::testing::TestParamInfo<Counting>& info) { return std::string(info.param.name); });

TEST(TimeCodeParser, ReadsTheSeparatorVariantsSeenInPractice)
{
    const SmpteTimeCodeParser parser(kNtsc30);
    for (const char* text : {"00;01;00;02", "00:01:00.02"}) {
        SCOPED_TRACE(text);
        EXPECT_EQ(parser.Parse(text), TimeCode(kNtsc30, 1800, true, false));
        EXPECT_TRUE(parser.IsStringFormatValid(text));
    }
    EXPECT_EQ(parser.Parse("00:01:00:00"), TimeCode(kNtsc30, 1800, false, false)) << "a colon before the frames";
}

TEST(TimeCodeParser, RefusesLabelsThatCannotExistNamingTextAndReason)
{
    const struct {
        Rate rate;
        const char* reason;
        std::vector<const char*> texts;
    } refusals[] = {
        {kNtsc30, "drop-frame counting skips this label", {"00:01:00;00", "00:01:00;01"}},
        {kNtsc60, "drop-frame counting skips this label", {"00:01:00;03"}},
        {kNtsc30, "frames must be below the rate", {"00:00:00:30"}},
        {kFps25, "frames must be below the rate", {"00:00:00:25"}},
        {kFps25, "minutes must be 0 to 59", {"00:60:00:00"}},
        {kFps25, "seconds must be 0 to 59", {"00:00:60:00"}},
        {kFps25, "hours must be 0 to 23", {"24:00:00:00"}},
        {kFps25, "drop-frame counting needs 30000/1001 frames a second or a whole multiple of it", {"00:00:00;00"}},
        {kFps25,
         "expected HH:MM:SS:FF, HH:MM:SS;FF, HH;MM;SS;FF or HH:MM:SS.FF",
         {"0:00:00:00", "00:00:00:0", "00:00:00:00 ", "", "00;00;00:00", "00:00;00;00", "00:00:00:+1",
          "2026-11-23 00:00:00:00"}},
        {Rate(120, 1), "expected HH:MM:SS:FF, HH:MM:SS;FF, HH;MM;SS;FF or HH:MM:SS.FF", {"00:00:00:19"}},
    };
    for (const auto& row : refusals) {
        const SmpteTimeCodeParser parser(row.rate);
        for (const std::string text : row.texts) {
            SCOPED_TRACE(text);
            EXPECT_FALSE(parser.TryParse(text).first);
            EXPECT_THAT([&] { parser.Parse(text); },
                        ThrowsMessage<std::invalid_argument>(StrEq("Invalid timecode '" + text + "': " + row.reason)));
        }
    }
}

TEST(TimeCodeParser, ReadsAnyPositiveRateWithAsManyFrameDigitsAsItNeeds)
{
    EXPECT_EQ(SmpteTimeCodeParser(Rate(120, 1)).Parse("00:00:01:119").TotalSample(), 239);
    EXPECT_EQ(Label(Rate(120, 1), 239, false), "00:00:01:119");
    EXPECT_EQ(SmpteTimeCodeParser(Rate(1, 1)).Parse("00:01:00:00").TotalSample(), 60);
    EXPECT_EQ(SmpteTimeCodeParser(Rate(15, 2)).Parse("00:00:01:07").TotalSample(), 15) << "7.5 counts 8 a second";
    EXPECT_EQ(SmpteTimeCodeParser(Rate(120000, 1001)).Parse("00:01:00;008").TotalSample(), 7200) << "drops 8";
    EXPECT_THAT([] { SmpteTimeCodeParser(Rate(0, 1)); },
                ThrowsMessage<std::invalid_argument>(StrEq("Orvik::TimePoints::TimeCode: the rate must be positive")));
}

TEST(TimeCodeDate, IsWrittenInFrontAndReadOnlyWhereAllowed)
{
    const SmpteTimeCodeParser parser(kFps25, true);
    const TimeCode dated = parser.Parse("2026-11-23 10:00:00:01");
    EXPECT_TRUE(dated.HasDate());
    EXPECT_EQ((std::vector<int32_t>{dated.Year(), dated.Month(), dated.Day(), dated.Hour()}),
              (std::vector<int32_t>{2026, 11, 23, 10}));
    EXPECT_EQ(dated.ToString(SmpteTimeCodeFormatter()), "2026-11-23 10:00:00:01");
    EXPECT_FALSE(parser.Parse("10:00:00:01").HasDate());
    EXPECT_THAT([&] { parser.Parse("2026-02-29 00:00:00:00"); },
                ThrowsMessage<std::invalid_argument>(StrEq("Invalid timecode '2026-02-29 00:00:00:00': no such day")));
    EXPECT_THAT(
        [&] { SmpteTimeCodeFormatter().Format(TimeCode(kFps25, -719529 * 2160000LL, false, true)); },
        ThrowsMessage<std::invalid_argument>(StrEq("Invalid timecode: the date must be a day of the years 0000 to 9999")));
    EXPECT_EQ(Label(kFps25, -1, false), "23:59:59:24") << "without a date, the time of day";
}

TEST(TimeCodeFromLabel, ChecksAsTheParserDoes)
{
    EXPECT_EQ(TimeCode(kNtsc30, 0, 1, 0, 2, true), TimeCode(kNtsc30, 1800, true, false));
    EXPECT_EQ(TimeCode(kFps25, 23, 59, 59, 24, false).TotalSample(), 2159999);
    const struct {
        int hours, minutes, seconds, frames;
        bool isDrop;
        const char* reason;
    } refusals[] = {
        {0, 1, 0, 1, true, "drop-frame counting skips this label"},
        {24, 0, 0, 0, false, "hours must be 0 to 23"},
        {-1, 0, 0, 0, false, "hours must be 0 to 23"},
        {0, 0, 0, 30, false, "frames must be below the rate"},
        {0, 60, 0, 0, false, "minutes must be 0 to 59"},
    };
    for (const auto& row : refusals) {
        SCOPED_TRACE(row.reason);
        EXPECT_THAT([&] { TimeCode(kNtsc30, row.hours, row.minutes, row.seconds, row.frames, row.isDrop); },
                    ThrowsMessage<std::invalid_argument>(StrEq(std::string("Orvik::TimePoints::TimeCode: ") + row.reason)));
    }
    EXPECT_THAT([] { SmpteTimeCodeFormatter().Format(TimeCode(kFps25, 0, true, false)); },
                ThrowsMessage<std::invalid_argument>(
                    StrEq("Invalid timecode: drop-frame counting needs 30000/1001 frames a second or a whole "
                          "multiple of it")));
}

TEST(TimePointText, WritesUtcWithNineFractionDigitsAndNamesTheNamedPoints)
{
    const PointText rows[] = {
        {0, "1970-01-01T00:00:00.000000000Z"},
        {-1, "1969-12-31T23:59:59.999999999Z"},
        {951825600 * kSecond + 40000000, "2000-02-29T12:00:00.040000000Z"},
        {std::numeric_limits<int64_t>::min(), "1677-09-21T00:12:43.145224192Z"},
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
    const struct {
        const char* reason;
        std::vector<const char*> texts;
    } refusals[] = {
        {"outside the 64-bit time line, 1677-09-21T00:12:43.145224192Z to 2262-04-11T23:47:16.854775807Z",
         {"2262-04-11T23:47:16.854775808Z", "2262-04-12T00:00:00+00:01"}},
        {"no such day", {"2026-02-29T00:00:00Z", "2026-13-01T00:00:00Z"}},
        {"the time of day must be 00:00:00 to 23:59:59", {"2026-01-01T24:00:00Z", "2026-01-01T00:00:60Z"}},
        {"the offset must be 00:00 to 23:59", {"2026-01-01T00:00:00+24:00"}},
        {"expected YYYY-MM-DDTHH:MM:SS, up to nine fraction digits, and Z or +HH:MM",
         {"2026-01-01T00:00:00", "2026-01-01T00:00:00.Z", "2026-01-01T00:00:00.1234567890Z", "2026-01-01T00:00:00+0100",
          "2026-01-01T00:00:00Z ", "26-01-01T00:00:00Z", "", "Unset"}},
    };
    const Iso8601TimePointParser parser;
    for (const auto& row : refusals) {
        for (const std::string text : row.texts) {
            SCOPED_TRACE(text);
            EXPECT_FALSE(parser.IsStringFormatValid(text));
            EXPECT_THAT([&] { parser.Parse(text); },
                        ThrowsMessage<std::invalid_argument>(StrEq("Invalid time point '" + text + "': " + row.reason)));
        }
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

// The clock form writes every duration to the nanosecond; the timecode form counts whole frames
// toward zero.
TEST(DurationText, ClockFormToTheNanosecondTimecodeFormInWholeFramesTowardZero)
{
    const ClockDurationFormatter clock;
    const TimeCodeDurationFormatter fps25(kFps25);
    const TimeCodeDurationFormatter drop(kNtsc30, true);
    const struct {
        const DurationFormatter& formatter;
        Duration duration;
        const char* text;
    } rows[] = {
        {clock, Duration(), "00:00:00.000000000"},
        {clock, Duration(-1), "-00:00:00.000000001"},
        {clock, Duration::FromMinutes(24 * 60), "24:00:00.000000000"},
        {clock, Duration::FromSeconds(3661) + Duration::FromMilliseconds(40), "01:01:01.040000000"},
        {clock, Duration::MinValue(), "-2562047:47:16.854775808"},
        {clock, Duration::MaxValue(), "2562047:47:16.854775807"},
        {fps25, Duration::FromMilliseconds(1040), "00:00:01:01"},
        {fps25, Duration::FromMilliseconds(1079), "00:00:01:01"},
        {fps25, Duration::FromSeconds(-1), "-00:00:01:00"},
        {fps25, Duration::FromMilliseconds(-39), "00:00:00:00"},
        {fps25, Duration::FromMinutes(25 * 60), "25:00:00:00"},
        {drop, Duration::FromMilliseconds(60060), "00:01:00;02"},
        {drop, Duration::FromMilliseconds(600600), "00:10:00;18"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.text);
        EXPECT_EQ(row.duration.ToString(row.formatter), row.text);
    }
    EXPECT_THAT([] { TimeCodeDurationFormatter(kFps25, true); },
                ThrowsMessage<std::invalid_argument>(StrEq("Orvik::TimePoints::TimeCodeDurationFormatter: drop-frame "
                                                           "counting needs 30000/1001 frames a second or a whole "
                                                           "multiple of it")));
}
