// The orvik-asset tool's parts: the tree that `show` prints, its texts of times, and the problems
// that `validate` finds. What the documents in tests/data reach is checked by the tool's runs on
// them (tests/tool/expected); these are the cases that no document holds.

#include "ShowTree.h"
#include "TimeText.h"
#include "TreePrinter.h"
#include "Validation.h"

#include <ArbitraryObjects.h>
#include <Orvik/DataModel/MediaAssets.h>
#include <SampleAssets.h>

#include <gmock/gmock.h>

#include <limits>
#include <memory>
#include <ostream>
#include <sstream>

using namespace Orvik::DataModel::MediaAssets;
using Orvik::AssetTool::AssetTree;
using Orvik::AssetTool::GroupTree;
using Orvik::AssetTool::PrintTree;
using Orvik::AssetTool::Problem;
using Orvik::AssetTool::TreeNode;
using Orvik::AssetTool::Validate;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

namespace Orvik::AssetTool {

bool operator==(const Problem& a, const Problem& b) { return a.path == b.path && a.message == b.message; }

void PrintTo(const Problem& problem, std::ostream* out) { *out << problem.path << ": " << problem.message; }

}  // namespace Orvik::AssetTool

namespace {

std::string Plain(const TreeNode& tree)
{
    std::ostringstream out;
    PrintTree(out, tree, false);
    return out.str();
}

TEST(ShowTree, FieldsAtTheirDefaultAreLeftOutButTheKindIsShown)
{
    EXPECT_EQ(Plain(AssetTree(MediaAsset())), "media asset (no id)\n  type  unknown\n");
}

TEST(ShowTree, ReferencesByIdAloneSayNotLoadedAndExpiredTracksSaySo)
{
    MediaAsset asset(MediaAssetId("a"));
    asset.MediaResources().Insert(MediaResourceReference(MediaResourceId("r")));
    auto layout = std::make_shared<TrackLayout>(Identifier("l"));
    TrackLayoutItem item(Identifier("i"));
    item.Tracks().Insert(std::make_shared<Track>(TrackId("gone")));  // its only owner is gone at once
    layout->TrackLayoutItems().Insert(item);
    asset.TrackLayouts().Insert(layout);

    EXPECT_EQ(Plain(AssetTree(asset)),
              "media asset a\n"
              "  type  unknown\n"
              "  layout l\n"
              "    item i\n"
              "      track  expired\n"
              "  media resource r  not loaded\n");
}

TEST(ShowTree, ColourPaintsObjectLabelsAndValuesByTone)
{
    const TreeNode tree{"stream",
                        {{"s1", Orvik::AssetTool::Tone::Id}},
                        {TreeNode{"format", {{"MXFOP1a", Orvik::AssetTool::Tone::Keyword}}, {}, false}},
                        true};
    std::ostringstream out;
    PrintTree(out, tree, true);
    EXPECT_EQ(out.str(), "\x1b[1mstream\x1b[0m \x1b[36ms1\x1b[0m\n  format  \x1b[32mMXFOP1a\x1b[0m\n");
}

// Durations, moving boundaries, dates, and timecodes with and without a date or a valid rate show
// in the outputs on the documents; these are the edges.
TEST(TimeText, HoursNegativeAndLowestDurationsAndUnsetBoundaries)
{
    constexpr int64_t kSecond = 1000000000;
    EXPECT_EQ(Orvik::AssetTool::DurationText(3723 * kSecond + kSecond / 2), "1h 02m 03.5s");
    EXPECT_EQ(Orvik::AssetTool::DurationText(-1), "-0h 00m 00.000000001s");
    EXPECT_EQ(Orvik::AssetTool::DurationText(std::numeric_limits<int64_t>::min()), "-2562047h 47m 16.854775808s");
    EXPECT_EQ(Orvik::AssetTool::BoundaryText(TimeBoundary::Empty()), "unset");
}

TEST(Validation, SampleObjectsAreValid)
{
    EXPECT_THAT(Validate(Orvik::Samples::MakeSampleAsset()), IsEmpty());
    EXPECT_THAT(Validate(Orvik::Samples::MakeSampleGroup()), IsEmpty());
}

// A document cannot hold a layout item's track that the asset does not hold or that no longer
// exists, nor a resource that is not loaded, whose streams a channel may name.
class DanglingReferences : public ::testing::Test {
protected:
    DanglingReferences()
    {
        auto resource = std::make_shared<MediaResource>(MediaResourceId("r"));
        resource->Adopt(std::make_unique<Stream>(StreamId("s")));
        asset.MediaResources().Insert(MediaResourceReference(resource));

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
            Problem{"/tracks/0/channels/1/stream/id", "stream \"missing\" is not a stream of the asset's media resources"},
            Problem{"/tracks/0/channels/2/stream/id", "the channel names no stream"},
            Problem{"/trackLayouts/0/trackLayoutItems/0/tracks/1", "track \"u\" is not one of the asset's tracks"}));

    foreign.reset();
    asset.MediaResources().Insert(MediaResourceReference(MediaResourceId("unloaded")));
    EXPECT_THAT(Validate(asset),
                ElementsAre(Problem{"/tracks/0/channels/2/stream/id", "the channel names no stream"},
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

// Whatever a caller's objects hold, `show` prints no control character and `validate` throws
// nothing and names each problem by a JSON pointer.
TEST(AssetTool, ArbitraryObjectsShowWithoutControlCharactersAndValidateWithPointers)
{
    for (uint64_t seed = 0; seed < 100; ++seed) {
        SCOPED_TRACE(seed);
        Orvik::Testing::ArbitraryObjects objects(seed);
        const std::string text = Plain(AssetTree(objects.MediaAsset())) + Plain(GroupTree(*objects.MediaAssetGroup()))
            + Plain(GroupTree(*objects.AnglesMediaAssetGroup()));
        for (const char c : text) {
            const auto byte = static_cast<unsigned char>(c);
            ASSERT_TRUE(c == '\n' || (byte >= 0x20 && byte != 0x7f)) << "byte " << int(byte);
        }
        auto problems = Validate(objects.MediaAsset());
        const auto groupProblems = Validate(*objects.AnglesMediaAssetGroup());
        problems.insert(problems.end(), groupProblems.begin(), groupProblems.end());
        for (const Problem& problem : problems) {
            ASSERT_EQ(problem.path.rfind('/', 0), 0u) << problem.message;
            ASSERT_FALSE(problem.message.empty()) << problem.path;
        }
    }
}

}  // namespace
