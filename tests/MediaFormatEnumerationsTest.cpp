#include <Orvik/DataModel/MediaAssets/AudioCodingFormat.h>
#include <Orvik/DataModel/MediaAssets/BitRateMode.h>
#include <Orvik/DataModel/MediaAssets/Boxing.h>
#include <Orvik/DataModel/MediaAssets/ChromaSubSampling.h>
#include <Orvik/DataModel/MediaAssets/ColorSpace.h>
#include <Orvik/DataModel/MediaAssets/FieldOrdering.h>
#include <Orvik/DataModel/MediaAssets/FillAndKeyType.h>
#include <Orvik/DataModel/MediaAssets/ResourceFormat.h>
#include <Orvik/DataModel/MediaAssets/ScanMode.h>
#include <Orvik/DataModel/MediaAssets/VideoCodingFormat.h>
#include <Orvik/DataModel/MediaAssets/WrapperFormat.h>

#include "EnumerationTexts.h"

using namespace Orvik::DataModel::MediaAssets;

TEST(MediaFormatTexts, EveryEnumerationPublishesItsTextsByNumber)
{
    EXPECT_PUBLISHED_TEXTS(
        WrapperFormat,
        Texts("unknown AIFF ASF AVI BDAVMPEGTS BWAVE DCP ORVIKMPEGMultistream ORVIKMXF ORVIKZAN HLS ISO_BMFF MP4 MPEGDASH "
              "MPEGPS MPEGTS MXFOP1a MXFOP1a_AFN100 MXFOP1a_ARDZDFHDF MXFOP1a_AS11UKDPP MXFOP1a_SonyXAVC "
              "MXFOP1a_SonyXDCAMSxS MXFOP1a_SonyXDCAM MXFOP1b MXFOPAtom_Avid MXFOPAtom_P2 QuickTime QuickTimeRef RAW R3D "
              "SmoothStreaming VOB WAVE WebM DaxContentTrack MPEGDASH_Index"));
    EXPECT_PUBLISHED_TEXTS(
        VideoCodingFormat,
        Texts("unknown AppleProRes422 AppleProRes422HQ AppleProRes422LT AppleProRes422Proxy AppleProRes4444 "
              "AppleProRes4444XQ AppleQuickTimeRLE AvidDNxHDLow AvidDNxHDHigh AvidDNxHDHigh10b BMP CameraRaw DPX DV25 "
              "DVCPRO DVCPRO50 DVCPROHD ORVIKCGTemplate ORVIKKM ORVIKMJPEG GXFillAndKey H264 H265 JPEG JPEG2000 MJPEG MPEG1 "
              "MPEG2 MPEG4 PanasonicAVCIntraHD100 PanasonicAVCIntraHD50 PanasonicAVCLongG PNG Raw REDCODERaw SGI SonyIMX30 "
              "SonyIMX40 SonyIMX50 SonyXAVCLongGOP SonyXAVCIntra4K100 SonyXAVCIntra4K300 SonyXAVCIntra4K480 "
              "SonyXAVCIntraHD100 SonyXAVCIntraHD200 SonyXAVCIntraHD50 SonyXDCAMEX SonyXDCAMHD TIFF TGA VC1 VP8 VP9"));
    EXPECT_PUBLISHED_TEXTS(AudioCodingFormat, Texts("unknown AAC Alaw DolbyE MP1 MP2 MP3 PCM WMA"));
    EXPECT_PUBLISHED_TEXTS(ResourceFormat, Texts("unknown ToBeDefined"));
    EXPECT_PUBLISHED_TEXTS(BitRateMode, Texts("unknown cbr vbr"));
    EXPECT_PUBLISHED_TEXTS(ChromaSubSampling, Texts("unknown CS_444 CS_422 CS_421 CS_411 CS_420 CS_410 CS_311"));
    EXPECT_PUBLISHED_TEXTS(ColorSpace, Texts("unknown BT709 BT601 BT601_JPEG BT2020 FCC SMPTE_170M SMPTE_240M SRGB"));
    EXPECT_PUBLISHED_TEXTS(ScanMode, Texts("unknown progressive interlaced"));
    EXPECT_PUBLISHED_TEXTS(FieldOrdering, Texts("unknown top bottom"));
    EXPECT_PUBLISHED_TEXTS(Boxing,
                           Texts("unknown topaligned wide fullframe pillarbox letterbox window protect14x9 protect4x3"));
    EXPECT_PUBLISHED_TEXTS(FillAndKeyType, Texts("unknown fill key"));
}

TEST(MediaFormatTexts, LookalikeTextOfAnotherEnumerationIsNotFound)
{
    bool failed = false;
    EXPECT_EQ(ToVideoCodingFormat("RAW", failed), VideoCodingFormat::unknown);
    EXPECT_TRUE(failed);
    EXPECT_EQ(ToWrapperFormat("Raw", failed), WrapperFormat::unknown);
    EXPECT_TRUE(failed);
    EXPECT_EQ(ToBitRateMode("CBR", failed), BitRateMode::unknown);
    EXPECT_TRUE(failed);
}

TEST(MediaFormatTexts, RepeatedCallsReturnTheSameStringObject)
{
    EXPECT_EQ(&ToString(VideoCodingFormat::H264), &ToString(VideoCodingFormat::H264));
    EXPECT_EQ(&ToString(static_cast<ScanMode>(42)), &ToString(ScanMode::unknown));
}
