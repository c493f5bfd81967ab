#include <Orvik/BusinessEntityModel/BaseTypes/Array.h>
#include <Orvik/BusinessEntityModel/BaseTypes/SharedReference.h>
#include <Orvik/BusinessEntityModel/BaseTypes/SortedVector.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>
#include <stdexcept>
#include <string>

using namespace Orvik::BusinessEntityModel::BaseTypes;
using ::testing::StrEq;
using ::testing::ThrowsMessage;

namespace {

struct Entity {
    Identifier id;
    const Identifier& Id() const { return id; }
};

// A small polymorphic family for the owning array; counts comparisons and can refuse to clone.
struct Shape {
    static inline int comparisons = 0;
    virtual ~Shape() = default;
    virtual std::unique_ptr<Shape> Clone() const = 0;
    virtual bool operator==(const Shape& other) const
    {
        ++comparisons;
        return size == other.size;
    }
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

}  // namespace

TEST(SharedReferenceById, HoldsNoPointerAndDereferencingThrows)
{
    const SharedReference<Entity> reference(Identifier("e1"));
    EXPECT_EQ(reference.Id(), Identifier("e1"));
    EXPECT_EQ(reference.Pointer(), nullptr);
    EXPECT_THAT([&] { (void)reference->id; }, ThrowsMessage<std::runtime_error>(StrEq("null pointer")));
    EXPECT_THAT([&] { (void)reference.Value(); }, ThrowsMessage<std::runtime_error>(StrEq("null pointer")));
}

TEST(SharedReferenceId, SameIdKeepsThePointerAnotherDropsIt)
{
    auto entity = std::make_shared<Entity>(Entity{Identifier("e1")});
    SharedReference<Entity> reference(entity);
    reference.Id(Identifier("e1"));
    EXPECT_EQ(reference.Pointer(), entity);
    reference.Id(Identifier("e2"));
    EXPECT_EQ(reference.Pointer(), nullptr);
    EXPECT_EQ(reference.Id(), Identifier("e2"));
}

TEST(SharedReferenceId, FollowsThePointeeOnlyWhenAPointerIsSet)
{
    auto entity = std::make_shared<Entity>(Entity{Identifier("old")});
    SharedReference<Entity> reference(entity);
    entity->id = Identifier("new");
    EXPECT_EQ(reference.Id(), Identifier("old"));
    reference.Pointer(entity);
    EXPECT_EQ(reference.Id(), Identifier("new"));

    std::weak_ptr<Entity> expired = std::make_shared<Entity>(Entity{Identifier("gone")});
    reference.Pointer(expired);
    EXPECT_EQ(reference.Pointer(), nullptr);
    EXPECT_EQ(reference.Id(), Identifier("new")) << "a null pointer leaves the id as it was";
}

TEST(SharedReferenceInSortedVector, IsOrderedAndComparedByIdAlone)
{
    SortedVector<SharedReference<Entity>> references;
    references.Insert(SharedReference<Entity>(std::make_shared<Entity>(Entity{Identifier("b")})));
    references.Insert(SharedReference<Entity>(Identifier("a")));
    EXPECT_EQ(references.Front().Id(), Identifier("a"));
    EXPECT_THROW(references.Insert(SharedReference<Entity>(std::make_shared<Entity>(Entity{Identifier("b")}))),
                 std::runtime_error);
}

TEST(ArrayEquality, ChecksSizesFirstThenElementsInPosition)
{
    Array<Shape> left;
    Array<Shape> right;
    left.Add(Square(1));
    Shape::comparisons = 0;
    EXPECT_FALSE(left == right);
    EXPECT_EQ(Shape::comparisons, 0);
    right.Add(Square(1));
    EXPECT_TRUE(left == right);
    left.Add(Square(2));
    right.Insert(0, Square(2));
    EXPECT_TRUE(left != right) << "order matters";
}

TEST(ArrayCopy, DeepCopiesAndLeavesTheArrayAsItWasWhenACloneThrows)
{
    Array<Shape> source;
    source.Add(Square(1));
    Array<Shape> copy;
    copy.Copy(source);
    ASSERT_EQ(copy.Size(), 1);
    EXPECT_NE(&copy[0], &source[0]);
    EXPECT_TRUE(copy == source);

    source.Add(Square(2));
    source[1].refuseClone = true;
    copy[0].size = 7;
    EXPECT_THROW(copy.Copy(source), std::runtime_error);
    ASSERT_EQ(copy.Size(), 1);
    EXPECT_EQ(copy[0].size, 7);
}

TEST(ArrayIndexes, AreCheckedWithMessagesAndAdoptEmptiesTheOther)
{
    Array<Shape> array;
    EXPECT_EQ(array.Add(Square(1)), 0);
    EXPECT_EQ(array.Insert(1, Square(2)), 1);
    EXPECT_THAT([&] { array.Erase(2); },
                ThrowsMessage<std::out_of_range>(
                    StrEq("Orvik::BusinessEntityModel::BaseTypes::Array::Erase: index 2 out of range for size 2")));
    EXPECT_THAT([&] { array.Insert(3, Square(3)); },
                ThrowsMessage<std::out_of_range>(
                    StrEq("Orvik::BusinessEntityModel::BaseTypes::Array::Insert: index 3 out of range for size 2")));
    array.Replace(0, std::make_unique<Square>(5));
    EXPECT_EQ(array.At(0).size, 5);

    Array<Shape> other;
    other.Adopt(array);
    EXPECT_EQ(other.Size(), 2);
    EXPECT_TRUE(array.Empty());
}
