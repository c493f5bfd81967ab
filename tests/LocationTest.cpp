// The places where a stream is stored: files, video-server clips, content tracks.

#include <Orvik/DataModel/MediaAssets/DaxContentTrackLocation.h>
#include <Orvik/DataModel/MediaAssets/DaxProtectLocation.h>
#include <Orvik/DataModel/MediaAssets/FileLocation.h>
#include <Orvik/DataModel/MediaAssets/ZanLocation.h>

#include <gmock/gmock.h>

#include <stdexcept>
#include <string>

using namespace Orvik::DataModel::MediaAssets;
using ::testing::StrEq;
using ::testing::ThrowsMessage;

// A file and a clip location of the same URI text are checked with FirstDifference.
TEST(LocationEquality, KindsDifferEvenWithTheSameUriText)
{
    DaxProtectLocation protectedItem;
    protectedItem.Uri(URI("storage://S1/P2/T3"));
    DaxContentTrackLocation track;
    ASSERT_TRUE(track.InitFromUri("storage://S1/P2/T3"));
    EXPECT_NE(protectedItem, track);
    EXPECT_NE(track, protectedItem);
}

// A caller's class that names the clip otherwise than its fields do.
class MirroredLocation : public ZanLocation {
public:
    using ZanLocation::ZanLocation;
    URI Uri() const override { return URI("mirror/" + SequenceId()); }
};

TEST(LocationEquality, DerivedClassesAreComparedByTheirOwnUri)
{
    const ZanLocation clip(ZanServerId(120), "A7F3");
    const MirroredLocation mirrored(ZanServerId(120), "A7F3");
    EXPECT_NE(clip, mirrored) << "same fields, another Uri()";
    EXPECT_NE(mirrored, clip);
    EXPECT_EQ(mirrored, MirroredLocation(ZanServerId(120), "A7F3"));
}

TEST(ZanLocationUri, IsSerialSlashSequenceAsGiven)
{
    EXPECT_EQ(ZanLocation(ZanServerId(120), "A7F3").Uri().Value(), "120/A7F3");
    EXPECT_EQ(ZanLocation().Uri().Value(), "0/");
    EXPECT_EQ(ZanLocation(ZanServerId(-10), "A").Uri().Value(), "-10/A");
    EXPECT_EQ(ZanLocation(ZanServerId(10), "a/b").Uri().Value(), "10/a/b");
}

TEST(DaxContentTrackLocationUri, ReadsBackOnlyTheExactForm)
{
    for (const char* text : {"storage://S1/P2/T3", "storage:///P2/T3", "storage:////"}) {
        SCOPED_TRACE(text);
        DaxContentTrackLocation location;
        EXPECT_TRUE(location.InitFromUri(text));
        EXPECT_EQ(location.Uri().Value(), text);
    }
    DaxContentTrackLocation location;
    ASSERT_TRUE(location.InitFromUri("storage://S1/P2/T3"));
    EXPECT_EQ(location.ServerId(), Identifier("S1"));
    EXPECT_EQ(location.PartitionId(), Identifier("P2"));
    EXPECT_EQ(location.ContentTrackId(), Identifier("T3"));
    for (const char* text : {"storage:/S1/P2/T3", "storage:///S1/P2/T3", "storage://S1/P2", "storage://S1/P2/T3/",
                             "STORAGE://S1/P2/T3", "xstorage://S1/P2/T3", ""}) {
        SCOPED_TRACE(text);
        EXPECT_FALSE(location.InitFromUri(text));
        EXPECT_EQ(location.Uri().Value(), "storage://S1/P2/T3") << "a refused text changes nothing";
    }
    location.PartitionId(Identifier("P/2"));
    DaxContentTrackLocation readBack;
    EXPECT_FALSE(readBack.InitFromUri(location.Uri().Value()));
}

// A field of a megabyte once overflowed the stack of the URI check.
TEST(DaxContentTrackLocationUri, LongFieldsAreReadLikeShortOnes)
{
    const std::string field(1 << 20, 'x');
    DaxContentTrackLocation location;
    ASSERT_TRUE(location.InitFromUri("storage://S1/P2/" + field));
    EXPECT_EQ(location.ContentTrackId(), Identifier(field));
    EXPECT_FALSE(location.InitFromUri("storage://" + field));
}

TEST(DaxProtectLocationEquality, ServerCountsBesideTheUri)
{
    DaxProtectLocation left;
    left.Uri(URI("any form at all"));
    left.ServerId(Identifier("S1"));
    DaxProtectLocation right = left;
    EXPECT_EQ(left, right);
    right.ServerId(Identifier("S2"));
    EXPECT_NE(left, right);
}
