// Essences of the three kinds and their track channels.

#include <Orvik/DataModel/MediaAssets/AudioEssence.h>
#include <Orvik/DataModel/MediaAssets/DataEssence.h>
#include <Orvik/DataModel/MediaAssets/TrackChannel.h>
#include <Orvik/DataModel/MediaAssets/VideoEssence.h>

#include <gtest/gtest.h>

#include <cstdint>
#include <memory>
#include <stdexcept>
#include <type_traits>

using namespace Orvik::DataModel::MediaAssets;

static_assert(!std::is_copy_constructible_v<AudioEssence>, "essences are copied through Clone");
static_assert(!std::is_copy_constructible_v<DataEssence>, "essences are copied through Clone");
static_assert(!std::is_copy_constructible_v<VideoEssence>, "essences are copied through Clone");

namespace {

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

}  // namespace

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
