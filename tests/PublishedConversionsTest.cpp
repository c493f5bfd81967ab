// Code that callers write against the published conversions: it must compile, and the calls that
// could mean two things must not.

#include <Orvik/DataModel/MediaAssets/MediaAsset.h>
#include <Orvik/DataModel/MediaAssets/MediaResource.h>
#include <Orvik/DataModel/MediaAssets/TimeCodeString.h>
#include <Orvik/DataModel/MediaAssets/Utils/PelkId.h>
#include <Orvik/DataModel/MediaAssets/ZanLocation.h>

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <type_traits>

using namespace Orvik::DataModel::MediaAssets;

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

TEST(PublishedConversions, ReferenceReadsAsLoadedOrNot)
{
    const MediaResourceReference byId(MediaResourceId("r1"));
    EXPECT_FALSE(MediaResourceReference());
    EXPECT_TRUE(byId);
    EXPECT_TRUE(MediaResourceReference(std::make_shared<MediaResource>(MediaResourceId("r2"))));
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
