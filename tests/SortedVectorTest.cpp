// The sorted vectors and their shared- and weak-pointer forms.

#include <Orvik/BusinessEntityModel/BaseTypes/SortedVector.h>
#include <Orvik/BusinessEntityModel/BaseTypes/SortedVectorSharedPointer.h>
#include <Orvik/BusinessEntityModel/BaseTypes/SortedVectorWeakPointer.h>

#include <gmock/gmock.h>

#include <initializer_list>
#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

using namespace Orvik::BusinessEntityModel::BaseTypes;
using ::testing::ElementsAre;
using ::testing::StrEq;
using ::testing::ThrowsMessage;

namespace {

constexpr char kSortedVector[] = "Orvik::DataModel::MediaAssets::SortedVector::";
constexpr char kDuplicate[] = "Orvik::DataModel::MediaAssets::SortedVector::Insert: item already present in the collection";
constexpr char kExpired[] = "Orvik::DataModel::MediaAssets::CompareEqualWeakPointer: weak pointer object is expired";

// Ordered by key, equal by key and label, and counting every comparison.
struct Keyed {
    static inline int comparisons = 0;
    int key;
    std::string label;
    bool operator<(const Keyed& other) const { return ++comparisons, key < other.key; }
    bool operator==(const Keyed& other) const { return ++comparisons, key == other.key && label == other.label; }
};

SortedVector<Keyed> Inserted(std::initializer_list<Keyed> elements)
{
    SortedVector<Keyed> vector;
    for (const auto& element : elements)
        vector.Insert(element);
    return vector;
}

std::shared_ptr<Keyed> Shared(int key, const char* label) { return std::make_shared<Keyed>(Keyed{key, label}); }

std::vector<std::string> Labels(const SortedVector<Keyed>& vector)
{
    std::vector<std::string> labels;
    for (const auto& element : vector)
        labels.push_back(element.label);
    return labels;
}

}  // namespace

TEST(SortedVectorInsert, KeepsLessOrderAndRefusesAnEqualElementAtTheLowerBound)
{
    auto vector = Inserted({{2, "b"}, {1, "a"}});
    EXPECT_THAT([&] { vector.Insert(Keyed{2, "b"}); }, ThrowsMessage<std::runtime_error>(StrEq(kDuplicate)));
    EXPECT_THAT(Labels(vector), ElementsAre("a", "b"));
}

TEST(SortedVectorInsert, SameKeyButNotEqualGoesInFrontAndOnlyLowerBoundIsTested)
{
    auto vector = Inserted({{3, "track a"}, {3, "track b"}});
    EXPECT_THAT(Labels(vector), ElementsAre("track b", "track a"));
    // "track a" no longer stands at the lower bound of key 3, so it is taken a second time.
    vector.Insert(Keyed{3, "track a"});
    EXPECT_THAT(Labels(vector), ElementsAre("track a", "track b", "track a"));
}

TEST(SortedVectorInsert, IntoAnEmptyVectorComparesNothingSoItTakesEvenAnExpiredPointer)
{
    SortedVector<Keyed> vector;
    Keyed::comparisons = 0;
    vector.Insert(Keyed{1, "a"});
    EXPECT_EQ(Keyed::comparisons, 0);
    SortedVectorWeakPointer<Keyed> empty;
    empty.Insert(std::weak_ptr<Keyed>());
    EXPECT_EQ(empty.Size(), 1u);
}

TEST(SortedVectorEquality, ComparesElementsPairwiseAfterSizes)
{
    EXPECT_TRUE(Inserted({}) == Inserted({}));
    const auto left = Inserted({{1, "a"}});
    Keyed::comparisons = 0;
    EXPECT_FALSE(left == Inserted({}));
    EXPECT_EQ(Keyed::comparisons, 0) << "different sizes compare no element";
    EXPECT_TRUE(left != Inserted({{1, "other"}}));
    EXPECT_TRUE(left == Inserted({{1, "a"}}));
}

TEST(SortedVectorLookup, FindsTheEqualElementAmongSameKeysAndChecksIndexes)
{
    auto vector = Inserted({{3, "x"}, {3, "y"}});
    const auto found = vector.ConstFind(Keyed{3, "x"});
    ASSERT_NE(found, vector.cend());
    EXPECT_EQ(found->label, "x");
    EXPECT_EQ(vector.ConstFind(Keyed{3, "z"}), vector.cend());
    EXPECT_THAT(
        [&] { vector.At(2); },
        ThrowsMessage<std::out_of_range>(StrEq(std::string(kSortedVector) + "CheckIndex: index 2 out of range for size 2")));
}

TEST(SortedVectorReplace, MovesElementToItsNewPlaceOrLeavesVectorUnchanged)
{
    auto vector = Inserted({{1, "a"}, {2, "b"}});
    vector.Replace(Keyed{1, "a"}, Keyed{3, "c"});
    EXPECT_THAT(Labels(vector), ElementsAre("b", "c"));
    EXPECT_THAT([&] { vector.Replace(Keyed{2, "b"}, Keyed{3, "c"}); }, ThrowsMessage<std::runtime_error>(StrEq(kDuplicate)));
    EXPECT_THAT(
        [&] {
            vector.Replace(Keyed{9, "none"}, Keyed{4, "d"});
        },
        ThrowsMessage<std::runtime_error>(
            StrEq(std::string(kSortedVector) + "Replace: item not present in the collection")));
    EXPECT_THAT(Labels(vector), ElementsAre("b", "c"));
}

TEST(SortedVectorSharedPointer, OrdersAndComparesPointeesNotAddresses)
{
    SortedVectorSharedPointer<Keyed> left;
    left.Insert(Shared(2, "b"));
    left.Insert(Shared(1, "a"));
    EXPECT_EQ(left.Front()->label, "a");
    EXPECT_THAT([&] { left.Insert(Shared(1, "a")); }, ThrowsMessage<std::runtime_error>(StrEq(kDuplicate)));
    SortedVectorSharedPointer<Keyed> right;
    right.Insert(Shared(1, "a"));
    right.Insert(Shared(2, "b"));
    EXPECT_TRUE(left == right);
    const SortedVectorSharedPointer<Keyed> copy = left;
    EXPECT_EQ(copy.Front().get(), left.Front().get()) << "a copy shares the pointees";
}

TEST(SortedVectorWeakPointer, ExpiredPointeeThrowsOnInsertAndCompare)
{
    auto kept = Shared(1, "a");
    auto released = Shared(2, "b");
    SortedVectorWeakPointer<Keyed> vector;
    vector.Insert(kept);
    vector.Insert(released);
    const SortedVectorWeakPointer<Keyed> copy = vector;
    EXPECT_TRUE(copy == vector);
    released.reset();
    EXPECT_THAT([&] { (void)(copy == vector); }, ThrowsMessage<std::runtime_error>(StrEq(kExpired)));
    EXPECT_THAT([&] { vector.Insert(Shared(3, "c")); }, ThrowsMessage<std::runtime_error>(StrEq(kExpired)));
}
