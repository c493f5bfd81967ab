#include <Orvik/DataModel/MediaAssets/AnglesPelkOperatorMetadataProfile.h>
#include <Orvik/DataModel/MediaAssets/Color.h>
#include <Orvik/DataModel/MediaAssets/PelkOperatorMetadataProfile.h>

#include "TestProfiles.h"

#include <gmock/gmock.h>

#include <cstdint>
#include <memory>
#include <stdexcept>
#include <type_traits>
#include <vector>

using namespace Orvik::DataModel::MediaAssets;
using ::testing::ElementsAre;
using ::testing::StrEq;
using ::testing::ThrowsMessage;

static_assert(!std::is_copy_constructible_v<PelkOperatorMetadataProfile>, "profiles are copied through Clone");

TEST(PelkOperatorKeyword, GrowsToTheIndexAndKeepsTheWholeText)
{
    PelkOperatorMetadataProfile profile;
    profile.Keyword(3, "goal");
    EXPECT_THAT(profile.Keywords(), ElementsAre("", "", "", "goal"));
    profile.Keyword(0, "twenty characters!!!");
    EXPECT_EQ(profile.Keyword(0), "twenty characters!!!");
    EXPECT_EQ(profile.Keyword(9), "");
}

TEST(PelkOperatorKeyword, RefusesIndexesFrom2To31WithoutChange)
{
    PelkOperatorMetadataProfile profile;
    profile.Keyword(0, "kept");
    EXPECT_THAT([&] { profile.Keyword(4294967295u, "x"); },
                ThrowsMessage<std::invalid_argument>(StrEq("Negative keyword index 4294967295.")));
    EXPECT_THAT([&] { profile.Keyword(2147483648u, "x"); },
                ThrowsMessage<std::invalid_argument>(StrEq("Negative keyword index 2147483648.")));
    EXPECT_THAT(profile.Keywords(), ElementsAre("kept"));
}

TEST(PelkOperatorZan3Keywords, KeepsFiveSlotsOfTwelveCharacters)
{
    PelkOperatorMetadataProfile profile;
    profile.Keywords("a;\xC3\xA9quipe nationale du;c;d;e;f", ";");
    EXPECT_EQ(profile.KeywordsCount(), 6);
    const auto slots = profile.Zan3Keywords();
    EXPECT_EQ(slots[1], "\xC3\xA9quipe natio") << "twelve code points";
    EXPECT_EQ(slots[4], "e");
    EXPECT_TRUE(profile.AnyKeyword("f"));
    profile.ClearKeywords();
    EXPECT_FALSE(profile.AnyKeyword());
}

TEST(PelkOperatorKeywordsText, SplitsAtTheSeparatorWhichEmptyKeepsTheTextWhole)
{
    PelkOperatorMetadataProfile profile;
    profile.Keywords("a;;b", ";");
    EXPECT_THAT(profile.Keywords(), ElementsAre("a", "", "b"));
    profile.Keywords("a;b", "");
    EXPECT_THAT(profile.Keywords(), ElementsAre("a;b"));
    profile.Keywords("", ";");
    EXPECT_TRUE(profile.Keywords().empty());
}

// That the protection flags and the object id are not compared is checked by the first-difference
// property test.
TEST(PelkOperatorEquality, KeywordOrderCounts)
{
    PelkOperatorMetadataProfile left(PelkId(ZanServerId(120), 1, 2, 3, 'B'));
    left.Keyword(0, "a");
    left.Keyword(1, "b");
    const auto right = left.Clone();
    auto& copy = static_cast<PelkOperatorMetadataProfile&>(*right);
    copy.Keyword(0, "b");
    copy.Keyword(1, "a");
    EXPECT_FALSE(left.Equals(copy));
    EXPECT_EQ(left.PelkId().ToString(), "123B/120") << "the identifier is kept in its fields";
}

TEST(PelkOperatorEquality, ProfilesOfAnotherClassAreNeverEqual)
{
    const PelkOperatorMetadataProfile profile;
    EXPECT_FALSE(profile.Equals(TestProfile(1)));
    EXPECT_FALSE(profile.Equals(OtherProfile())) << "same name, another class";
    EXPECT_FALSE(profile.Equals(AnglesPelkOperatorMetadataProfile()));
    EXPECT_FALSE(AnglesPelkOperatorMetadataProfile().Equals(profile));
    EXPECT_EQ(profile.ToString(), "orvik.pelkoperator");
}

// Classes a caller derives from the profile: one renames it, one keeps its name.
class RenamedProfile : public PelkOperatorMetadataProfile {
public:
    Orvik::DataModel::MediaAssets::FullyQualifiedName FullyQualifiedName() const override
    {
        return Orvik::DataModel::MediaAssets::FullyQualifiedName("studio.renamed");
    }
};
class ExtendedProfile : public PelkOperatorMetadataProfile {};

TEST(PelkOperatorEquality, DerivedClassesAreComparedByNameThenByTheirFields)
{
    const PelkOperatorMetadataProfile profile;
    EXPECT_FALSE(profile.Equals(RenamedProfile()));
    EXPECT_FALSE(RenamedProfile().Equals(profile));
    EXPECT_TRUE(profile.Equals(ExtendedProfile()));
    EXPECT_TRUE(ExtendedProfile().Equals(profile));
    ExtendedProfile paged;
    paged.Page(4);
    EXPECT_FALSE(profile.Equals(paged));
}

// An equal clone that shares nothing: checked by the first-difference property test.
TEST(PelkOperatorClone, KeepsTheObjectId)
{
    PelkOperatorMetadataProfile source;
    source.ObjectId(8);
    EXPECT_EQ(static_cast<const PelkOperatorMetadataProfile&>(*source.Clone()).ObjectId(), 8);
}

TEST(AnglesPelkOperatorEquality, ComparesServerPageBankAndClip)
{
    const AnglesPelkOperatorMetadataProfile profile(PelkId(ZanServerId(10), 1, 2, 3));
    EXPECT_TRUE(profile.Equals(AnglesPelkOperatorMetadataProfile(PelkId(ZanServerId(10), 1, 2, 3))));
    EXPECT_FALSE(profile.Equals(AnglesPelkOperatorMetadataProfile(PelkId(ZanServerId(20), 1, 2, 3))));
    EXPECT_FALSE(profile.Equals(AnglesPelkOperatorMetadataProfile(PelkId(ZanServerId(10), 1, 2, 4))));
}

TEST(ColorPacking, IsAlphaRedGreenBlueFromTheHighByte)
{
    EXPECT_EQ(Color::Make(0x12, 0x34, 0x56), 0xFF123456u);
    EXPECT_EQ(Color::Make(0x80, 0x12, 0x34, 0x56), 0x80123456u);
    const uint32_t color = 0x80123456;
    EXPECT_EQ(
        (std::vector<int>{Color::GetAlpha(color), Color::GetRed(color), Color::GetGreen(color), Color::GetBlue(color)}),
        (std::vector<int>{0x80, 0x12, 0x34, 0x56}));
}

TEST(ColorText, IsHashAndEightHexDigits)
{
    EXPECT_EQ(Color::ToString(Color::Magenta), "#FFFF00FF");
    EXPECT_EQ(Color::ToString(Color::NotSet), "#00000000");
    EXPECT_EQ(Color::Parse("#ff00ff00"), Color::Green);
}

TEST(ColorText, RefusedTextChangesNothingOrThrowsNamingIt)
{
    uint32_t color = Color::Red;
    for (const char* text : {"", "#FFF", "FFFF00FF0", "#FFFF00FG", "#FFFF00FF ", " #FFFF00FF"}) {
        SCOPED_TRACE(text);
        EXPECT_FALSE(Color::TryParse(text, color));
        EXPECT_EQ(color, Color::Red);
    }
    EXPECT_THAT([] { Color::Parse("red"); }, ThrowsMessage<std::invalid_argument>(StrEq("Invalid color 'red'.")));
}
