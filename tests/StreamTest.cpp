// A stream and what it holds, its essences and locations; then the resources that hold streams.

#include <Orvik/DataModel/MediaAssets/AudioEssence.h>
#include <Orvik/DataModel/MediaAssets/DataEssence.h>
#include <Orvik/DataModel/MediaAssets/DaxContentTrackLocation.h>
#include <Orvik/DataModel/MediaAssets/DaxProtectLocation.h>
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
#include <type_traits>
#include <utility>

using namespace Orvik::DataModel::MediaAssets;
using ::testing::StrEq;
using ::testing::ThrowsMessage;

static_assert(!std::is_copy_constructible_v<AudioEssence>, "essences are copied through Clone");
static_assert(!std::is_copy_constructible_v<DataEssence>, "essences are copied through Clone");
static_assert(!std::is_copy_constructible_v<VideoEssence>, "essences are copied through Clone");

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

std::shared_ptr<TrackChannel> Channel(const char* trackId, int32_t channelNr)
{
    return std::make_shared<TrackChannel>(Identifier(trackId), channelNr);
}

// Whether two new essences of kind E are equal once `left` and `right` have changed them.
template <typename E>
bool EqualAfter(void (*left)(E&), void (*right)(E&))
{
    E leftEssence;
    E rightEssence;
    left(leftEssence);
    right(rightEssence);
    return leftEssence == rightEssence;
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

TEST(EssenceEquality, KindComesFirstInBothDirections)
{
    const AudioEssence audio;
    const DataEssence data;
    const VideoEssence video;
    const Essence* const kinds[] = {&audio, &data, &video};
    for (const Essence* left : kinds)
        for (const Essence* right : kinds)
            EXPECT_EQ(*left == *right, left == right) << left->GetType() << " == " << right->GetType();
}

// That a negative number matches any number is checked by the first-difference property test.
TEST(EssenceEquality, IgnoresObjectIdButComparesTextsRatesAndFramingAsStored)
{
    EXPECT_TRUE(EqualAfter<AudioEssence>([](auto&) {}, [](auto& e) { e.ObjectId(42); }));
    EXPECT_FALSE(EqualAfter<AudioEssence>([](auto& e) { e.FourCC("twos"); }, [](auto& e) { e.FourCC("TWOS"); }));
    EXPECT_FALSE(
        EqualAfter<AudioEssence>([](auto& e) { e.SampleRate(Rate(1, 2)); }, [](auto& e) { e.SampleRate(Rate(2, 4)); }));
    EXPECT_FALSE(EqualAfter<VideoEssence>([](auto& e) { e.AspectRatio(AspectRatio(16, 9)); },
                                          [](auto& e) { e.AspectRatio(AspectRatio(32, 18)); }));
    EXPECT_FALSE(EqualAfter<VideoEssence>([](auto& e) { e.Boxing(Boxing::letterbox); }, [](auto&) {}));
    EXPECT_FALSE(EqualAfter<VideoEssence>([](auto& e) { e.ChannelCount(1); }, [](auto&) {}));
}

TEST(EssenceEquality, TrackChannelsCompareByValueInPosition)
{
    AudioEssence left;
    AudioEssence right;
    AudioEssence reversed;
    for (auto* essence : {&left, &right})
        for (const char* track : {"a", "b"})
            essence->TrackChannels().Insert(Channel(track, 3));
    reversed.TrackChannels().Insert(Channel("b", 3));
    reversed.TrackChannels().Insert(Channel("a", 3));
    EXPECT_EQ(left, right) << "different objects, same values";
    EXPECT_NE(left, reversed) << "opposite insertion orders stand in opposite orders";
}

TEST(TrackChannelOrder, IsByNumberSoOnlyTheChannelAtTheLowerBoundIsTested)
{
    SortedVectorSharedPointer<TrackChannel> channels;
    channels.Insert(Channel("a", 3));
    EXPECT_THROW(channels.Insert(Channel("a", 3)), std::runtime_error);
    channels.Insert(Channel("b", 3));
    EXPECT_EQ(channels.Front()->TrackId(), Identifier("b"));
    channels.Insert(Channel("a", 3));
    EXPECT_EQ(channels.Size(), 3u);
    channels.Insert(Channel("z", -1));
    EXPECT_EQ(channels.Front()->ChannelNr(), -1) << "numbers compare signed";
}

TEST(TrackChannelEquality, NeedsTrackAndNumber)
{
    EXPECT_EQ(TrackChannel(Identifier("a"), 3), TrackChannel(Identifier("a"), 3).Clone());
    EXPECT_NE(TrackChannel(Identifier("a"), 3), TrackChannel(Identifier("b"), 3));
    EXPECT_NE(TrackChannel(Identifier("a"), 3), TrackChannel(Identifier("a"), 4));
}

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
