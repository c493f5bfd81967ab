// Groups of assets, plain and multi-angle: their items, lookups and operator metadata.

#include <Orvik/DataModel/MediaAssets/AnglesMediaAssetGroup.h>
#include <Orvik/DataModel/MediaAssets/AnglesPelkOperatorMetadataProfile.h>
#include <Orvik/DataModel/MediaAssets/MediaAsset.h>
#include <Orvik/DataModel/MediaAssets/PelkOperatorMetadataProfile.h>

#include <gmock/gmock.h>

#include <memory>
#include <stdexcept>

using namespace Orvik::DataModel::MediaAssets;
using ::testing::StrEq;
using ::testing::ThrowsMessage;

namespace {

constexpr char kNoAnglesOperatorMetadata[] =
    "Orvik::DataModel::MediaAssets::AnglesPelkOperatorMetadataProfile: No orvik.pelkoperator metadata available";

MediaAssetReference AssetReference(const char* id)
{
    return MediaAssetReference(std::make_shared<MediaAsset>(MediaAssetId(id)));
}

}  // namespace

TEST(AnglesMediaAssetGroup, FindsOnlyTheAnglesProfileOrThrowsNamingIt)
{
    AnglesMediaAssetGroup group;
    const AnglesMediaAssetGroup& view = group;
    EXPECT_EQ(group.Type(), "AnglesMediaAssetGroup");
    EXPECT_FALSE(group.HasPelkOperatorMetadata());
    EXPECT_THAT([&] { view.PelkOperatorMetadata(); }, ThrowsMessage<std::runtime_error>(StrEq(kNoAnglesOperatorMetadata)));
    group.Metadata().Set(std::make_shared<PelkOperatorMetadataProfile>());
    EXPECT_FALSE(group.HasPelkOperatorMetadata());
    EXPECT_THAT([&] { group.PelkOperatorMetadata(); }, ThrowsMessage<std::runtime_error>(StrEq(kNoAnglesOperatorMetadata)));
    auto profile = std::make_shared<AnglesPelkOperatorMetadataProfile>(PelkId(ZanServerId(10), 1, 2, 3));
    group.Metadata().Set(profile);
    EXPECT_TRUE(group.HasPelkOperatorMetadata());
    EXPECT_EQ(&group.PelkOperatorMetadata(), profile.get());
    EXPECT_EQ(group.PelkOperatorMetadata().PelkId().ToString(), "123/10");
}

TEST(AnglesMediaAssetGroupItemEquality, NeedsTheNameAndTheAssetIdOnly)
{
    const AnglesMediaAssetGroupItem wide("wide", AssetReference("a"));
    EXPECT_NE(wide, AnglesMediaAssetGroupItem("tight", AssetReference("a")));
    EXPECT_EQ(wide, AnglesMediaAssetGroupItem("wide", MediaAssetReference(MediaAssetId("a"))));
}

// That an angles item equals a plain one only from the plain side is checked with FirstDifference.
TEST(MediaAssetGroupLookup, FindsItemsByAssetIdOrNamesTheMissingOne)
{
    AnglesMediaAssetGroup group(MediaAssetGroupId("g"));
    auto item = std::make_shared<AnglesMediaAssetGroupItem>("wide", AssetReference("a"));
    group.Items().push_back(item);
    EXPECT_TRUE(group.HasAsset(MediaAssetId("a")));
    EXPECT_EQ(group.ItemReference(MediaAssetId("a")), item);
    EXPECT_EQ(&group.Item(MediaAssetId("a")), item.get());
    EXPECT_EQ(group.Asset(MediaAssetId("a")).Id(), MediaAssetId("a"));
    EXPECT_EQ(group.Find(MediaAssetId("b")), group.Items().end());
    EXPECT_THAT([&] { group.Item(MediaAssetId("b")); },
                ThrowsMessage<std::runtime_error>(
                    StrEq("Orvik::DataModel::MediaAssets::MediaAssetGroup::Item: no item for asset b")));
}

TEST(AnglesMediaAssetGroupLookup, PlainItemThrowsNamingItsAsset)
{
    AnglesMediaAssetGroup group(MediaAssetGroupId("g"));
    group.Items().push_back(std::make_shared<MediaAssetGroupItem>(AssetReference("c")));
    EXPECT_THAT([&] { group.Item(MediaAssetId("c")); },
                ThrowsMessage<std::runtime_error>(
                    StrEq("Orvik::DataModel::MediaAssets::AnglesMediaAssetGroup::Item: not an angles item for asset c")));
}

TEST(MediaAssetGroupEquality, ComparesItemsInOrderThroughTheirOwnEquality)
{
    AnglesMediaAssetGroup left(MediaAssetGroupId("g"));
    AnglesMediaAssetGroup right(MediaAssetGroupId("g"));
    left.Items().push_back(std::make_shared<AnglesMediaAssetGroupItem>("wide", AssetReference("a")));
    right.Items().push_back(std::make_shared<AnglesMediaAssetGroupItem>("wide", AssetReference("a")));
    right.ObjectId(3);
    EXPECT_EQ(left, right);
    right.Items().push_back(std::make_shared<AnglesMediaAssetGroupItem>("tight", AssetReference("b")));
    EXPECT_NE(left, right);
}
