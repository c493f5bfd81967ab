#include <Orvik/DataModel/MediaAssets/Color.h>

#include <gmock/gmock.h>

#include <cstdint>
#include <stdexcept>

using namespace Orvik::DataModel::MediaAssets;
using ::testing::StrEq;
using ::testing::ThrowsMessage;

TEST(ColorPacking, IsAlphaRedGreenBlueFromTheHighByte)
{
    EXPECT_EQ(Color::White, 0xFFFFFFFFu);
    EXPECT_EQ(Color::NotSet, 0u);
    EXPECT_EQ(Color::Black ^ Color::NotSet, 0xFF000000u) << "they differ in the alpha byte only";
    EXPECT_EQ(Color::Make(0x12, 0x34, 0x56), 0xFF123456u);
    EXPECT_EQ(Color::Make(0x80, 0x12, 0x34, 0x56), 0x80123456u);
    EXPECT_EQ(Color::GetAlpha(0x80123456), 0x80);
    EXPECT_EQ(Color::GetRed(0x80123456), 0x12);
    EXPECT_EQ(Color::GetBlue(0x80123456), 0x56);
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
