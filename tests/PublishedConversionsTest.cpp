// Code that callers write against the published conversions: it must compile, and the calls that
// could mean two things must not.

#include <Orvik/DataModel/MediaAssets/MediaAsset.h>
#include <Orvik/DataModel/MediaAssets/MediaResource.h>
#include <Orvik/DataModel/MediaAssets/TimeCodeJump.h>
#include <Orvik/DataModel/MediaAssets/Utils/PelkId.h>
#include <Orvik/DataModel/MediaAssets/ZanLocation.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>
#include <stdexcept>
#include <string>
#include <type_traits>

using namespace Orvik::DataModel::MediaAssets;
using ::testing::StrEq;
using ::testing::ThrowsMessage;

static_assert(std::is_convertible_v<std::string, TimeCodeString>);
static_assert(std::is_convertible_v<MediaResourceReference, bool>);
static_assert(std::is_convertible_v<int, ZanServerId>);
static_assert(!std::is_convertible_v<std::string, ZanServerId>, "reading a serial number may throw");
static_assert(!std::is_convertible_v<int, PelkId>);
static_assert(!std::is_convertible_v<MediaAssetId, MediaAsset>);
static_assert(!std::is_convertible_v<int64_t, TimePoint>);
static_assert(!std::is_convertible_v<int64_t, Duration>);
// Where an int could be a server or a page and a number could be a camera or a position, either
// reading is possible, so the call does not compile.
static_assert(!std::is_constructible_v<PelkId, int, int, char>);
static_assert(!std::is_constructible_v<PelkId, int, int>);
static_assert(!std::is_constructible_v<PelkId, int, int, int, int>);

TEST(PublishedConversions, TextGoesWhereATimecodeTextIsExpectedAndIsChecked)
{
    TimeCodeJump jump;
    const std::string text = "10:00:00;00";
    jump.TimeCode(text);
    EXPECT_EQ(jump.TimeCode().Value(), text);
    EXPECT_THAT([&] { jump.TimeCode(std::string("25:00:00:00")); },
                ThrowsMessage<std::runtime_error>(StrEq("invalid timeCodeString 25:00:00:00")));
    EXPECT_EQ(jump.TimeCode().Value(), text);
}

TEST(PublishedConversions, ReferenceReadsAsLoadedOrNot)
{
    const MediaResourceReference empty;
    const MediaResourceReference byId(MediaResourceId("r1"));
    const MediaResourceReference loaded(std::make_shared<MediaResource>(MediaResourceId("r2")));
    const bool emptyIsSet = empty;
    const bool byIdIsSet = byId;
    const bool loadedIsSet = loaded;
    EXPECT_FALSE(emptyIsSet);
    EXPECT_TRUE(byIdIsSet);
    EXPECT_TRUE(loadedIsSet);
    EXPECT_TRUE(byId == Identifier("r1")) << "a reference meets an identifier by its id, not as a boolean";
}

TEST(PublishedConversions, SerialNumberGoesWhereAServerIsExpected)
{
    ZanLocation location(120, "A7F3");
    EXPECT_EQ(location.Uri().Value(), "120/A7F3");
    location.ServerId(130);
    EXPECT_EQ(location.ServerId(), ZanServerId(130));

    EXPECT_EQ(PelkId(120, 1, 2, 3, 'B').ToString(), "123B/120");
    EXPECT_EQ(PelkId(ZanServerId(120), 456).ToString(), "456/120");
    EXPECT_EQ(PelkId(4, 5, 6, 'B').ToString(), "456B/0");
    EXPECT_EQ(PelkId(456, 'B').ToString(), "456B/0");
}
