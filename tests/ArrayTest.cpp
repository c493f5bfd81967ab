// The owning array of polymorphic elements.

#include <Orvik/BusinessEntityModel/BaseTypes/Array.h>

#include <gmock/gmock.h>

#include <initializer_list>
#include <memory>
#include <stdexcept>
#include <string>

using namespace Orvik::BusinessEntityModel::BaseTypes;
using ::testing::StrEq;
using ::testing::ThrowsMessage;

namespace {

// A small polymorphic family; counts comparisons and can refuse to clone.
struct Shape {
    static inline int comparisons = 0;
    virtual ~Shape() = default;
    virtual std::unique_ptr<Shape> Clone() const = 0;
    virtual bool operator==(const Shape& other) const { return ++comparisons, size == other.size; }
    int size = 0;
    bool refuseClone = false;
};

struct Square : Shape {
    explicit Square(int value) { size = value; }
    std::unique_ptr<Shape> Clone() const override
    {
        if (refuseClone)
            throw std::runtime_error("clone refused");
        return std::make_unique<Square>(*this);
    }
};

Array<Shape> Squares(std::initializer_list<int> sizes)
{
    Array<Shape> array;
    for (const int size : sizes)
        array.Add(Square(size));
    return array;
}

}  // namespace

TEST(ArrayEquality, ChecksSizesFirstThenElementsInPosition)
{
    Array<Shape> left = Squares({1});
    Array<Shape> right;
    Shape::comparisons = 0;
    EXPECT_FALSE(left == right);
    EXPECT_EQ(Shape::comparisons, 0);
    right.Add(Square(1));
    EXPECT_TRUE(left == right);
    left.Add(Square(2));
    right.Insert(0, Square(2));
    EXPECT_TRUE(left != right) << "order matters";
}

TEST(ArrayCopy, DeepCopiesEveryElementAndAFailedCloneLeavesTheArrayAsItWas)
{
    Array<Shape> source = Squares({1, 2});
    Array<Shape> copy;
    copy.Copy(source);
    ASSERT_EQ(copy.Size(), 2);
    EXPECT_NE(&copy[0], &source[0]);
    EXPECT_TRUE(copy == source);

    source[1].refuseClone = true;
    copy = Squares({7});
    EXPECT_THAT([&] { copy.Copy(source); }, ThrowsMessage<std::runtime_error>(StrEq("clone refused")));
    ASSERT_EQ(copy.Size(), 1);
    EXPECT_EQ(copy[0].size, 7);
}

TEST(ArrayIndexes, OutOfRangeThrowsNamingOperationIndexAndSizeAndChangesNothing)
{
    Array<Shape> array;
    EXPECT_EQ(array.Add(Square(1)), 0);
    EXPECT_EQ(array.Insert(1, Square(2)), 1) << "Insert takes the index one past the end";
    const auto outOfRange = [](const std::string& operationAndIndex) {
        return ThrowsMessage<std::out_of_range>(
            StrEq("Orvik::BusinessEntityModel::BaseTypes::Array::" + operationAndIndex + " out of range for size 2"));
    };
    EXPECT_THAT([&] { array.Erase(2); }, outOfRange("Erase: index 2"));
    EXPECT_THAT([&] { array.Insert(3, Square(3)); }, outOfRange("Insert: index 3"));
    EXPECT_THAT([&] { array.At(-1); }, outOfRange("At: index -1"));
    EXPECT_THAT([&] { array.Replace(2, std::make_unique<Square>(5)); }, outOfRange("Replace: index 2"));
    EXPECT_EQ(array.Size(), 2);
}

TEST(ArrayAdopt, TakesTheElementsAndEmptiesTheOther)
{
    Array<Shape> array = Squares({1});
    Array<Shape> other = Squares({2});
    other.Adopt(array);
    EXPECT_EQ(other.Size(), 2);
    EXPECT_EQ(other[1].size, 1);
    EXPECT_TRUE(array.Empty());
    other.Adopt(other);
    EXPECT_EQ(other.Size(), 2) << "adopting itself changes nothing";
}
