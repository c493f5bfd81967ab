// The base types under the model: identifiers and names, the owning array, the sorted vectors and
// their pointer forms, shared references, the profile dictionary and the enumeration texts' table.

#include "TestProfiles.h"

#include <Orvik/BusinessEntityModel/BaseTypes/Array.h>
#include <Orvik/BusinessEntityModel/BaseTypes/FullyQualifiedName.h>
#include <Orvik/BusinessEntityModel/BaseTypes/Identifier.h>
#include <Orvik/BusinessEntityModel/BaseTypes/MetadataProfileDictionary.h>
#include <Orvik/BusinessEntityModel/BaseTypes/SharedReference.h>
#include <Orvik/BusinessEntityModel/BaseTypes/SortedVector.h>
#include <Orvik/BusinessEntityModel/BaseTypes/SortedVectorSharedPointer.h>
#include <Orvik/BusinessEntityModel/BaseTypes/SortedVectorWeakPointer.h>
#include <Orvik/BusinessEntityModel/BaseTypes/StringAssociation.h>
#include <Orvik/BusinessEntityModel/BaseTypes/Utf8String.h>

#include <gmock/gmock.h>

#include <cstdint>
#include <initializer_list>
#include <memory>
#include <set>
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

}  // namespace

TEST(IdentifierOrder, IsByteOrderWithPrefixFirstAndNoCaseFolding)
{
    EXPECT_LT(Identifier("A"), Identifier("AB"));
    EXPECT_LT(Identifier("AB"), Identifier("B"));
    EXPECT_GT(Identifier("a"), Identifier("Z"));
    EXPECT_LT(Identifier("z"), Identifier("\xC3\xA9")) << "bytes compare unsigned";
    EXPECT_NE(Identifier("clip"), Identifier("Clip"));
    EXPECT_LT(Identifier(), Identifier("0"));
}

TEST(IdentifierEmpty, IsOneSharedObjectAndANulByteIsNotEmpty)
{
    EXPECT_EQ(&Identifier::Empty(), &Identifier::Empty());
    EXPECT_FALSE(Identifier(std::string("\0", 1)).IsEmpty());
}

TEST(IdentifierGenerate, MakesDistinctUuidShapedTexts)
{
    std::set<std::string> seen;
    for (int i = 0; i < 100; ++i) {
        const std::string text = Identifier::Generate().Value();
        ASSERT_EQ(text.size(), 36u);
        EXPECT_EQ(text[8], '-');
        EXPECT_EQ(text[14], '4') << "version 4";
        EXPECT_TRUE(seen.insert(text).second);
    }
}

TEST(Utf8StringCounters, CountCodePointsWithoutReadingPastTheEnd)
{
    const Utf8String accented("\xC3\xA9");
    EXPECT_EQ(accented.size(), 2u);
    EXPECT_EQ(accented.Characters(), 1u);
    EXPECT_FALSE(accented.IsAscii());
    EXPECT_TRUE(Utf8String("abc").IsAscii());
    EXPECT_EQ(Utf8String("a\xE2\x82\xAC"
                         "b\xF0\x9F\x8E\xA5")
                  .Characters(),
              4u);

    // A lead byte that announces four bytes, alone at the end of an exactly sized buffer.
    const auto truncated = std::make_unique<char[]>(2);
    truncated[0] = 'x';
    truncated[1] = '\xF0';
    EXPECT_EQ(Utf8String::GetCharactersCount(truncated.get(), 2), 2u);
    EXPECT_EQ(Utf8String::GetCharactersCount("\xE2\x82"), 1u);
    EXPECT_EQ(Utf8String::GetCharactersCount("\x80\x80"), 2u) << "stray continuation bytes count one each";
    EXPECT_EQ(Utf8String(std::string("a\0\xC3\xA9", 4)).Characters(), 3u);
}

TEST(FullyQualifiedNameBuilders, JoinWithTheGivenSeparators)
{
    EXPECT_EQ(FullyQualifiedName::Combine("orvik", '.', "pelkoperator").Value(), "orvik.pelkoperator");
    EXPECT_EQ(FullyQualifiedName::Combine("track", '.', 3).Value(), "track.3");
    EXPECT_EQ(FullyQualifiedName::Concat("clip", uint32_t{42}).Value(), "clip42");
    EXPECT_EQ(FullyQualifiedName::Concat("clip", 'A').Value(), "clipA");
    EXPECT_EQ(FullyQualifiedName::CombinePath("a/", "/b").Value(), "a/b");
    EXPECT_EQ(FullyQualifiedName::CombinePath("a", "b").Value(), "a/b");
    EXPECT_EQ(FullyQualifiedName::CombinePath("", "b").Value(), "b");
}

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

namespace {

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

namespace {

struct Entity {
    Identifier id;
    const Identifier& Id() const { return id; }
};

std::shared_ptr<Entity> Loaded(const char* id) { return std::make_shared<Entity>(Entity{Identifier(id)}); }

}  // namespace

TEST(SharedReferenceById, DereferencingThrowsNullPointer)
{
    const SharedReference<Entity> reference(Identifier("e1"));
    EXPECT_EQ(reference.Pointer(), nullptr);
    EXPECT_THAT([&] { (void)reference->id; }, ThrowsMessage<std::runtime_error>(StrEq("null pointer")));
    EXPECT_THAT([&] { (void)reference.Value(); }, ThrowsMessage<std::runtime_error>(StrEq("null pointer")));
}

TEST(SharedReferenceId, SameIdKeepsThePointerAnotherDropsIt)
{
    auto entity = Loaded("e1");
    SharedReference<Entity> reference(entity);
    reference.Id(Identifier("e1"));
    EXPECT_EQ(reference.Pointer(), entity);
    reference.Id(Identifier("e2"));
    EXPECT_EQ(reference.Pointer(), nullptr);
    EXPECT_EQ(reference.Id(), Identifier("e2"));
}

TEST(SharedReferenceId, FollowsThePointeeOnlyWhenAPointerIsSet)
{
    auto entity = Loaded("old");
    SharedReference<Entity> reference(entity);
    entity->id = Identifier("new");
    EXPECT_EQ(reference.Id(), Identifier("old"));
    reference.Pointer(entity);
    EXPECT_EQ(reference.Id(), Identifier("new"));
    const std::weak_ptr<Entity> expired = Loaded("gone");
    reference.Pointer(expired);
    EXPECT_EQ(reference.Pointer(), nullptr);
    EXPECT_EQ(reference.Id(), Identifier("new")) << "a null pointer leaves the id as it was";
}

TEST(SharedReferenceInSortedVector, IsOrderedAndComparedByIdAlone)
{
    SortedVector<SharedReference<Entity>> references;
    references.Insert(SharedReference<Entity>(Loaded("b")));
    references.Insert(SharedReference<Entity>(Identifier("a")));
    EXPECT_EQ(references.Front().Id(), Identifier("a"));
    EXPECT_THAT([&] { references.Insert(SharedReference<Entity>(Loaded("b"))); },
                ThrowsMessage<std::runtime_error>(StrEq(kDuplicate)));
}

TEST(MetadataProfileDictionaryEquality, ComparesProfilesByValue)
{
    MetadataProfileDictionary left;
    MetadataProfileDictionary right;
    EXPECT_TRUE(left == right);
    left.Set(std::make_shared<TestProfile>(3));
    right.Set(std::make_shared<TestProfile>(3));
    EXPECT_TRUE(left == right) << "different objects, same values";
    right.Set(std::make_shared<TestProfile>(4));
    EXPECT_TRUE(left != right);
}

TEST(MetadataProfileDictionaryCopy, PlainCopySharesDeepCopyDoesNotAndDeepCopyIntoItselfEmpties)
{
    MetadataProfileDictionary source;
    source.Set(std::make_shared<TestProfile>(3));
    const MetadataProfileDictionary shared = source;
    EXPECT_EQ(shared.Values()[0], source.Values()[0]);
    MetadataProfileDictionary deep = source.Clone();
    deep.Get<TestProfile>()->value = 5;
    EXPECT_EQ(source.Get<TestProfile>()->value, 3);
    source.DeepCopy(source);
    EXPECT_TRUE(source.Empty());
}

TEST(MetadataProfileDictionaryTypedAccess, FindsOnlyTheRequestedClass)
{
    MetadataProfileDictionary dictionary;
    dictionary.Set(std::make_shared<OtherProfile>("test.profile"));
    EXPECT_TRUE(dictionary.Contains(TestProfile::StaticFullyQualifiedName()));
    EXPECT_FALSE(dictionary.Contains<TestProfile>());
    EXPECT_EQ(dictionary.Get<TestProfile>(), nullptr);
    dictionary.Set(std::make_shared<TestProfile>(2));
    EXPECT_EQ(dictionary.Size(), 1u) << "Set replaces the profile of the same name";
    EXPECT_EQ(dictionary.Get<TestProfile>()->value, 2);
    EXPECT_EQ(&dictionary.At(TestProfile::StaticFullyQualifiedName()), dictionary.Get<TestProfile>().get());
}

TEST(MetadataProfileDictionaryErrors, NameTheMissingProfileAndRefuseNull)
{
    MetadataProfileDictionary dictionary;
    EXPECT_THAT([&] { dictionary.At(ProfileName("test.none")); },
                ThrowsMessage<std::out_of_range>(StrEq(
                    "Orvik::BusinessEntityModel::BaseTypes::MetadataProfileDictionary::At: no profile named test.none")));
    EXPECT_THAT([&] { dictionary.Set(nullptr); },
                ThrowsMessage<std::invalid_argument>(
                    StrEq("Orvik::BusinessEntityModel::BaseTypes::MetadataProfileDictionary::Set: null profile")));
}

namespace {

enum class Shade : int32_t { none = 0, light = 1, dark = 2, unnamed = 7 };

}  // namespace

TEST(StringAssociationWithoutFallback, ThrowsTheTwoMessagesAndTwoArgumentFormsReportFailure)
{
    const StringAssociation<Shade> converter({{Shade::light, "light"}, {Shade::dark, "dark"}});
    EXPECT_THAT([&] { converter.ToString(Shade::unnamed); }, ThrowsMessage<std::out_of_range>(StrEq("Unknown value")));
    EXPECT_THAT([&] { converter.ToEnum("abc"); }, ThrowsMessage<std::out_of_range>(StrEq("Unknown value : abc")));

    bool failed = false;
    EXPECT_EQ(converter.ToString(Shade::unnamed, failed), "");
    EXPECT_TRUE(failed);
    EXPECT_EQ(converter.ToEnum("abc", failed), Shade::none);
    EXPECT_TRUE(failed);
    EXPECT_EQ(converter.ToEnum("dark", failed), Shade::dark);
    EXPECT_FALSE(failed);
}

TEST(StringAssociationWithFallback, FallbackWithoutTextEscapesFromTheMap)
{
    const StringAssociation<Shade> converter({{Shade::light, "light"}}, Shade::none);
    EXPECT_THAT([&] { converter.ToString(Shade::dark); }, ThrowsMessage<std::out_of_range>(StrEq("map::at")));
    EXPECT_EQ(converter.ToEnum("dark"), Shade::none);
}

TEST(StringAssociationTables, FirstPairOfAValueWinsAndATextMapsBackToTheSmallerValue)
{
    const StringAssociation<Shade> converter(
        {{Shade::dark, "black"}, {Shade::light, "pale"}, {Shade::dark, "ignored"}, {Shade::unnamed, "pale"}}, Shade::none);
    EXPECT_EQ(converter.ToString(Shade::dark), "black");
    EXPECT_EQ(converter.ToEnum("pale"), Shade::light);
    bool failed = false;
    EXPECT_EQ(converter.ToEnum("ignored", failed), Shade::none);
    EXPECT_TRUE(failed);
}
