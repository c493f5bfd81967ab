// Tracks and their layouts: order, what copies share, and layout items whose tracks are gone.

#include <Orvik/DataModel/MediaAssets/Track.h>
#include <Orvik/DataModel/MediaAssets/TrackChannelToRemove.h>
#include <Orvik/DataModel/MediaAssets/TrackLayout.h>
#include <Orvik/DataModel/MediaAssets/TrackLayoutItem.h>

#include <gmock/gmock.h>

#include <memory>
#include <stdexcept>

using namespace Orvik::DataModel::MediaAssets;
using ::testing::StrEq;
using ::testing::ThrowsMessage;

namespace {

constexpr char kExpired[] = "Orvik::DataModel::MediaAssets::CompareEqualWeakPointer: weak pointer object is expired";

}  // namespace

TEST(TrackOrder, IsByIdSoATrackOfTheSameIdWithAnotherNameGoesInFront)
{
    SortedVectorSharedPointer<Track> tracks;
    tracks.Insert(std::make_shared<Track>(TrackId("t1"), "Program"));
    tracks.Insert(std::make_shared<Track>(TrackId("t1"), "Clean"));
    EXPECT_EQ(tracks.Front()->Name(), "Clean");
    EXPECT_NE(*tracks.Front(), *tracks.Back()) << "the name is compared";
    EXPECT_THROW(tracks.Insert(std::make_shared<Track>(TrackId("t1"), "Clean")), std::runtime_error);
}

// What a track clone owns is checked with the asset clone above.
TEST(TrackCopy, SharesTheChannels)
{
    Track source(TrackId("t1"), "Program");
    source.Channels().push_back(std::make_shared<TrackChannelToRemove>());
    const Track copy = source;
    EXPECT_EQ(copy.Channels()[0], source.Channels()[0]);
}

TEST(TrackLayoutClone, RefersToTheSameTracks)
{
    auto track = std::make_shared<Track>(TrackId("t1"), "Program");
    TrackLayoutItem item(Identifier("i1"));
    item.Tracks().Insert(track);
    TrackLayout layout(Identifier("l1"));
    layout.TrackLayoutItems().Insert(item);
    layout.ObjectId(5);

    // A copy, as an asset clone makes, is checked above.
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
