#include <Orvik/BusinessEntityModel/BaseTypes/SortedVector.h>
#include <Orvik/BusinessEntityModel/BaseTypes/SortedVectorSharedPointer.h>
#include <Orvik/BusinessEntityModel/BaseTypes/SortedVectorWeakPointer.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

using namespace Orvik::BusinessEntityModel::BaseTypes;
using ::testing::StrEq;
using ::testing::ThrowsMessage;

namespace {

constexpr char kDuplicate[] = "Orvik::DataModel::MediaAssets::SortedVector::Insert: item already present in the collection";
constexpr char kExpired[] = "Orvik::DataModel::MediaAssets::CompareEqualWeakPointer: weak pointer object is expired";

// Ordered by key, equal by key and label, and counting every comparison.
struct Keyed {
    static inline int comparisons = 0;
    int key;
    std::string label;
    bool operator<(const Keyed& other) const
    {
        ++comparisons;
        return key < other.key;
    }
    bool operator==(const Keyed& other) const
    {
        ++comparisons;
        return key == other.key && label == other.label;
    }
};

std::vector<std::string> Labels(const SortedVector<Keyed>& vector)
{
    std::vector<std::string> labels;
    for (const auto& element : vector)
        labels.push_back(element.label);
    return labels;
}

}  // namespace

TEST(SortedVectorInsert, KeepsLessOrderWhateverTheInsertionOrder)
{
    SortedVector<Keyed> vector;
    vector.Insert(Keyed{2, "b"});
    vector.Insert(Keyed{1, "a"});
    vector.Insert(Keyed{3, "c"});
    EXPECT_THAT(Labels(vector), ::testing::ElementsAre("a", "b", "c"));
}

TEST(SortedVectorInsert, IntoEmptyVectorComparesNothing)
{
    SortedVector<Keyed> vector;
    Keyed::comparisons = 0;
    vector.Insert(Keyed{1, "a"});
    EXPECT_EQ(Keyed::comparisons, 0);
}

TEST(SortedVectorInsert, RefusesEqualElementAtLowerBoundAndStaysUnchanged)
{
    SortedVector<Keyed> vector;
    vector.Insert(Keyed{1, "a"});
    vector.Insert(Keyed{2, "b"});
    EXPECT_THAT([&] { vector.Insert(Keyed{2, "b"}); }, ThrowsMessage<std::runtime_error>(StrEq(kDuplicate)));
    EXPECT_THAT(Labels(vector), ::testing::ElementsAre("a", "b"));
}

TEST(SortedVectorInsert, SameKeyButNotEqualGoesInFrontAndOnlyLowerBoundIsTested)
{
    SortedVector<Keyed> vector;
    vector.Insert(Keyed{3, "track a"});
    vector.Insert(Keyed{3, "track b"});
    EXPECT_THAT(Labels(vector), ::testing::ElementsAre("track b", "track a"));
    // "track a" no longer stands at the lower bound of key 3, so it is taken a second time.
    vector.Insert(Keyed{3, "track a"});
    EXPECT_THAT(Labels(vector), ::testing::ElementsAre("track a", "track b", "track a"));
}

TEST(SortedVectorEquality, ComparesElementsPairwiseAfterSizes)
{
    SortedVector<Keyed> left;
    SortedVector<Keyed> right;
    EXPECT_TRUE(left == right);
    left.Insert(Keyed{1, "a"});
    Keyed::comparisons = 0;
    EXPECT_FALSE(left == right);
    EXPECT_EQ(Keyed::comparisons, 0) << "different sizes compare no element";
    right.Insert(Keyed{1, "other"});
    EXPECT_TRUE(left != right);
    right = left;
    EXPECT_TRUE(left == right);
}

TEST(SortedVectorLookup, FindsEqualElementAmongSameKeysAndChecksIndexes)
{
    SortedVector<Keyed> vector;
    vector.Insert(Keyed{3, "x"});
    vector.Insert(Keyed{3, "y"});
    const auto found = vector.ConstFind(Keyed{3, "x"});
    ASSERT_NE(found, vector.cend());
    EXPECT_EQ(found->label, "x");
    EXPECT_EQ(vector.ConstFind(Keyed{3, "z"}), vector.cend());
    EXPECT_THAT([&] { vector.At(2); },
                ThrowsMessage<std::out_of_range>(
                    StrEq("Orvik::DataModel::MediaAssets::SortedVector::CheckIndex: index 2 out of range for size 2")));
}

TEST(SortedVectorReplace, MovesElementToItsNewPlaceOrLeavesVectorUnchanged)
{
    SortedVector<Keyed> vector;
    vector.Insert(Keyed{1, "a"});
    vector.Insert(Keyed{2, "b"});
    vector.Replace(Keyed{1, "a"}, Keyed{3, "c"});
    EXPECT_THAT(Labels(vector), ::testing::ElementsAre("b", "c"));
    EXPECT_THAT([&] { vector.Replace(Keyed{2, "b"}, Keyed{3, "c"}); },
                ThrowsMessage<std::runtime_error>(StrEq(kDuplicate)));
    EXPECT_THAT(Labels(vector), ::testing::ElementsAre("b", "c"));
    EXPECT_THROW(vector.Replace(Keyed{9, "none"}, Keyed{4, "d"}), std::runtime_error);
}

TEST(SortedVectorSharedPointer, OrdersAndComparesPointeesNotAddresses)
{
    SortedVectorSharedPointer<Keyed> left;
    left.Insert(std::make_shared<Keyed>(Keyed{2, "b"}));
    left.Insert(std::make_shared<Keyed>(Keyed{1, "a"}));
    EXPECT_EQ(left.Front()->label, "a");
    EXPECT_THAT([&] { left.Insert(std::make_shared<Keyed>(Keyed{1, "a"})); },
                ThrowsMessage<std::runtime_error>(StrEq(kDuplicate)));

    SortedVectorSharedPointer<Keyed> right;
    right.Insert(std::make_shared<Keyed>(Keyed{1, "a"}));
    right.Insert(std::make_shared<Keyed>(Keyed{2, "b"}));
    EXPECT_TRUE(left == right);

    const SortedVectorSharedPointer<Keyed> copy = left;
    EXPECT_EQ(copy.Front().get(), left.Front().get()) << "a copy shares the pointees";
}

TEST(SortedVectorWeakPointer, ExpiredPointeeThrowsOnInsertAndCompare)
{
    auto kept = std::make_shared<Keyed>(Keyed{1, "a"});
    auto released = std::make_shared<Keyed>(Keyed{2, "b"});
    SortedVectorWeakPointer<Keyed> vector;
    vector.Insert(kept);
    vector.Insert(released);
    const SortedVectorWeakPointer<Keyed> copy = vector;
    EXPECT_TRUE(copy == vector);

    released.reset();
    EXPECT_THAT([&] { (void)(copy == vector); }, ThrowsMessage<std::runtime_error>(StrEq(kExpired)));
    EXPECT_THAT([&] { vector.Insert(std::make_shared<Keyed>(Keyed{3, "c"})); },
                ThrowsMessage<std::runtime_error>(StrEq(kExpired)));

    SortedVectorWeakPointer<Keyed> empty;
    empty.Insert(std::weak_ptr<Keyed>());
    EXPECT_EQ(empty.Size(), 1u) << "an empty vector compares nothing, so it takes an expired pointer";
}
