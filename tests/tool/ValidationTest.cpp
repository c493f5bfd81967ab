#include "Validation.h"
#include "JsonPointer.h"

#include <ArbitraryObjects.h>
#include <Orvik/DataModel/MediaAssets.h>
#include <SampleAssets.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>
#include <ostream>

using namespace Orvik::DataModel::MediaAssets;
using Orvik::AssetTool::Problem;
using Orvik::AssetTool::Validate;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

namespace Orvik::AssetTool {

bool operator==(const Problem& a, const Problem& b) { return a.path == b.path && a.message == b.message; }

void PrintTo(const Problem& problem, std::ostream* out) { *out << problem.path << ": " << problem.message; }

}  // namespace Orvik::AssetTool

namespace {

// The path of the one essence that AddEssence gives an asset.
const std::string kEssence = "/mediaResources/0/pointer/streams/0/pointer/essences/0";

// Gives `asset` a loaded resource whose one stream holds `essence`.
void AddEssence(MediaAsset& asset, std::unique_ptr<Essence> essence)
{
    auto stream = std::make_unique<Stream>(StreamId("s"));
    stream->Essences().Add(std::move(essence));
    auto resource = std::make_shared<MediaResource>(MediaResourceId("r"));
    resource->Adopt(std::move(stream));
    asset.MediaResources().Insert(MediaResourceReference(resource));
}

TEST(Validation, SampleObjectsAreValid)
{
    EXPECT_THAT(Validate(Orvik::Samples::MakeSampleAsset()), IsEmpty());
    EXPECT_THAT(Validate(Orvik::Samples::MakeSampleGroup()), IsEmpty());
}

// The other fields of a clip identifier, the serial numbers and the time bounds are checked by
// the tool's tests on tests/data/invalid.
TEST(Validation, ClipOutOfRangeNamesItsField)
{
    MediaAsset asset;
    auto profile = std::make_shared<PelkOperatorMetadataProfile>();
    profile->Bank(1);
    profile->Clip(-1);
    asset.Metadata().Set(profile);
    EXPECT_THAT(Validate(asset), ElementsAre(Problem{"/metadata/orvik.pelkoperator/clip", "clip -1 is not 0 to 9"}));
}

// Track ids are checked the same way by the tool's tests on tests/data/invalid.
TEST(Validation, DuplicateTimecodeTableNamesPointBackAtTheFirst)
{
    auto video = std::make_unique<VideoEssence>();
    for (const char* type : {"LTC", "VITC"}) {
        auto table = std::make_shared<TimeCodeTable>();
        table->FullyQualifiedName(FullyQualifiedName("timecode.main"));
        table->Type(type);
        table->TimeCodeJumpItems().Insert(std::make_shared<TimeCodeJump>());
        video->Timecodes().Insert(table);
    }
    MediaAsset asset;
    AddEssence(asset, std::move(video));
    const std::string tables = kEssence + "/timecodes/";
    EXPECT_THAT(
        Validate(asset),
        ElementsAre(Problem{tables + "0/timeCodeJumpItems/0/timeCode", "the timecode jump has no timecode text"},
                    Problem{tables + "1", "timecode table name \"timecode.main\" occurs again (first at " + tables + "0)"},
                    Problem{tables + "1/timeCodeJumpItems/0/timeCode", "the timecode jump has no timecode text"}));
}

class DanglingReferences : public ::testing::Test {
protected:
    DanglingReferences()
    {
        auto audio = std::make_unique<AudioEssence>();
        audio->TrackChannels().Insert(std::make_shared<TrackChannel>(Identifier("t"), 1));
        audio->TrackChannels().Insert(std::make_shared<TrackChannel>(Identifier("elsewhere"), 2));
        AddEssence(asset, std::move(audio));

        auto track = std::make_shared<Track>(TrackId("t"));
        for (const char* streamId : {"s", "missing", ""}) {
            auto channel = std::make_shared<TrackChannelToRemove>();
            channel->Stream(StreamReference(StreamId(streamId)));
            track->Channels().push_back(channel);
        }
        asset.Tracks().Insert(track);

        TrackLayoutItem item(Identifier("i"));
        item.Tracks().Insert(track);
        item.Tracks().Insert(foreign);
        auto layout = std::make_shared<TrackLayout>(Identifier("l"));
        layout->TrackLayoutItems().Insert(item);
        asset.TrackLayouts().Insert(layout);
    }

    std::shared_ptr<Track> foreign = std::make_shared<Track>(TrackId("u"));
    MediaAsset asset;
};

TEST_F(DanglingReferences, NameTheMissingStreamTrackOrTrackObject)
{
    EXPECT_THAT(
        Validate(asset),
        ElementsAre(
            Problem{kEssence + "/trackChannels/1/trackId", "track \"elsewhere\" is not a track of the asset"},
            Problem{"/tracks/0/channels/1/stream/id", "stream \"missing\" is not a stream of the asset's media resources"},
            Problem{"/tracks/0/channels/2/stream/id", "the channel names no stream"},
            Problem{"/trackLayouts/0/trackLayoutItems/0/tracks/1", "track \"u\" is not one of the asset's tracks"}));

    foreign.reset();
    asset.MediaResources().Insert(MediaResourceReference(MediaResourceId("unloaded")));
    EXPECT_THAT(
        Validate(asset),
        ElementsAre(Problem{kEssence + "/trackChannels/1/trackId", "track \"elsewhere\" is not a track of the asset"},
                    Problem{"/tracks/0/channels/2/stream/id", "the channel names no stream"},
                    Problem{"/trackLayouts/0/trackLayoutItems/0/tracks/1", "the track no longer exists"}))
        << "with a resource not loaded, a stream id may be one of its streams";
}

TEST(Validation, GroupItemsThatReferToNoAsset)
{
    AnglesMediaAssetGroup group;
    group.Items().push_back(std::make_shared<AnglesMediaAssetGroupItem>("a", MediaAssetReference(MediaAssetId("x"))));
    group.Items().push_back(std::make_shared<AnglesMediaAssetGroupItem>("b"));
    EXPECT_THAT(Validate(group), ElementsAre(Problem{"/items/1/mediaAsset", "the item refers to no asset"}));
}

TEST(Validation, ArbitraryObjectsGetProblemsWithPointersAndNoException)
{
    for (uint64_t seed = 0; seed < 100; ++seed) {
        Orvik::Testing::ArbitraryObjects objects(seed);
        auto problems = Validate(objects.MediaAsset());
        const auto groupProblems = Validate(*objects.AnglesMediaAssetGroup());
        problems.insert(problems.end(), groupProblems.begin(), groupProblems.end());
        for (const Problem& problem : problems) {
            ASSERT_EQ(problem.path.rfind('/', 0), 0u) << "seed " << seed << ": " << problem.message;
            ASSERT_FALSE(problem.message.empty()) << "seed " << seed << ": " << problem.path;
        }
    }
}

TEST(JsonPointer, EscapesTildeAndSlashInMemberNames)
{
    const auto pointer = Orvik::AssetTool::JsonPointer() / "metadata" / "a/b~c" / 3;
    EXPECT_EQ(pointer.Text(), "/metadata/a~1b~0c/3");
    EXPECT_EQ(Orvik::AssetTool::JsonPointer().Text(), "");
}

}  // namespace
