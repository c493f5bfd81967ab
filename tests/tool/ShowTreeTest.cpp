#include "ShowTree.h"
#include "TimeText.h"
#include "TreePrinter.h"

#include <ArbitraryObjects.h>
#include <Orvik/DataModel/MediaAssets.h>
#include <SampleAssets.h>

#include <gtest/gtest.h>

#include <limits>
#include <memory>
#include <sstream>

using namespace Orvik::DataModel::MediaAssets;
using Orvik::AssetTool::AssetTree;
using Orvik::AssetTool::GroupTree;
using Orvik::AssetTool::PrintTree;
using Orvik::AssetTool::TreeNode;

namespace {

constexpr int64_t kSecond = 1000000000;

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

// Clip identifiers in range read as "123B", as the tool's tests on the documents show.
TEST(ShowTree, ClipIdentifiersOutOfRangeShowTheirNumbers)
{
    AnglesMediaAssetGroup group(MediaAssetGroupId("g"));
    auto angles = std::make_shared<AnglesPelkOperatorMetadataProfile>();
    angles->Page(12);
    group.Metadata().Set(angles);
    EXPECT_EQ(Plain(GroupTree(group)),
              "media asset group g\n"
              "  type  AnglesMediaAssetGroup\n"
              "  angles operator profile orvik.pelkoperator\n"
              "    clip  page 12, bank 0, clip 0\n");
}

TEST(ShowTree, ControlCharactersOfADocumentAreEscaped)
{
    MediaAsset asset(MediaAssetId("id\x1b[2J"));
    asset.Name("two\nlines\tand \xc2\x9b C1");
    EXPECT_EQ(Plain(AssetTree(asset)),
              "media asset id\\x1b[2J\n"
              "  type  unknown\n"
              "  name  two\\nlines\\tand \\u009b C1\n");
}

TEST(ShowTree, ArbitraryObjectsPrintWithoutControlCharacters)
{
    for (uint64_t seed = 0; seed < 100; ++seed) {
        Orvik::Testing::ArbitraryObjects objects(seed);
        const std::string text = Plain(AssetTree(objects.MediaAsset())) + Plain(GroupTree(*objects.MediaAssetGroup()))
            + Plain(GroupTree(*objects.AnglesMediaAssetGroup()));
        for (const char c : text) {
            const auto byte = static_cast<unsigned char>(c);
            ASSERT_TRUE(c == '\n' || (byte >= 0x20 && byte != 0x7f)) << "seed " << seed << ", byte " << int(byte);
        }
    }
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

TEST(TimeText, DurationsReadAsHoursMinutesAndSeconds)
{
    const struct {
        int64_t nanoseconds;
        const char* text;
    } rows[] = {
        {0, "0h 00m 00s"},
        {3723 * kSecond + kSecond / 2, "1h 02m 03.5s"},
        {-1, "-0h 00m 00.000000001s"},
        {std::numeric_limits<int64_t>::min(), "-2562047h 47m 16.854775808s"},
    };
    for (const auto& row : rows)
        EXPECT_EQ(Orvik::AssetTool::DurationText(row.nanoseconds), row.text) << row.nanoseconds;
}

TEST(TimeText, TimecodesReadAsClockWithRate)
{
    using Orvik::TimePoints::Rate;
    const struct {
        Timecode timecode;
        const char* text;
    } rows[] = {
        {Timecode(Rate(30000, 1001), 1800, true, false), "00:01:00;02 @ 30000/1001"},
        {Timecode(Rate(25, 1), 25 * 86400 + 25, false, true), "1970-01-02 00:00:01:00 @ 25/1"},
        {Timecode(Rate(0, 1), 12, false, false), "sample 12 @ 0/1"},
    };
    for (const auto& row : rows)
        EXPECT_EQ(Orvik::AssetTool::TimecodeText(row.timecode), row.text);
}

TEST(TimeText, BoundariesAndDates)
{
    EXPECT_EQ(Orvik::AssetTool::BoundaryText(TimeBoundary::Empty()), "unset");
    EXPECT_EQ(Orvik::AssetTool::BoundaryText(TimeBoundary(TimePoint(2 * kSecond), true)), "0h 00m 02s (moving)");
    EXPECT_EQ(Orvik::AssetTool::DateText(86400 + 3661), "1970-01-02 01:01:01 UTC");
}

}  // namespace
