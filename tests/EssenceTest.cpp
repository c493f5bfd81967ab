#include <Orvik/DataModel/MediaAssets/AudioEssence.h>
#include <Orvik/DataModel/MediaAssets/DataEssence.h>
#include <Orvik/DataModel/MediaAssets/TimeCodeTable.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>
#include <stdexcept>
#include <type_traits>

using namespace Orvik::DataModel::MediaAssets;
using ::testing::StrEq;
using ::testing::ThrowsMessage;

static_assert(!std::is_copy_constructible_v<AudioEssence>, "essences are copied through Clone");
static_assert(!std::is_copy_constructible_v<DataEssence>, "essences are copied through Clone");

namespace {

using Name = Orvik::BusinessEntityModel::BaseTypes::FullyQualifiedName;

// A profile to fill essence metadata with.
class Note : public MetadataProfile {
public:
    static Name StaticFullyQualifiedName() { return Name("test.note"); }
    Name FullyQualifiedName() const override { return StaticFullyQualifiedName(); }
    bool Equals(const MetadataProfile& other) const override { return dynamic_cast<const Note*>(&other) != nullptr; }
    std::shared_ptr<MetadataProfile> Clone() const override { return std::make_shared<Note>(*this); }
};

}  // namespace

TEST(EssenceEquality, KindComesFirstInBothDirections)
{
    const AudioEssence audio;
    const DataEssence data;
    EXPECT_FALSE(audio == data);
    EXPECT_FALSE(data == audio);
    EXPECT_TRUE(data != audio);
    EXPECT_TRUE(data == DataEssence());
}

TEST(EssenceEquality, NegativeNumberMatchesAnyAndObjectIdIsIgnored)
{
    AudioEssence left;
    AudioEssence right;
    left.Nr(-1);
    right.Nr(7);
    EXPECT_EQ(left, right);
    left.Nr(1);
    right.Nr(2);
    EXPECT_NE(left, right);
    right.Nr(1);
    right.ObjectId(42);
    EXPECT_EQ(left, right);
}

TEST(AudioEssenceEquality, ComparesTextsAndRatesAsStored)
{
    AudioEssence left;
    AudioEssence right;
    left.FourCC("twos");
    right.FourCC("TWOS");
    EXPECT_NE(left, right);
    right.FourCC("twos");
    left.SampleRate(Rate(1, 2));
    right.SampleRate(Rate(2, 4));
    EXPECT_NE(left, right);
}

TEST(EssenceEquality, TrackChannelsCompareByValueInPosition)
{
    AudioEssence left;
    AudioEssence right;
    left.TrackChannels().Insert(std::make_shared<TrackChannel>(Identifier("a"), 3));
    right.TrackChannels().Insert(std::make_shared<TrackChannel>(Identifier("a"), 3));
    EXPECT_EQ(left, right) << "different objects, same values";
    left.TrackChannels().Insert(std::make_shared<TrackChannel>(Identifier("b"), 3));
    right.TrackChannels().Insert(std::make_shared<TrackChannel>(Identifier("b"), 3));
    AudioEssence reversed;
    reversed.TrackChannels().Insert(std::make_shared<TrackChannel>(Identifier("b"), 3));
    reversed.TrackChannels().Insert(std::make_shared<TrackChannel>(Identifier("a"), 3));
    EXPECT_EQ(left, right);
    EXPECT_NE(left, reversed) << "opposite insertion orders stand in opposite orders";
}

// What a clone owns and what it shares with its source.
class AudioEssenceClone : public ::testing::Test {
protected:
    AudioEssenceClone()
    {
        source.Nr(2);
        source.FourCC("twos");
        source.Metadata().Set(std::make_shared<Note>());
        source.TrackChannels().Insert(std::make_shared<TrackChannel>(Identifier("a"), 1));
        source.Timecodes().Insert(std::make_shared<TimeCodeTable>());
        source.ObjectId(9);
        clone = source.Clone();
    }
    AudioEssence source;
    std::unique_ptr<Essence> clone;
};

TEST_F(AudioEssenceClone, IsAnEqualAudioEssenceWithTheSameObjectId)
{
    EXPECT_EQ(clone->GetType(), Essence::Audio);
    EXPECT_EQ(*clone, source);
    EXPECT_EQ(static_cast<const AudioEssence&>(*clone).FourCC(), "twos");
    EXPECT_EQ(clone->ObjectId(), 9);
}

TEST_F(AudioEssenceClone, SharesOneEmptiedMetadataDictionary)
{
    EXPECT_EQ(&clone->Metadata(), &source.Metadata());
    EXPECT_TRUE(source.Metadata().Empty());
    clone->Metadata().Set(std::make_shared<Note>());
    EXPECT_EQ(source.Metadata().Size(), 1u);
}

TEST_F(AudioEssenceClone, OwnsNewTrackChannelsAndSharesTimecodeTables)
{
    EXPECT_NE(clone->TrackChannels().Front().get(), source.TrackChannels().Front().get());
    clone->TrackChannels().Insert(std::make_shared<TrackChannel>(Identifier("b"), 2));
    EXPECT_EQ(source.TrackChannels().Size(), 1u);
    EXPECT_EQ(clone->Timecodes().Front().get(), source.Timecodes().Front().get());
}

TEST(EssenceClone, DuplicateChannelAtTheLowerBoundIsRefused)
{
    AudioEssence source;
    // Values() does not look for duplicates, so two equal channels can stand side by side.
    source.TrackChannels().Values({std::make_shared<TrackChannel>(Identifier("a"), 3),
                                   std::make_shared<TrackChannel>(Identifier("a"), 3)});
    EXPECT_THAT([&] { source.Clone(); },
                ThrowsMessage<std::runtime_error>(
                    StrEq("Orvik::DataModel::MediaAssets::SortedVector::Insert: item already present in the collection")));
}
