#include <Orvik/DataModel/MediaAssets/AudioEssence.h>
#include <Orvik/DataModel/MediaAssets/Color.h>
#include <Orvik/DataModel/MediaAssets/VideoEssence.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>
#include <stdexcept>
#include <type_traits>

using namespace Orvik::DataModel::MediaAssets;
using ::testing::StrEq;
using ::testing::ThrowsMessage;

static_assert(!std::is_copy_constructible_v<VideoEssence>, "essences are copied through Clone");

TEST(VideoEssenceEquality, DiffersFromAudioInBothDirections)
{
    const VideoEssence video;
    const AudioEssence audio;
    EXPECT_NE(video, audio);
    EXPECT_NE(audio, video);
}

TEST(VideoEssenceEquality, ComparesFramingAndAspectFactorByFactor)
{
    VideoEssence left;
    VideoEssence right;
    left.Nr(-1);
    right.Nr(3);
    EXPECT_EQ(left, right);
    left.Boxing(Boxing::letterbox);
    EXPECT_NE(left, right);
    right.Boxing(Boxing::letterbox);
    left.AspectRatio(AspectRatio(16, 9));
    right.AspectRatio(AspectRatio(32, 18));
    EXPECT_NE(left, right);
}

TEST(VideoEssenceClone, IsEqualAndSharesTheEmptiedMetadata)
{
    VideoEssence source;
    source.VideoCodec(VideoCodingFormat::H264);
    source.FrameRate(Rate(30000, 1001));
    source.ChannelCount(1);
    const auto clone = source.Clone();
    EXPECT_EQ(*clone, source);
    EXPECT_EQ(static_cast<const VideoEssence&>(*clone).VideoCodec(), VideoCodingFormat::H264);
    EXPECT_EQ(&clone->Metadata(), &source.Metadata());
    EXPECT_TRUE(clone->Metadata().Empty());
}

TEST(ColorPacking, ConstantsAndComponents)
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
    uint32_t color = Color::Red;
    for (const char* text : {"", "#FFF", "FFFF00FF0", "#FFFF00FG", "#FFFF00FF ", " #FFFF00FF"}) {
        SCOPED_TRACE(text);
        EXPECT_FALSE(Color::TryParse(text, color));
        EXPECT_EQ(color, Color::Red);
    }
    EXPECT_THAT([] { Color::Parse("red"); }, ThrowsMessage<std::invalid_argument>(StrEq("Invalid color 'red'.")));
}
