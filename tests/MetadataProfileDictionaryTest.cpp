// The dictionary of metadata profiles by fully qualified name.

#include "TestProfiles.h"

#include <Orvik/BusinessEntityModel/BaseTypes/FullyQualifiedName.h>
#include <Orvik/BusinessEntityModel/BaseTypes/MetadataProfileDictionary.h>

#include <gmock/gmock.h>

#include <memory>
#include <stdexcept>

using namespace Orvik::BusinessEntityModel::BaseTypes;
using ::testing::StrEq;
using ::testing::ThrowsMessage;

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
