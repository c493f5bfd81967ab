#include <Orvik/TimePoints/Core/Duration.h>
#include <Orvik/TimePoints/Core/TimeBoundary.h>
#include <Orvik/TimePoints/Core/TimeBounds.h>
#include <Orvik/TimePoints/Core/TimeCode.h>
#include <Orvik/TimePoints/Core/TimePoint.h>

#include <gtest/gtest.h>

#include <cstdint>
#include <limits>

using namespace Orvik::TimePoints;

static_assert(TimeBoundary::Empty().TimePoint().ToNanoseconds() == std::numeric_limits<int64_t>::min() + 1,
              "the empty boundary is a compile-time constant");
static_assert(!TimeBoundary::Empty().IsMoving());

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
    const TimePoint point(-9223372036854775807);
    EXPECT_EQ(TimeBoundary(point, false), TimeBoundary::Empty());
    EXPECT_NE(TimeBoundary(point, true), TimeBoundary::Empty());
    EXPECT_NE(TimeBoundary(TimePoint(5), true), TimeBoundary(TimePoint(5), false));
    EXPECT_EQ(TimeBoundary(), TimeBoundary::Empty());
}

TEST(TimeBounds, DurationIsOutMinusInAndEqualityLooksAtBothBoundaries)
{
    const TimeBounds bounds(TimeBoundary(TimePoint(100), false), TimeBoundary(TimePoint(250), true));
    EXPECT_EQ(bounds.Duration().ToNanoseconds(), 150);
    EXPECT_NE(bounds, TimeBounds(TimeBoundary(TimePoint(100), false), TimeBoundary(TimePoint(250), false)));
    EXPECT_EQ(TimeBounds().InBoundary(), TimeBoundary::Empty());
}

TEST(TimePointSamples, RoundTowardMinusInfinity)
{
    const Rate fps25(25, 1);
    EXPECT_EQ(TimePoint(39999999).GetSampleNumber(fps25), 0);
    EXPECT_EQ(TimePoint(40000000).GetSampleNumber(fps25), 1);
    EXPECT_EQ(TimePoint(-1).GetSampleNumber(fps25), -1);
    EXPECT_EQ(TimePoint::FromSampleNumber(3, fps25).ToNanoseconds(), 120000000);
    EXPECT_EQ(TimePoint(-1).AlignWith(fps25).ToNanoseconds(), -40000000);
    EXPECT_THROW(TimePoint(0).GetSampleNumber(Rate(0, 1)), std::invalid_argument);
}

TEST(DurationFactories, ScaleToNanoseconds)
{
    EXPECT_EQ(Duration::FromMilliseconds(3).ToNanoseconds(), 3000000);
    EXPECT_EQ(Duration::FromSeconds(2).ToNanoseconds(), 2000000000);
    EXPECT_EQ(Duration::FromMinutes(1).ToNanoseconds(), 60000000000);
    Duration total = Duration::FromSeconds(1);
    total += Duration::FromMilliseconds(500);
    EXPECT_EQ(total, Duration::FromMilliseconds(1500));
}

TEST(TimeCodeClock, ShowsNonDropDropFrameAndDate)
{
    const TimeCode hour(Rate(25, 1), 90000, false, false);
    EXPECT_EQ(hour.Hour(), 1);
    EXPECT_EQ(hour.Minute(), 0);
    EXPECT_EQ(hour.Sample(), 0);

    // At 29.97 drop-frame, frame numbers 0 and 1 of minute 1 are skipped.
    const TimeCode dropped(Rate(30000, 1001), 1800, true, false);
    EXPECT_EQ(dropped.Minute(), 1);
    EXPECT_EQ(dropped.Second(), 0);
    EXPECT_EQ(dropped.Sample(), 2);
    const TimeCode tenth(Rate(30000, 1001), 17982, true, false);
    EXPECT_EQ(tenth.Minute(), 10);
    EXPECT_EQ(tenth.Sample(), 0) << "every tenth minute keeps its first frames";

    const TimeCode nextDay(Rate(25, 1), 25 * 86400 + 26, false, true);
    EXPECT_EQ(nextDay.Year(), 1970);
    EXPECT_EQ(nextDay.Month(), 1);
    EXPECT_EQ(nextDay.Day(), 2);
    EXPECT_EQ(nextDay.Second(), 1);
    EXPECT_EQ(nextDay.Sample(), 1);
}
