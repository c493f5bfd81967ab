#include <Orvik/TimePoints/Core/Formatters/SmpteTimeCodeFormatter.h>
#include <Orvik/TimePoints/Core/Parsers/SmpteTimeCodeParser.h>
#include <Orvik/TimePoints/Core/TimeCode.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdint>
#include <ostream>
#include <stdexcept>
#include <string>

using namespace Orvik::TimePoints;
using ::testing::StrEq;
using ::testing::ThrowsMessage;

namespace {

const Rate kNtsc30(30000, 1001);
const Rate kNtsc60(60000, 1001);

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
                         ::testing::Values(Counting{Rate(24, 1), false, 24, "r24"}, Counting{Rate(25, 1), false, 25, "r25"},
                                           Counting{Rate(30, 1), false, 30, "r30"}, Counting{Rate(48, 1), false, 48, "r48"},
                                           Counting{Rate(50, 1), false, 50, "r50"}, Counting{Rate(60, 1), false, 60, "r60"},
                                           Counting{Rate(24000, 1001), false, 24, "r23_976"},
                                           Counting{kNtsc30, true, 30, "r29_97Drop"},
                                           Counting{kNtsc60, true, 60, "r59_94Drop"}),
                         [](const ::testing::TestParamInfo<Counting>& info) { return std::string(info.param.name); });

struct Boundary {
    const Rate& rate;
    int64_t sample;
    const char* label;
};

TEST(TimeCodeDropFrame, LabelsAtTheDroppedPairsAndEachTenthMinute)
{
    const Boundary boundaries[] = {
        {kNtsc30, 1799, "00:00:59;29"},         {kNtsc30, 1800, "00:01:00;02"},  // first after a dropped pair
        {kNtsc30, 3597, "00:01:59;29"},         {kNtsc30, 3598, "00:02:00;02"},
        {kNtsc30, 16184, "00:09:00;02"},        {kNtsc30, 17981, "00:09:59;29"},
        {kNtsc30, 17982, "00:10:00;00"},        {kNtsc30, 17983, "00:10:00;01"},  // tenth minute keeps them
        {kNtsc30, 17982 + 1800, "00:11:00;02"}, {kNtsc30, 107892, "01:00:00;00"},
        {kNtsc30, 2589407, "23:59:59;29"},      {kNtsc60, 3599, "00:00:59;59"},
        {kNtsc60, 3600, "00:01:00;04"},         {kNtsc60, 35964, "00:10:00;00"},
        {kNtsc60, 5178815, "23:59:59;59"},
    };
    const SmpteTimeCodeParser parsers[] = {SmpteTimeCodeParser(kNtsc30), SmpteTimeCodeParser(kNtsc60)};
    for (const Boundary& row : boundaries) {
        SCOPED_TRACE(row.label);
        EXPECT_EQ(Label(row.rate, row.sample, true), row.label);
        const SmpteTimeCodeParser& parser = &row.rate == &kNtsc30 ? parsers[0] : parsers[1];
        EXPECT_EQ(parser.Parse(row.label), TimeCode(row.rate, row.sample, true, false));
    }
}

struct Variant {
    const char* text;
    int64_t sample;
    bool isDrop;
};

TEST(TimeCodeParser, ReadsTheSeparatorVariantsSeenInPractice)
{
    const SmpteTimeCodeParser parser(kNtsc30);
    const Variant variants[] = {
        {"00:01:00:00", 1800, false}, {"00:01:00;02", 1800, true},   {"00;01;00;02", 1800, true},
        {"00:01:00.02", 1800, true},  {"01:00:00;00", 107892, true},
    };
    for (const Variant& row : variants) {
        SCOPED_TRACE(row.text);
        EXPECT_EQ(parser.Parse(row.text), TimeCode(kNtsc30, row.sample, row.isDrop, false));
        EXPECT_TRUE(parser.IsStringFormatValid(row.text));
    }
}

struct Refusal {
    const Rate& rate;
    const char* text;
    const char* reason;
};

TEST(TimeCodeParser, RefusesLabelsThatCannotExistNamingTextAndReason)
{
    const Rate fps25(25, 1);
    const Rate fps120(120, 1);
    const char* const syntax = "expected HH:MM:SS:FF, HH:MM:SS;FF, HH;MM;SS;FF or HH:MM:SS.FF";
    const Refusal refusals[] = {
        {kNtsc30, "00:01:00;00", "drop-frame counting skips this label"},
        {kNtsc30, "00:01:00;01", "drop-frame counting skips this label"},
        {kNtsc60, "00:01:00;03", "drop-frame counting skips this label"},
        {kNtsc30, "00:00:00:30", "frames must be below the rate"},
        {fps25, "00:00:00:25", "frames must be below the rate"},
        {fps25, "00:60:00:00", "minutes must be 0 to 59"},
        {fps25, "00:00:60:00", "seconds must be 0 to 59"},
        {fps25, "24:00:00:00", "hours must be 0 to 23"},
        {fps25, "00:00:00;00", "drop-frame counting needs 30000/1001 frames a second or a whole multiple of it"},
        {fps25, "0:00:00:00", syntax},
        {fps25, "00:00:00:0", syntax},
        {fps25, "00:00:00:00 ", syntax},
        {fps25, "", syntax},
        {fps25, "00;00;00:00", syntax},
        {fps25, "00:00;00;00", syntax},
        {fps25, "00:00:00:+1", syntax},
        {fps25, "2026-11-23 00:00:00:00", syntax},
        {fps120, "00:00:00:19", syntax},
    };
    for (const Refusal& row : refusals) {
        SCOPED_TRACE(row.text);
        const SmpteTimeCodeParser parser(row.rate);
        EXPECT_FALSE(parser.TryParse(row.text).first);
        EXPECT_THAT(
            [&] { parser.Parse(row.text); },
            ThrowsMessage<std::invalid_argument>(StrEq(std::string("Invalid timecode '") + row.text + "': " + row.reason)));
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
    const Rate fps25(25, 1);
    const SmpteTimeCodeParser parser(fps25, true);
    const TimeCode dated = parser.Parse("2026-11-23 10:00:00:01");
    EXPECT_TRUE(dated.HasDate());
    EXPECT_EQ(dated.Year(), 2026);
    EXPECT_EQ(dated.Month(), 11);
    EXPECT_EQ(dated.Day(), 23);
    EXPECT_EQ(dated.Hour(), 10);
    EXPECT_EQ(dated.ToString(SmpteTimeCodeFormatter()), "2026-11-23 10:00:00:01");
    EXPECT_FALSE(parser.Parse("10:00:00:01").HasDate());
    EXPECT_THAT([&] { parser.Parse("2026-02-29 00:00:00:00"); },
                ThrowsMessage<std::invalid_argument>(StrEq("Invalid timecode '2026-02-29 00:00:00:00': no such day")));
    EXPECT_THAT(
        [&] { SmpteTimeCodeFormatter().Format(TimeCode(fps25, -719529 * 2160000LL, false, true)); },
        ThrowsMessage<std::invalid_argument>(StrEq("Invalid timecode: the date must be a day of the years 0000 to 9999")));
    EXPECT_EQ(Label(fps25, -1, false), "23:59:59:24") << "without a date, the time of day";
}

TEST(TimeCodeFromLabel, ChecksAsTheParserDoes)
{
    EXPECT_EQ(TimeCode(kNtsc30, 0, 1, 0, 2, true), TimeCode(kNtsc30, 1800, true, false));
    EXPECT_EQ(TimeCode(Rate(25, 1), 23, 59, 59, 24, false).TotalSample(), 2159999);
    const struct {
        int hours, minutes, seconds, frames;
        bool isDrop;
        const char* reason;
    } refusals[] = {
        {0, 1, 0, 1, true, "drop-frame counting skips this label"},
        {24, 0, 0, 0, false, "hours must be 0 to 23"},
        {-1, 0, 0, 0, false, "hours must be 0 to 23"},
        {0, 0, 0, 30, false, "frames must be below the rate"},
    };
    for (const auto& row : refusals) {
        SCOPED_TRACE(row.reason);
        EXPECT_THAT([&] { TimeCode(kNtsc30, row.hours, row.minutes, row.seconds, row.frames, row.isDrop); },
                    ThrowsMessage<std::invalid_argument>(StrEq(std::string("Orvik::TimePoints::TimeCode: ") + row.reason)));
    }
    EXPECT_THAT([] { SmpteTimeCodeFormatter().Format(TimeCode(Rate(25, 1), 0, true, false)); },
                ThrowsMessage<std::invalid_argument>(
                    StrEq("Invalid timecode: drop-frame counting needs 30000/1001 frames a second or a whole "
                          "multiple of it")));
}
