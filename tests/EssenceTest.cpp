#include <Orvik/DataModel/MediaAssets/AudioEssence.h>
#include <Orvik/DataModel/MediaAssets/DataEssence.h>
#include <Orvik/DataModel/MediaAssets/TimeCodeTable.h>
#include <Orvik/DataModel/MediaAssets/TrackChannel.h>
#include <Orvik/DataModel/MediaAssets/VideoEssence.h>

#include "TestProfiles.h"

#include <gtest/gtest.h>

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
    EXPECT_FALSE(audio == data);
    EXPECT_FALSE(data == audio);
    EXPECT_TRUE(video != audio);
    EXPECT_TRUE(audio != video);
    EXPECT_TRUE(data == DataEssence());
}

TEST(EssenceEquality, NegativeNumberMatchesAnyNumberAndObjectIdIsIgnored)
{
    EXPECT_TRUE(EqualAfter<AudioEssence>([](auto& e) { e.Nr(-1); }, [](auto& e) { e.Nr(7); }));
    EXPECT_TRUE(EqualAfter<VideoEssence>([](auto& e) { e.Nr(3); }, [](auto& e) { e.Nr(-1); }));
    EXPECT_FALSE(EqualAfter<AudioEssence>([](auto& e) { e.Nr(1); }, [](auto& e) { e.Nr(2); }));
    EXPECT_TRUE(EqualAfter<AudioEssence>([](auto&) {}, [](auto& e) { e.ObjectId(42); }));
}

TEST(EssenceEquality, TextsRatesAndFramingCompareAsStored)
{
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

// What a clone owns and what it shares with its source.
class EssenceClone : public ::testing::Test {
protected:
    EssenceClone()
    {
        source.Nr(2);
        source.FourCC("twos");
        source.Metadata().Set(std::make_shared<TestProfile>(1));
        source.TrackChannels().Insert(Channel("a", 1));
        source.Timecodes().Insert(std::make_shared<TimeCodeTable>());
        source.ObjectId(9);
        clone = source.Clone();
    }
    AudioEssence source;
    std::unique_ptr<Essence> clone;
};

TEST_F(EssenceClone, IsAnEqualEssenceOfTheSameKindWithTheSameObjectId)
{
    EXPECT_EQ(clone->GetType(), Essence::Audio);
    EXPECT_EQ(*clone, source);
    EXPECT_EQ(static_cast<const AudioEssence&>(*clone).FourCC(), "twos");
    EXPECT_EQ(clone->ObjectId(), 9);
    const DataEssence data;
    const VideoEssence video;
    for (const Essence* other : {static_cast<const Essence*>(&data), static_cast<const Essence*>(&video)}) {
        const auto copy = other->Clone();
        EXPECT_EQ(copy->GetType(), other->GetType());
        EXPECT_EQ(*copy, *other);
        EXPECT_EQ(&copy->Metadata(), &other->Metadata());
    }
}

TEST_F(EssenceClone, SharesOneEmptiedMetadataDictionary)
{
    EXPECT_EQ(&clone->Metadata(), &source.Metadata());
    EXPECT_TRUE(source.Metadata().Empty());
    clone->Metadata().Set(std::make_shared<TestProfile>(2));
    EXPECT_EQ(source.Metadata().Size(), 1u);
}

TEST_F(EssenceClone, OwnsNewTrackChannels)
{
    EXPECT_NE(clone->TrackChannels().Front().get(), source.TrackChannels().Front().get());
    clone->TrackChannels().Insert(Channel("b", 2));
    EXPECT_EQ(source.TrackChannels().Size(), 1u);
}

TEST_F(EssenceClone, SharesTimecodeTables) { EXPECT_EQ(clone->Timecodes().Front().get(), source.Timecodes().Front().get()); }
