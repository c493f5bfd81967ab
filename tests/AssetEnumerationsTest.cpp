#include <Orvik/DataModel/MediaAssets/AnnotationType.h>
#include <Orvik/DataModel/MediaAssets/ArchiveStatus.h>
#include <Orvik/DataModel/MediaAssets/AssetType.h>
#include <Orvik/DataModel/MediaAssets/Essence.h>
#include <Orvik/DataModel/MediaAssets/Location.h>
#include <Orvik/DataModel/MediaAssets/TimeCodeStandard.h>
#include <Orvik/DataModel/MediaAssets/TimecodePrimary.h>
#include <Orvik/DataModel/MediaAssets/UserTimecodeType.h>

#include "EnumerationTexts.h"

using namespace Orvik::DataModel::MediaAssets;

TEST(AssetEnumerationTexts, EveryEnumerationPublishesItsTextsByNumber)
{
    EXPECT_PUBLISHED_TEXTS(AnnotationType, Texts("unknown CuePoint"));
    EXPECT_PUBLISHED_TEXTS(ArchiveStatus, Texts("None ToArchive Archived"));
    EXPECT_PUBLISHED_TEXTS(AssetType, Texts("unknown train media"));
    EXPECT_PUBLISHED_TEXTS(TimecodePrimary, Texts("NotSet Tod User"));
    EXPECT_PUBLISHED_TEXTS(TimeCodeStandard, Texts("NotSet smpte.pal.25 smpte.ntsc.30.drop smpte.ntsc.30.nodrop"));
    EXPECT_PUBLISHED_TEXTS(UserTimecodeType, Texts("HancVitc HancLtc AnalLtc"));
}

TEST(AssetEnumerationTexts, NestedTypesConvertThroughTheirClass)
{
    ExpectPublishedTexts<Essence::Type>(
        Texts("Audio Data Video"), [](Essence::Type type) { return Essence::ToString(type); },
        [](const std::string& text) { return Essence::ToType(text); },
        [](const std::string& text, bool& failed) { return Essence::ToType(text, failed); });
    ExpectPublishedTexts<Location::Type>(
        Texts("FileLocation DaxContentTrackLocation DaxProtectLocation ZanLocation"),
        [](Location::Type type) { return Location::ToString(type); },
        [](const std::string& text) { return Location::ToType(text); },
        [](const std::string& text, bool& failed) { return Location::ToType(text, failed); });
}

TEST(AssetEnumerationTexts, EnumeratorNameIsNotTheTextOfATimecodeStandard)
{
    bool failed = false;
    EXPECT_EQ(ToTimeCodeStandard("SmptePal25", failed), TimeCodeStandard::NotSet);
    EXPECT_TRUE(failed);
}
