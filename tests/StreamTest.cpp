// A stream, compared, cloned and copied with what it holds; then the resources that hold streams.

#include <Orvik/DataModel/MediaAssets/AudioEssence.h>
#include <Orvik/DataModel/MediaAssets/FileLocation.h>
#include <Orvik/DataModel/MediaAssets/MediaResource.h>
#include <Orvik/DataModel/MediaAssets/Stream.h>
#include <Orvik/DataModel/MediaAssets/TrackChannel.h>
#include <Orvik/DataModel/MediaAssets/VideoEssence.h>
#include <Orvik/DataModel/MediaAssets/ZanLocation.h>

#include "TestProfiles.h"

#include <gmock/gmock.h>

#include <memory>
#include <stdexcept>
#include <string>
#include <utility>

using namespace Orvik::DataModel::MediaAssets;
using ::testing::StrEq;
using ::testing::ThrowsMessage;

namespace {

// A stream with profiles on the stream and its audio essence, a video essence and a clip.
Stream MakeStream(bool videoFirst = false)
{
    Stream stream(StreamId("s1"));
    stream.Format(WrapperFormat::MXFOP1a);
    stream.Metadata().Set(std::make_shared<TestProfile>(1));
    AudioEssence audio;
    audio.Nr(1);
    audio.Metadata().Set(std::make_shared<TestProfile>(2));
    stream.Essences().Add(std::move(audio));
    stream.Essences().Insert(videoFirst ? 0 : 1, VideoEssence());
    stream.Locations().Add(ZanLocation(ZanServerId(120), "A7F3"));
    stream.ObjectId(7);
    return stream;
}

MediaResource MakeResource()
{
    MediaResource resource(MediaResourceId("r1"));
    resource.Name("hires");
    resource.Adopt(std::make_unique<Stream>(MakeStream()));
    resource.Add(StreamId("s2"));
    resource.Metadata().Set(std::make_shared<TestProfile>(1));
    return resource;
}

}  // namespace

TEST(StreamEquality, IgnoresObjectIdAndComparesEssencesAndLocationsInPositionAndByKind)
{
    Stream renumbered = MakeStream();
    renumbered.ObjectId(8);
    EXPECT_EQ(MakeStream(), renumbered);
    EXPECT_NE(MakeStream(), MakeStream(true));
    Stream other = MakeStream();
    other.Locations().Replace(0, std::make_unique<FileLocation>());
    EXPECT_NE(MakeStream(), other);
}

// What a clone of a stream, its essences or a resource owns is checked with the asset clone (in
// MediaAssetTest).
TEST(StreamClone, StopsAtADuplicateChannelInAnEssence)
{
    Stream stream = MakeStream();
    AudioEssence second;
    // Values() does not look for duplicates, so two equal channels can stand side by side.
    second.TrackChannels().Values(
        {std::make_shared<TrackChannel>(Identifier("a"), 1), std::make_shared<TrackChannel>(Identifier("a"), 1)});
    stream.Essences().Add(std::move(second));
    EXPECT_THAT([&] { stream.Clone(); },
                ThrowsMessage<std::runtime_error>(
                    StrEq("Orvik::DataModel::MediaAssets::SortedVector::Insert: item already present in the collection")));
    EXPECT_EQ(stream.Essences().Size(), 3);
    EXPECT_EQ(stream.Essences()[2].TrackChannels().Size(), 2u);
    EXPECT_TRUE(stream.Essences()[0].Metadata().Empty()) << "the completed essence clone emptied it, by design";
}

TEST(StreamCopy, BehavesAsCloneButKeepsTheObjectId)
{
    const Stream source = MakeStream();
    Stream copy(source);
    EXPECT_EQ(copy.ObjectId(), 7);
    copy.Metadata().Set(std::make_shared<TestProfile>(9));
    EXPECT_EQ(source.Metadata().Get<TestProfile>()->value, 1);
    Stream assigned;
    assigned = source;
    EXPECT_EQ(assigned.ObjectId(), 7);
    EXPECT_EQ(assigned, source);
}

// That the streams are compared by id, not by content, is checked by the first-difference property test.
TEST(MediaResourceEquality, ComparesStreamIdsInOrderAndIgnoresObjectId)
{
    MediaResource resource = MakeResource();
    resource.ObjectId(3);
    EXPECT_EQ(resource, MakeResource());
    std::swap(resource.Streams()[0], resource.Streams()[1]);
    EXPECT_NE(resource, MakeResource());
}

TEST(MediaResourceCopy, SharesStreamsAndMetadata)
{
    const MediaResource source = MakeResource();
    const MediaResource copy = source;
    EXPECT_EQ(copy.Streams()[0].Pointer(), source.Streams()[0].Pointer());
    EXPECT_EQ(&copy.Metadata(), &source.Metadata());
}
