#include <Orvik/DataModel/MediaAssets/AnnotationType.h>
#include <Orvik/DataModel/MediaAssets/ArchiveStatus.h>
#include <Orvik/DataModel/MediaAssets/AssetType.h>
#include <Orvik/DataModel/MediaAssets/TimecodePrimary.h>
#include <Orvik/DataModel/MediaAssets/TimeCodeStandard.h>
#include <Orvik/DataModel/MediaAssets/UserTimecodeType.h>

#include "EnumerationConversions.h"

#include <gtest/gtest.h>

using namespace Orvik::DataModel::MediaAssets;

constexpr Row<AnnotationType> kAnnotationType[] = {
    {AnnotationType::unknown, "unknown"},
    {AnnotationType::CuePoint, "CuePoint"},
};
TEST(AnnotationTypeConversions, EveryValueConvertsBothWays) { EXPECT_CONVERTS_BOTH_WAYS(AnnotationType, kAnnotationType); }

constexpr Row<ArchiveStatus> kArchiveStatus[] = {
    {ArchiveStatus::None, "None"},
    {ArchiveStatus::ToArchive, "ToArchive"},
    {ArchiveStatus::Archived, "Archived"},
};
TEST(ArchiveStatusConversions, EveryValueConvertsBothWays) { EXPECT_CONVERTS_BOTH_WAYS(ArchiveStatus, kArchiveStatus); }

constexpr Row<AssetType> kAssetType[] = {
    {AssetType::unknown, "unknown"},
    {AssetType::train, "train"},
    {AssetType::media, "media"},
};
TEST(AssetTypeConversions, EveryValueConvertsBothWays) { EXPECT_CONVERTS_BOTH_WAYS(AssetType, kAssetType); }

constexpr Row<TimecodePrimary> kTimecodePrimary[] = {
    {TimecodePrimary::NotSet, "NotSet"},
    {TimecodePrimary::Tod, "Tod"},
    {TimecodePrimary::User, "User"},
};
TEST(TimecodePrimaryConversions, EveryValueConvertsBothWays) { EXPECT_CONVERTS_BOTH_WAYS(TimecodePrimary, kTimecodePrimary); }

constexpr Row<TimeCodeStandard> kTimeCodeStandard[] = {
    {TimeCodeStandard::NotSet, "NotSet"},
    {TimeCodeStandard::SmptePal25, "smpte.pal.25"},
    {TimeCodeStandard::SmpteNtsc30Drop, "smpte.ntsc.30.drop"},
    {TimeCodeStandard::SmpteNtsc30NoDrop, "smpte.ntsc.30.nodrop"},
};
TEST(TimeCodeStandardConversions, EveryValueConvertsBothWays) { EXPECT_CONVERTS_BOTH_WAYS(TimeCodeStandard, kTimeCodeStandard); }

constexpr Row<UserTimecodeType> kUserTimecodeType[] = {
    {UserTimecodeType::HancVitc, "HancVitc"},
    {UserTimecodeType::HancLtc, "HancLtc"},
    {UserTimecodeType::AnalLtc, "AnalLtc"},
};
TEST(UserTimecodeTypeConversions, EveryValueConvertsBothWays) { EXPECT_CONVERTS_BOTH_WAYS(UserTimecodeType, kUserTimecodeType); }

TEST(AssetEnumerationTexts, EnumeratorNamesAreNotTheTextsOfTimecodeStandards)
{
    bool failed = false;
    EXPECT_EQ(ToTimeCodeStandard("SmptePal25", failed), TimeCodeStandard::NotSet);
    EXPECT_TRUE(failed);
    EXPECT_EQ(ToAssetType("Media", failed), AssetType::unknown);
    EXPECT_TRUE(failed);
    EXPECT_EQ(ToUserTimecodeType("AnalogLtc", failed), UserTimecodeType::HancVitc);
    EXPECT_TRUE(failed);
}
