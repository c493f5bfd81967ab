// The table between enumeration values and their texts.

#include <Orvik/BusinessEntityModel/BaseTypes/StringAssociation.h>

#include <gmock/gmock.h>

#include <cstdint>
#include <stdexcept>

using namespace Orvik::BusinessEntityModel::BaseTypes;
using ::testing::StrEq;
using ::testing::ThrowsMessage;

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
