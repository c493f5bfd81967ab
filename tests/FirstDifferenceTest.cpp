#include <Orvik/DataModel/MediaAssets.h>
#include <Orvik/DataModel/MediaAssets/FirstDifference.h>

#include "TestProfiles.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>
#include <optional>
#include <stdexcept>
#include <string>

using namespace Orvik::DataModel::MediaAssets;
using ::testing::StrEq;
using ::testing::ThrowsMessage;

namespace {

constexpr char kExpired[] = "Orvik::DataModel::MediaAssets::CompareEqualWeakPointer: weak pointer object is expired";

struct Expected {
    const char* path;
    const char* left;
    const char* right;
};

void ExpectDifference(const std::optional<Difference>& difference, const Expected& expected)
{
    ASSERT_TRUE(difference.has_value()) << expected.path;
    EXPECT_EQ(difference->Path(), expected.path);
    EXPECT_EQ(difference->Left(), expected.left);
    EXPECT_EQ(difference->Right(), expected.right);
}

}  // namespace

TEST(FirstDifference, ValuesAreWrittenByKind)
{
    AudioEssence audio;
    AudioEssence other;
    other.BitRateMode(BitRateMode::vbr);
    ExpectDifference(FirstDifference(audio, other), {"(AudioEssence).bitRateMode", "unknown", "vbr"});
    ExpectDifference(FirstDifference(Stream(StreamId("r2")), Stream(StreamId("r9"))), {"streamId", "\"r2\"", "\"r9\""});

    Annotation left(AnnotationType::CuePoint, "say \"go\"\\\n\x01");
    Annotation right(AnnotationType::CuePoint, "say \xE2\x82\xAC");
    ExpectDifference(FirstDifference(left, right), {"data", R"("say \"go\"\\\n\x01")", "\"say \xE2\x82\xAC\""});

    right = left;
    right.TimeBounds(TimeBounds(TimeBoundary(TimePoint(-40), true), TimeBoundary::Empty()));
    ExpectDifference(FirstDifference(left, right), {"timeBounds.inBoundary.timePoint", "-9223372036854775807", "-40"});

    PelkOperatorMetadataProfile profile;
    PelkOperatorMetadataProfile coloured;
    coloured.Color(Color::Red);
    ExpectDifference(FirstDifference(profile, coloured), {"color", "0x00000000", "0xFFFF0000"});
    coloured = profile;
    coloured.Camera('B');
    ExpectDifference(FirstDifference(profile, coloured), {"camera", R"("\x00")", "\"B\""});
}

TEST(FirstDifference, IgnoresWhatEqualityIgnores)
{
    PelkOperatorMetadataProfile profile;
    PelkOperatorMetadataProfile flagged;
    flagged.UserProtected(true);
    flagged.PelkUIProtected(true);
    flagged.ObjectId(5);
    EXPECT_FALSE(FirstDifference(profile, flagged).has_value());

    DataEssence numbered;
    numbered.Nr(3);
    DataEssence unnumbered;
    EXPECT_FALSE(FirstDifference(numbered, unnumbered).has_value()) << "a negative number matches any";
    unnumbered.Nr(4);
    ExpectDifference(FirstDifference(numbered, unnumbered), {"nr", "3", "4"});

    MediaAsset left(MediaAssetId("a"));
    left.Ancestor(MediaAssetReference(std::make_shared<MediaAsset>(MediaAssetId("origin"))));
    MediaAsset right(MediaAssetId("a"));
    right.Ancestor(MediaAssetReference(MediaAssetId("origin")));
    right.ObjectId(9);
    EXPECT_FALSE(FirstDifference(left, right).has_value()) << "references compare by id only";
}

TEST(FirstDifference, KindComesBeforeFields)
{
    AudioEssence audio;
    VideoEssence video;
    ExpectDifference(FirstDifference(audio, video), {"type", "Audio", "Video"});

    ZanLocation zan(ZanServerId(120), "A7F3");
    FileLocation file;
    file.Uri(URI("120/A7F3"));
    ExpectDifference(FirstDifference(zan, file), {"type", "ZanLocation", "FileLocation"});

    MetadataProfileDictionary operatorProfile;
    operatorProfile.Set(std::make_shared<PelkOperatorMetadataProfile>());
    MetadataProfileDictionary otherClass;
    otherClass.Set(std::make_shared<OtherProfile>());
    ExpectDifference(FirstDifference(operatorProfile, otherClass),
                     {"[\"orvik.pelkoperator\"]", "PelkOperatorMetadataProfile", "profile \"orvik.pelkoperator\""});
}

// A plain item compares the asset ids alone, an angles item first checks the other's class: the
// difference follows the left item, as operator== does.
TEST(FirstDifference, GroupItemsFollowTheLeftItemsClass)
{
    const MediaAssetReference asset(MediaAssetId("a1"));
    const MediaAssetGroupItem plain(asset);
    const AnglesMediaAssetGroupItem angles("cam 1", asset);
    EXPECT_FALSE(FirstDifference(plain, angles).has_value());
    ExpectDifference(FirstDifference(angles, plain),
                     {"", "AnglesMediaAssetGroupItem for \"a1\"", "MediaAssetGroupItem for \"a1\""});

    AnglesMediaAssetGroup left(MediaAssetGroupId("g"));
    left.Items().push_back(std::make_shared<AnglesMediaAssetGroupItem>(angles));
    AnglesMediaAssetGroup right(MediaAssetGroupId("g"));
    right.Items().push_back(std::make_shared<AnglesMediaAssetGroupItem>("cam 2", asset));
    ExpectDifference(FirstDifference(left, right), {"items[0].(AnglesMediaAssetGroupItem).name", "\"cam 1\"", "\"cam 2\""});
    right.Items()[0] = nullptr;
    ExpectDifference(FirstDifference(left, right), {"items[0]", "AnglesMediaAssetGroupItem for \"a1\"", "null"});
}

TEST(FirstDifference, CountsDifferAtTheFirstPositionOneSideLacks)
{
    Stream left(StreamId("s"));
    left.Essences().Add(DataEssence());
    Stream right(StreamId("s"));
    right.Essences().Add(DataEssence());
    right.Essences().Add(AudioEssence());
    ExpectDifference(FirstDifference(left, right), {"essences[1]", "missing", "AudioEssence"});

    MediaAsset withNull(MediaAssetId("a"));
    withNull.Annotations().push_back(nullptr);
    ExpectDifference(FirstDifference(withNull, withNull), {"annotations[0]", "null", "null"});

    MetadataProfileDictionary one;
    one.Set(std::make_shared<TestProfile>(1));
    MetadataProfileDictionary two;
    two.Set(std::make_shared<TestProfile>(2));
    two.Set(std::make_shared<PelkOperatorMetadataProfile>());
    ExpectDifference(FirstDifference(one, two), {"[\"orvik.pelkoperator\"]", "missing", "PelkOperatorMetadataProfile"});
    ExpectDifference(FirstDifference(one, MetadataProfileDictionary()),
                     {"[\"test.profile\"]", "profile \"test.profile\"", "missing"});
}

TEST(FirstDifference, ExpiredLayoutTrackThrowsWhereEqualityThrows)
{
    auto track = std::make_shared<Track>(TrackId("t"), "Program");
    TrackLayoutItem item(Identifier("i"));
    item.Tracks().Insert(track);
    TrackLayoutItem renamed = item;
    renamed.Name("other");
    track.reset();
    // The names differ before the tracks are reached; then the expired track throws.
    ExpectDifference(FirstDifference(item, renamed), {"name", "\"\"", "\"other\""});
    EXPECT_THAT([&] { return FirstDifference(item, item); }, ThrowsMessage<std::runtime_error>(StrEq(kExpired)));
    EXPECT_THAT([&] { return item == item; }, ThrowsMessage<std::runtime_error>(StrEq(kExpired)));
}
