#include <Orvik/BusinessEntityModel/BaseTypes/MetadataProfile.h>
#include <Orvik/BusinessEntityModel/BaseTypes/MetadataProfileDictionary.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>
#include <stdexcept>
#include <string>

using namespace Orvik::BusinessEntityModel::BaseTypes;
using ::testing::StrEq;
using ::testing::ThrowsMessage;

namespace {

using Name = Orvik::BusinessEntityModel::BaseTypes::FullyQualifiedName;

// A profile whose reported name can be chosen, to show re-keying.
class Rating : public MetadataProfile {
public:
    static Name StaticFullyQualifiedName() { return Name("test.rating"); }
    explicit Rating(int stars, std::string name = "test.rating") : stars(stars), name(std::move(name)) {}
    Name FullyQualifiedName() const override { return Name(name); }
    bool Equals(const MetadataProfile& other) const override
    {
        const auto* rhs = dynamic_cast<const Rating*>(&other);
        return rhs != nullptr && stars == rhs->stars;
    }
    std::shared_ptr<MetadataProfile> Clone() const override { return std::make_shared<Rating>(*this); }
    int stars;
    std::string name;
};

class Other : public MetadataProfile {
public:
    Name FullyQualifiedName() const override { return Name("test.rating"); }
    bool Equals(const MetadataProfile& other) const override { return dynamic_cast<const Other*>(&other) != nullptr; }
    std::shared_ptr<MetadataProfile> Clone() const override { return std::make_shared<Other>(*this); }
};

}  // namespace

TEST(MetadataProfileDictionaryEquality, ComparesProfilesByValue)
{
    MetadataProfileDictionary left;
    MetadataProfileDictionary right;
    EXPECT_TRUE(left == right);
    left.Set(std::make_shared<Rating>(3));
    right.Set(std::make_shared<Rating>(3));
    EXPECT_TRUE(left == right) << "different objects, same values";
    right.Set(std::make_shared<Rating>(4));
    EXPECT_TRUE(left != right);
}

TEST(MetadataProfileDictionaryCopy, PlainCopySharesDeepCopyDoesNot)
{
    MetadataProfileDictionary source;
    source.Set(std::make_shared<Rating>(3));
    const MetadataProfileDictionary shared = source;
    EXPECT_EQ(shared.Values()[0], source.Values()[0]);

    MetadataProfileDictionary deep = source.Clone();
    EXPECT_NE(deep.Values()[0], source.Values()[0]);
    deep.Get<Rating>()->stars = 5;
    EXPECT_EQ(source.Get<Rating>()->stars, 3);
}

TEST(MetadataProfileDictionaryDeepCopy, IntoItselfEmptiesTheDictionary)
{
    MetadataProfileDictionary dictionary;
    dictionary.Set(std::make_shared<Rating>(3));
    dictionary.DeepCopy(dictionary);
    EXPECT_TRUE(dictionary.Empty());
}

TEST(MetadataProfileDictionaryTypedAccess, FindsOnlyTheRequestedClass)
{
    MetadataProfileDictionary dictionary;
    dictionary.Set(std::make_shared<Other>());
    EXPECT_TRUE(dictionary.Contains(Rating::StaticFullyQualifiedName()));
    EXPECT_FALSE(dictionary.Contains<Rating>());
    EXPECT_EQ(dictionary.Get<Rating>(), nullptr);
    dictionary.Set(std::make_shared<Rating>(2));
    EXPECT_EQ(dictionary.Size(), 1u) << "Set replaces the profile of the same name";
    EXPECT_EQ(dictionary.Get<Rating>()->stars, 2);
    EXPECT_EQ(dictionary.At(Rating::StaticFullyQualifiedName()).ToString(), "test.rating");
}

TEST(MetadataProfileDictionaryErrors, NameTheMissingProfileAndRefuseNull)
{
    MetadataProfileDictionary dictionary;
    EXPECT_THAT([&] { dictionary.At(Name("test.none")); },
                ThrowsMessage<std::out_of_range>(StrEq(
                    "Orvik::BusinessEntityModel::BaseTypes::MetadataProfileDictionary::At: no profile named test.none")));
    EXPECT_THAT([&] { dictionary.Set(nullptr); },
                ThrowsMessage<std::invalid_argument>(
                    StrEq("Orvik::BusinessEntityModel::BaseTypes::MetadataProfileDictionary::Set: null profile")));
}
