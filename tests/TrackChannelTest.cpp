#include <Orvik/DataModel/MediaAssets/TrackChannel.h>

#include <gtest/gtest.h>

#include <memory>
#include <stdexcept>

using namespace Orvik::DataModel::MediaAssets;

TEST(TrackChannelOrder, IsByNumberSoOnlyTheChannelAtTheLowerBoundIsTested)
{
    SortedVectorSharedPointer<TrackChannel> channels;
    channels.Insert(std::make_shared<TrackChannel>(Identifier("a"), 3));
    EXPECT_THROW(channels.Insert(std::make_shared<TrackChannel>(Identifier("a"), 3)), std::runtime_error);
    channels.Insert(std::make_shared<TrackChannel>(Identifier("b"), 3));
    EXPECT_EQ(channels.Front()->TrackId(), Identifier("b"));
    channels.Insert(std::make_shared<TrackChannel>(Identifier("a"), 3));
    EXPECT_EQ(channels.Size(), 3u);
    channels.Insert(std::make_shared<TrackChannel>(Identifier("z"), -1));
    EXPECT_EQ(channels.Front()->ChannelNr(), -1) << "numbers compare signed";
}

TEST(TrackChannelEquality, NeedsTrackAndNumber)
{
    EXPECT_EQ(TrackChannel(Identifier("a"), 3), TrackChannel(Identifier("a"), 3).Clone());
    EXPECT_NE(TrackChannel(Identifier("a"), 3), TrackChannel(Identifier("b"), 3));
    EXPECT_NE(TrackChannel(Identifier("a"), 3), TrackChannel(Identifier("a"), 4));
}
