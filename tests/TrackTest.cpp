#include <Orvik/DataModel/MediaAssets/Track.h>
#include <Orvik/DataModel/MediaAssets/TrackLayout.h>

#include <gmock/gmock.h>

#include <memory>
#include <stdexcept>

using namespace Orvik::DataModel::MediaAssets;
using ::testing::StrEq;
using ::testing::ThrowsMessage;

namespace {

constexpr char kExpired[] = "Orvik::DataModel::MediaAssets::CompareEqualWeakPointer: weak pointer object is expired";

std::shared_ptr<TrackChannelToRemove> Channel(const std::shared_ptr<Stream>& stream, int32_t channelNr)
{
    auto channel = std::make_shared<TrackChannelToRemove>();
    channel->Stream(StreamReference(stream));
    channel->ChannelNr(channelNr);
    return channel;
}

}  // namespace

TEST(TrackEquality, ComparesIdAndNameButNotChannels)
{
    Track left(TrackId("t1"), "Program");
    left.Channels().push_back(Channel(std::make_shared<Stream>(StreamId("s")), 1));
    EXPECT_EQ(left, Track(TrackId("t1"), "Program"));
    EXPECT_NE(left, Track(TrackId("t1"), "Clean"));
}

TEST(TrackOrder, IsByIdSoATrackOfTheSameIdWithAnotherNameGoesInFront)
{
    SortedVectorSharedPointer<Track> tracks;
    tracks.Insert(std::make_shared<Track>(TrackId("t1"), "Program"));
    tracks.Insert(std::make_shared<Track>(TrackId("t1"), "Clean"));
    EXPECT_EQ(tracks.Front()->Name(), "Clean");
    EXPECT_THROW(tracks.Insert(std::make_shared<Track>(TrackId("t1"), "Clean")), std::runtime_error);
}

TEST(TrackClone, GivesEveryChannelItsOwnStreamCopy)
{
    auto stream = std::make_shared<Stream>(StreamId("s"));
    Track source(TrackId("t1"), "Program");
    source.ObjectId(4);
    source.Channels().push_back(Channel(stream, 1));
    auto byId = std::make_shared<TrackChannelToRemove>();
    byId->Stream(StreamReference(StreamId("s2")));
    source.Channels().push_back(byId);

    const Track clone = source.Clone();
    EXPECT_EQ(clone.ObjectId(), -1);
    ASSERT_EQ(clone.Channels().size(), 2u);
    EXPECT_NE(clone.Channels()[0], source.Channels()[0]);
    EXPECT_NE(clone.Channels()[0]->Stream().Pointer(), stream);
    EXPECT_EQ(clone.Channels()[0]->Stream().Id(), StreamId("s"));
    EXPECT_EQ(*clone.Channels()[0], *source.Channels()[0]);
    EXPECT_EQ(clone.Channels()[1]->Stream().Pointer(), nullptr);

    const Track copy = source;
    EXPECT_EQ(copy.Channels()[0], source.Channels()[0]) << "a plain copy shares the channels";
}

TEST(TrackLayoutCopy, CopiesAndClonesReferToTheSameTracks)
{
    auto track = std::make_shared<Track>(TrackId("t1"), "Program");
    TrackLayoutItem item(Identifier("i1"));
    item.Tracks().Insert(track);
    TrackLayout layout(Identifier("l1"), "Main");
    layout.TrackLayoutItems().Insert(item);
    layout.ObjectId(5);

    const TrackLayout copy = layout;
    EXPECT_EQ(copy, layout);
    EXPECT_EQ(copy.ObjectId(), 5);
    EXPECT_EQ(copy.TrackLayoutItems().Front().Tracks().Front().lock(), track);
    const TrackLayout clone = layout.Clone();
    EXPECT_EQ(clone.ObjectId(), -1);
    EXPECT_EQ(clone.TrackLayoutItems().Front().Tracks().Front().lock(), track);
    item.ObjectId(4);
    const TrackLayoutItem itemClone = item.Clone();
    EXPECT_EQ(itemClone.ObjectId(), -1);
    EXPECT_EQ(itemClone.Tracks().Front().lock(), track);
}

TEST(TrackLayoutItemEquality, ThrowsOnceATrackIsGone)
{
    auto track = std::make_shared<Track>(TrackId("t1"), "Program");
    TrackLayoutItem item(Identifier("i1"));
    item.Tracks().Insert(track);
    const TrackLayoutItem copy = item;
    EXPECT_EQ(copy, item);
    track.reset();
    EXPECT_THAT([&] { (void)(copy == item); }, ThrowsMessage<std::runtime_error>(StrEq(kExpired)));
    EXPECT_THAT([&] { item.Tracks().Insert(std::make_shared<Track>(TrackId("t2"))); },
                ThrowsMessage<std::runtime_error>(StrEq(kExpired)));
}
