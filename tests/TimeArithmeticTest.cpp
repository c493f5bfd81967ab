#include <Orvik/DataModel/MediaAssets/MediaAsset.h>
#include <Orvik/DataModel/MediaAssets/TimeBoundsArray.h>
#include <Orvik/TimePoints/Core/Duration.h>
#include <Orvik/TimePoints/Core/TimeBounds.h>
#include <Orvik/TimePoints/Core/TimeCode.h>
#include <Orvik/TimePoints/Core/TimePoint.h>

#include <gtest/gtest.h>

#include <cstdint>
#include <limits>

using namespace Orvik::TimePoints;

// Every case runs at run time, so that the sanitizer build executes each operation at its edge.
namespace {

constexpr int64_t kMax = std::numeric_limits<int64_t>::max();
constexpr int64_t kMin = std::numeric_limits<int64_t>::min();
constexpr int64_t kEmpty = kMin + 1;

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

TimeBoundary At(int64_t nanoseconds)
{
    return TimeBoundary(TimePoint(nanoseconds), false);
}

}  // namespace

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
}

TEST(TimeArithmetic, DurationsOfBoundsAndArraysDifferAgainstTheUnsetValue)
{
    using Orvik::DataModel::MediaAssets::MediaAsset;
    using Orvik::DataModel::MediaAssets::TimeBoundsArray;

    MediaAsset asset;
    asset.OutBoundary(At(250));
    TimeBoundsArray array;
    array.Insert(TimeBounds(TimeBoundary::Empty(), At(kMax)));
    array.Insert(TimeBounds(At(0), At(250)));
    ExpectAll({
        {"bounds from unset to 250", TimeBounds(TimeBoundary::Empty(), At(250)).Duration().ToNanoseconds(),
         -9223372036854775559},
        {"bounds from max to lowest", TimeBounds(At(kMax), At(kMin)).Duration().ToNanoseconds(), 1},
        {"asset with unset in", asset.GetDuration().ToNanoseconds(), -9223372036854775559},
        {"array summing past max", array.GetDuration().ToNanoseconds(), 248},
    });
}

TEST(TimeArithmetic, SampleCountsWrapAroundAndTheClockStillReadsThem)
{
    const Rate rate(25, 1);
    TimeCode incremented(rate, kMax, false, false);
    ++incremented;
    TimeCode postIncremented(rate, kMax, false, false);
    postIncremented++;
    TimeCode decremented(rate, kMin, false, false);
    --decremented;
    TimeCode postDecremented(rate, kMin, false, false);
    postDecremented--;
    TimeCode added(rate, kMax, false, false);
    added.AddSample(2);
    TimeCode subtracted(rate, kMin, false, false);
    subtracted.SubstractSample(1);
    ExpectAll({
        {"++max", incremented.TotalSample(), kMin},
        {"max++", postIncremented.TotalSample(), kMin},
        {"--lowest", decremented.TotalSample(), kMax},
        {"lowest--", postDecremented.TotalSample(), kMax},
        {"AddSample(max, 2)", added.TotalSample(), kMin + 1},
        {"SubstractSample(lowest, 1)", subtracted.TotalSample(), kMax},
        {"max + 1", (TimeCode(rate, kMax, false, false) + 1).TotalSample(), kMin},
        {"lowest - 1", (TimeCode(rate, kMin, false, false) - 1).TotalSample(), kMax},
    });
    // -2^63 frames at 25 per second is 2104192 frames into its day (floored): 23:22:47, frame 17.
    const TimeCode lowest(rate, kMin, false, false);
    EXPECT_EQ(lowest.Hour(), 23);
    EXPECT_EQ(lowest.Minute(), 22);
    EXPECT_EQ(lowest.Second(), 47);
    EXPECT_EQ(lowest.Sample(), 17);
}
