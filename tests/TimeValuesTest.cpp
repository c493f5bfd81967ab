#include <Orvik/DataModel/MediaAssets/MediaAsset.h>
#include <Orvik/DataModel/MediaAssets/TimeBoundsArray.h>
#include <Orvik/TimePoints/Core/Duration.h>
#include <Orvik/TimePoints/Core/TimeBoundary.h>
#include <Orvik/TimePoints/Core/TimeBounds.h>
#include <Orvik/TimePoints/Core/TimeCode.h>
#include <Orvik/TimePoints/Core/TimePoint.h>

#include <gmock/gmock.h>

#include <array>
#include <cstdint>
#include <limits>
#include <random>
#include <stdexcept>
#include <vector>

using namespace Orvik::TimePoints;
using namespace Orvik::DataModel::MediaAssets;
using ::testing::StrEq;
using ::testing::ThrowsMessage;

static_assert(TimeBoundary::Empty().TimePoint().ToNanoseconds() == std::numeric_limits<int64_t>::min() + 1,
              "the empty boundary is a compile-time constant");
static_assert(!TimeBoundary::Empty().IsMoving());

namespace {

constexpr int64_t kMax = std::numeric_limits<int64_t>::max();
constexpr int64_t kMin = std::numeric_limits<int64_t>::min();
constexpr int64_t kEmpty = kMin + 1;
constexpr char kDuplicate[] = "Orvik::DataModel::MediaAssets::SortedVector::Insert: item already present in the collection";

struct Wrapped {
    const char* operation;
    int64_t actual;
    int64_t expected;
};

void ExpectAll(std::initializer_list<Wrapped> rows)
{
    for (const Wrapped& row : rows) {
        SCOPED_TRACE(row.operation);
        EXPECT_EQ(row.actual, row.expected);
    }
}

TimeBoundary At(int64_t nanoseconds, bool moving = false) { return TimeBoundary(TimePoint(nanoseconds), moving); }

TimeBounds Stretch(int64_t in, int64_t out) { return TimeBounds(At(in), At(out)); }

TimeBoundsArray Bounds(std::initializer_list<TimeBounds> stretches, TimeBoundary in = TimeBoundary::Empty(),
                       TimeBoundary out = TimeBoundary::Empty())
{
    TimeBoundsArray array;
    for (const auto& stretch : stretches)
        array.Insert(stretch);
    array.InBoundary(in);
    array.OutBoundary(out);
    return array;
}

TimeCode Frames(int64_t totalSample) { return TimeCode(Rate(25, 1), totalSample, false, false); }

// The sample count of a 25 fps timecode at `totalSample` after `operation`.
template <typename Operation>
int64_t After(int64_t totalSample, Operation operation)
{
    TimeCode timeCode = Frames(totalSample);
    operation(timeCode);
    return timeCode.TotalSample();
}

}  // namespace

TEST(TimeCodeEquality, EveryFieldCountsAndRatesCompareAsStored)
{
    const TimeCode base(Rate(25, 1), 100, false, false);
    EXPECT_EQ(base, TimeCode(Rate(25, 1), 100, false, false));
    EXPECT_NE(base, TimeCode(Rate(25, 1), 100, true, false));
    EXPECT_NE(base, TimeCode(Rate(25, 1), 100, false, true));
    EXPECT_NE(base, TimeCode(Rate(25, 1), 101, false, false));
    EXPECT_NE(base, TimeCode(Rate(50, 2), 100, false, false));
}

TEST(TimeBoundaryEquality, MovingFlagCountsAndOnlyTheExactEmptyValueIsEmpty)
{
    EXPECT_EQ(At(kEmpty), TimeBoundary::Empty());
    EXPECT_NE(At(kEmpty, true), TimeBoundary::Empty());
    EXPECT_NE(At(5, true), At(5));
    EXPECT_EQ(TimeBoundary(), TimeBoundary::Empty());
}

TEST(TimeBounds, DurationIsOutMinusInAndEqualityLooksAtBothBoundaries)
{
    const TimeBounds bounds(At(100), At(250, true));
    EXPECT_EQ(bounds.Duration().ToNanoseconds(), 150);
    EXPECT_NE(bounds, Stretch(100, 250));
    EXPECT_EQ(TimeBounds().InBoundary(), TimeBoundary::Empty());
}

TEST(TimeArithmetic, TimePointOperationsWrapAroundInTwosComplement)
{
    const TimePoint out(250);
    ExpectAll({
        {"250 - unset", (out - TimePoint::Empty()).ToNanoseconds(), -9223372036854775559},
        {"max - unset", (TimePoint::MaxValue() - TimePoint::Empty()).ToNanoseconds(), -2},
        {"unset - 250", (TimePoint::Empty() - out).ToNanoseconds(), 9223372036854775559},
        {"max + 1", (TimePoint::MaxValue() + Duration(1)).ToNanoseconds(), kMin},
        {"lowest - 1", (TimePoint(kMin) - Duration(1)).ToNanoseconds(), kMax},
        {"min - 1 is the unset point", (TimePoint::MinValue() - Duration(1)).ToNanoseconds(), kEmpty},
        {"lowest + lowest duration", (TimePoint(kMin) + Duration::MinValue()).ToNanoseconds(), 0},
    });
}

TEST(TimeArithmetic, DurationOperationsAndFactoriesWrapAroundInTwosComplement)
{
    Duration accumulated = Duration::MaxValue();
    accumulated += Duration(1);
    ExpectAll({
        {"max + 1", (Duration::MaxValue() + Duration(1)).ToNanoseconds(), kMin},
        {"max += 1", accumulated.ToNanoseconds(), kMin},
        {"min - 1", (Duration::MinValue() - Duration(1)).ToNanoseconds(), kMax},
        {"0 - min", (Duration() - Duration::MinValue()).ToNanoseconds(), kMin},
        {"FromMilliseconds past max", Duration::FromMilliseconds(9223372036855).ToNanoseconds(), -9223372036854551616},
        {"FromSeconds past max", Duration::FromSeconds(9223372037).ToNanoseconds(), -9223372036709551616},
        {"FromSeconds(lowest)", Duration::FromSeconds(kMin).ToNanoseconds(), 0},
        {"FromMinutes past max", Duration::FromMinutes(153722868).ToNanoseconds(), -9223371993709551616},
        {"FromMinutes(-1)", Duration::FromMinutes(-1).ToNanoseconds(), -60000000000},
    });
    // The compiler may evaluate the constant rows above while compiling; these run the factories.
    EXPECT_EQ(Duration::FromSeconds(1) + Duration::FromMilliseconds(500), Duration::FromMilliseconds(1500));
    EXPECT_EQ(Duration::FromMinutes(1), Duration::FromSeconds(60));
}

TEST(TimeArithmetic, DurationsOfBoundsAndArraysDifferAgainstTheUnsetValue)
{
    MediaAsset asset;
    const Duration unsetAsset = asset.GetDuration();
    asset.OutBoundary(At(250));
    const Duration unsetIn = asset.GetDuration();
    asset.InBoundary(At(100));
    ExpectAll({
        {"bounds from unset to 250", TimeBounds(TimeBoundary::Empty(), At(250)).Duration().ToNanoseconds(),
         -9223372036854775559},
        {"bounds from max to lowest", TimeBounds(At(kMax), At(kMin)).Duration().ToNanoseconds(), 1},
        {"asset with both unset", unsetAsset.ToNanoseconds(), 0},
        {"asset with unset in", unsetIn.ToNanoseconds(), -9223372036854775559},
        {"asset from 100 to 250", asset.GetDuration().ToNanoseconds(), 150},
        {"array summing past max",
         Bounds({TimeBounds(TimeBoundary::Empty(), At(kMax)), Stretch(0, 250)}).GetDuration().ToNanoseconds(), 248},
        {"array ignoring its own boundaries",
         Bounds({Stretch(20, 25), Stretch(0, 10)}, At(100), At(200)).GetDuration().ToNanoseconds(), 15},
    });
}

TEST(TimeArithmetic, SampleCountsWrapAroundAndTheClockStillReadsThem)
{
    ExpectAll({
        {"++max", After(kMax, [](TimeCode& code) { ++code; }), kMin},
        {"max++", After(kMax, [](TimeCode& code) { code++; }), kMin},
        {"--lowest", After(kMin, [](TimeCode& code) { --code; }), kMax},
        {"lowest--", After(kMin, [](TimeCode& code) { code--; }), kMax},
        {"AddSample(max, 2)", After(kMax, [](TimeCode& code) { code.AddSample(2); }), kMin + 1},
        {"SubstractSample(lowest, 1)", After(kMin, [](TimeCode& code) { code.SubstractSample(1); }), kMax},
        {"max + 1", (Frames(kMax) + 1).TotalSample(), kMin},
        {"lowest - 1", (Frames(kMin) - 1).TotalSample(), kMax},
    });
    // -2^63 frames at 25 per second is 2104192 frames into its day (floored): 23:22:47, frame 17.
    const TimeCode lowest = Frames(kMin);
    EXPECT_EQ((std::vector<int32_t>{lowest.Hour(), lowest.Minute(), lowest.Second(), lowest.Sample()}),
              (std::vector<int32_t>{23, 22, 47, 17}));
}

TEST(TimePointSamples, SampleStartsAtItsFirstWholeNanosecondAndCountsTowardMinusInfinity)
{
    const Rate ntsc(30000, 1001);
    const Rate fps25(25, 1);
    ExpectAll({
        {"sample 1 starts at 33366666.67 ns: up", TimePoint::FromSampleNumber(1, ntsc).ToNanoseconds(), 33366667},
        {"sample -1 starts at -33366666.67 ns", TimePoint::FromSampleNumber(-1, ntsc).ToNanoseconds(), -33366666},
        {"the nanosecond before sample 1", TimePoint(33366666).GetSampleNumber(ntsc), 0},
        {"the first of sample 1", TimePoint(33366667).GetSampleNumber(ntsc), 1},
        {"point -1", TimePoint(-1).GetSampleNumber(ntsc), -1},
        {"aligned within sample 1", TimePoint(40000000).AlignWith(ntsc).ToNanoseconds(), 33366667},
        {"the last of sample 0 at 25", TimePoint(39999999).GetSampleNumber(fps25), 0},
        {"sample 3 at 25", TimePoint::FromSampleNumber(3, fps25).ToNanoseconds(), 120000000},
        {"point -1 aligned at 25", TimePoint(-1).AlignWith(fps25).ToNanoseconds(), -40000000},
        {"max at 1 per second", TimePoint::MaxValue().GetSampleNumber(Rate(1, 1)), 9223372036},
        {"lowest at 1 per second", TimePoint(kMin).GetSampleNumber(Rate(1, 1)), -9223372037},
    });

    // Over random points and rates: a point lies in its sample, and a sample starts where it says.
    std::mt19937_64 random(14);
    const Rate rates[] = {fps25, ntsc, Rate(60000, 1001), Rate(48000, 1), Rate(7, 3)};
    for (int i = 0; i < 10000; ++i) {
        const Rate& rate = rates[i % 5];
        const TimePoint point(static_cast<int64_t>(random() >> 8) - (int64_t(1) << 55));
        const int64_t sample = point.GetSampleNumber(rate);
        ASSERT_LE(point.AlignWith(rate), point);
        ASSERT_LT(point, TimePoint::FromSampleNumber(sample + 1, rate));
        ASSERT_EQ(TimePoint::FromSampleNumber(sample, rate).GetSampleNumber(rate), sample);
    }
}

TEST(TimePointSamples, RefuseNumbersAndPointsOutsideSixtyFourBitsAndRatesThatAreNotPositive)
{
    constexpr char kOutside[] = "Orvik::TimePoints::TimePoint: the sample starts outside the 64-bit time line";
    constexpr char kRate[] = "Orvik::TimePoints::TimePoint: the rate must be positive";
    EXPECT_THAT([] { TimePoint::FromSampleNumber(kMax, Rate(1, 1)); }, ThrowsMessage<std::out_of_range>(StrEq(kOutside)));
    EXPECT_THAT([] { TimePoint(kMin).AlignWith(Rate(1, 1)); }, ThrowsMessage<std::out_of_range>(StrEq(kOutside)));
    EXPECT_THAT(
        [] { TimePoint::MaxValue().GetSampleNumber(Rate(kMax, 1)); },
        ThrowsMessage<std::out_of_range>(StrEq("Orvik::TimePoints::TimePoint: the sample number does not fit in 64 bits")));
    EXPECT_THAT([] { TimePoint::FromSampleNumber(0, Rate(1, 0)); }, ThrowsMessage<std::invalid_argument>(StrEq(kRate)));
    EXPECT_THAT([] { TimePoint(0).GetSampleNumber(Rate(0, 1)); }, ThrowsMessage<std::invalid_argument>(StrEq(kRate)));
}

TEST(TimeBoundsArrayValidity, StretchesAreHalfOpenAndUnsetBoundariesAreNeverOutOfPlace)
{
    const struct {
        const char* rule;
        TimeBoundsArray array;
        // HasOverlappingTimeBounds, IsInValid, IsOutValid, IsInOutOfTimeBounds, IsOutOutOfTimeBounds, IsValid
        std::array<bool, 6> verdicts;
    } rows[] = {
        {"empty, boundaries unset", Bounds({}), {false, true, true, false, false, true}},
        {"in set, no stretch", Bounds({}, At(0)), {false, true, true, true, false, false}},
        {"out set, no stretch", Bounds({}, TimeBoundary::Empty(), At(5)), {false, true, true, false, true, false}},
        {"touching stretches", Bounds({Stretch(0, 10), Stretch(10, 20)}), {false, true, true, false, false, true}},
        {"overlapping by 1", Bounds({Stretch(0, 10), Stretch(9, 20)}), {true, true, true, false, false, false}},
        {"same stretch, once moving",
         Bounds({Stretch(0, 10), TimeBounds(At(0), At(10, true))}),
         {true, true, true, false, false, false}},
        {"out at the end of the stretch", Bounds({Stretch(0, 10)}, At(0), At(10)), {false, true, true, false, true, false}},
        {"out held by the next stretch",
         Bounds({Stretch(0, 10), Stretch(10, 20)}, At(0), At(10)),
         {false, true, true, false, false, true}},
        {"in equal to out", Bounds({Stretch(0, 10)}, At(5), At(5)), {false, false, false, false, false, false}},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.rule);
        const TimeBoundsArray& array = row.array;
        EXPECT_EQ((std::array<bool, 6>{array.HasOverlappingTimeBounds(), array.IsInValid(), array.IsOutValid(),
                                       array.IsInOutOfTimeBounds(), array.IsOutOutOfTimeBounds(), array.IsValid()}),
                  row.verdicts);
    }
}

TEST(TimeBoundsArrayInsert, RefusesTheSameStretchButKeepsOneThatMovesDifferently)
{
    TimeBoundsArray array = Bounds({Stretch(0, 10)});
    EXPECT_THAT([&] { array.Insert(Stretch(0, 10)); }, ThrowsMessage<std::runtime_error>(StrEq(kDuplicate)));
    array.Insert(TimeBounds(At(0, true), At(10)));
    ASSERT_EQ(array.Size(), 2u);
    EXPECT_TRUE(array.Front().InBoundary().IsMoving()) << "the later one stands first";
}

TEST(TimeBoundsArrayEquality, ComparesBoundariesAndEveryStretch)
{
    EXPECT_EQ(Bounds({}), Bounds({}));
    EXPECT_NE(Bounds({}, At(1)), Bounds({}, At(1, true)));
    EXPECT_NE(Bounds({Stretch(0, 10)}), Bounds({TimeBounds(At(0), At(10, true))}));
    EXPECT_EQ(Bounds({Stretch(0, 10), Stretch(20, 30)}), Bounds({Stretch(20, 30), Stretch(0, 10)}));
}
