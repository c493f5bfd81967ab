#include <Orvik/DataModel/MediaAssets/TimeBoundsArray.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <stdexcept>

using namespace Orvik::DataModel::MediaAssets;
using ::testing::StrEq;
using ::testing::ThrowsMessage;

namespace {

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

}  // namespace

TEST(TimeBoundsArrayValidity, EmptyArrayWithUnsetBoundariesIsValid)
{
    const TimeBoundsArray array;
    EXPECT_FALSE(array.HasOverlappingTimeBounds());
    EXPECT_TRUE(array.IsInValid());
    EXPECT_TRUE(array.IsOutValid());
    EXPECT_FALSE(array.IsInOutOfTimeBounds());
    EXPECT_FALSE(array.IsOutOutOfTimeBounds());
    EXPECT_TRUE(array.IsValid());
    EXPECT_FALSE(Bounds({}, At(0)).IsValid()) << "a set in boundary with no stretch is out of bounds";
}

TEST(TimeBoundsArrayValidity, TouchingStretchesDoNotOverlap)
{
    EXPECT_FALSE(Bounds({Stretch(0, 10), Stretch(10, 20)}).HasOverlappingTimeBounds());
    EXPECT_TRUE(Bounds({Stretch(0, 10), Stretch(9, 20)}).HasOverlappingTimeBounds());
    EXPECT_TRUE(Bounds({Stretch(0, 10), TimeBounds(At(0), At(10, true))}).HasOverlappingTimeBounds())
        << "stretches that differ only in a moving flag are different stretches";
}

TEST(TimeBoundsArrayValidity, BoundariesAreTestedAgainstHalfOpenStretches)
{
    const TimeBoundsArray array = Bounds({Stretch(0, 10)}, At(0), At(10));
    EXPECT_FALSE(array.IsInOutOfTimeBounds());
    EXPECT_TRUE(array.IsOutOutOfTimeBounds()) << "10 is not below 10";
    EXPECT_FALSE(array.IsValid());
    EXPECT_TRUE(Bounds({Stretch(0, 10), Stretch(10, 20)}, At(0), At(10)).IsValid()) << "another stretch holds 10";

    const TimeBoundsArray same = Bounds({Stretch(0, 10)}, At(5), At(5));
    EXPECT_FALSE(same.IsInValid());
    EXPECT_FALSE(same.IsOutValid());
    EXPECT_TRUE(Bounds({}, TimeBoundary::Empty(), At(5)).IsInValid()) << "an unset boundary is never invalid";
}

TEST(TimeBoundsArrayInsert, RefusesTheSameStretchButKeepsOneThatMovesDifferently)
{
    TimeBoundsArray array = Bounds({Stretch(0, 10)});
    EXPECT_THAT([&] { array.Insert(Stretch(0, 10)); },
                ThrowsMessage<std::runtime_error>(
                    StrEq("Orvik::DataModel::MediaAssets::SortedVector::Insert: item already present in the collection")));
    array.Insert(TimeBounds(At(0, true), At(10)));
    ASSERT_EQ(array.Size(), 2u);
    EXPECT_TRUE(array.Front().InBoundary().IsMoving()) << "the later one stands first";
    EXPECT_EQ(Bounds({Stretch(20, 25), Stretch(0, 10)}, At(100), At(200)).GetDuration().ToNanoseconds(), 15);
}

TEST(TimeBoundsArrayEquality, ComparesBoundariesAndEveryStretch)
{
    EXPECT_EQ(Bounds({}), Bounds({}));
    EXPECT_NE(Bounds({}, At(1)), Bounds({}, At(1, true)));
    EXPECT_NE(Bounds({Stretch(0, 10)}), Bounds({TimeBounds(At(0), At(10, true))}));
    EXPECT_EQ(Bounds({Stretch(0, 10), Stretch(20, 30)}), Bounds({Stretch(20, 30), Stretch(0, 10)}));
}
