#include <Orvik/DataModel/MediaAssets/WrapperFormat.h>
#include <Orvik/DataModel/MediaAssets/ResourceFormat.h>
#include <Orvik/DataModel/MediaAssets/AudioCodingFormat.h>
#include <Orvik/DataModel/MediaAssets/VideoCodingFormat.h>
#include <Orvik/DataModel/MediaAssets/BitRateMode.h>
#include <Orvik/DataModel/MediaAssets/ChromaSubSampling.h>
#include <Orvik/DataModel/MediaAssets/ColorSpace.h>
#include <Orvik/DataModel/MediaAssets/ScanMode.h>
#include <Orvik/DataModel/MediaAssets/Boxing.h>
#include <Orvik/DataModel/MediaAssets/FieldOrdering.h>
#include <Orvik/DataModel/MediaAssets/FillAndKeyType.h>

#include "EnumerationConversions.h"

#include <gtest/gtest.h>

using namespace Orvik::DataModel::MediaAssets;

constexpr Row<WrapperFormat> kWrapperFormat[] = {
    {WrapperFormat::unknown, "unknown"},
    {WrapperFormat::AIFF, "AIFF"},
    {WrapperFormat::ASF, "ASF"},
    {WrapperFormat::AVI, "AVI"},
    {WrapperFormat::BDAVMPEGTS, "BDAVMPEGTS"},
    {WrapperFormat::BWAVE, "BWAVE"},
    {WrapperFormat::DCP, "DCP"},
    {WrapperFormat::ORVIKMPEGMultistream, "ORVIKMPEGMultistream"},
    {WrapperFormat::ORVIKMXF, "ORVIKMXF"},
    {WrapperFormat::ORVIKZAN, "ORVIKZAN"},
    {WrapperFormat::HLS, "HLS"},
    {WrapperFormat::ISO_BMFF, "ISO_BMFF"},
    {WrapperFormat::MP4, "MP4"},
    {WrapperFormat::MPEGDASH, "MPEGDASH"},
    {WrapperFormat::MPEGPS, "MPEGPS"},
    {WrapperFormat::MPEGTS, "MPEGTS"},
    {WrapperFormat::MXFOP1a, "MXFOP1a"},
    {WrapperFormat::MXFOP1a_AFN100, "MXFOP1a_AFN100"},
    {WrapperFormat::MXFOP1a_ARDZDFHDF, "MXFOP1a_ARDZDFHDF"},
    {WrapperFormat::MXFOP1a_AS11UKDPP, "MXFOP1a_AS11UKDPP"},
    {WrapperFormat::MXFOP1a_SonyXAVC, "MXFOP1a_SonyXAVC"},
    {WrapperFormat::MXFOP1a_SonyXDCAMSxS, "MXFOP1a_SonyXDCAMSxS"},
    {WrapperFormat::MXFOP1a_SonyXDCAM, "MXFOP1a_SonyXDCAM"},
    {WrapperFormat::MXFOP1b, "MXFOP1b"},
    {WrapperFormat::MXFOPAtom_Avid, "MXFOPAtom_Avid"},
    {WrapperFormat::MXFOPAtom_P2, "MXFOPAtom_P2"},
    {WrapperFormat::QuickTime, "QuickTime"},
    {WrapperFormat::QuickTimeRef, "QuickTimeRef"},
    {WrapperFormat::RAW, "RAW"},
    {WrapperFormat::R3D, "R3D"},
    {WrapperFormat::SmoothStreaming, "SmoothStreaming"},
    {WrapperFormat::VOB, "VOB"},
    {WrapperFormat::WAVE, "WAVE"},
    {WrapperFormat::WebM, "WebM"},
    {WrapperFormat::DaxContentTrack, "DaxContentTrack"},
    {WrapperFormat::MPEGDASH_Index, "MPEGDASH_Index"},
};
TEST(WrapperFormatConversions, EveryValueConvertsBothWays) { EXPECT_CONVERTS_BOTH_WAYS(WrapperFormat, kWrapperFormat); }

constexpr Row<ResourceFormat> kResourceFormat[] = {
    {ResourceFormat::unknown, "unknown"},
    {ResourceFormat::ToBeDefined, "ToBeDefined"},
};
TEST(ResourceFormatConversions, EveryValueConvertsBothWays) { EXPECT_CONVERTS_BOTH_WAYS(ResourceFormat, kResourceFormat); }

constexpr Row<AudioCodingFormat> kAudioCodingFormat[] = {
    {AudioCodingFormat::unknown, "unknown"},
    {AudioCodingFormat::AAC, "AAC"},
    {AudioCodingFormat::Alaw, "Alaw"},
    {AudioCodingFormat::DolbyE, "DolbyE"},
    {AudioCodingFormat::MP1, "MP1"},
    {AudioCodingFormat::MP2, "MP2"},
    {AudioCodingFormat::MP3, "MP3"},
    {AudioCodingFormat::PCM, "PCM"},
    {AudioCodingFormat::WMA, "WMA"},
};
TEST(AudioCodingFormatConversions, EveryValueConvertsBothWays) { EXPECT_CONVERTS_BOTH_WAYS(AudioCodingFormat, kAudioCodingFormat); }

constexpr Row<VideoCodingFormat> kVideoCodingFormat[] = {
    {VideoCodingFormat::unknown, "unknown"},
    {VideoCodingFormat::AppleProRes422, "AppleProRes422"},
    {VideoCodingFormat::AppleProRes422HQ, "AppleProRes422HQ"},
    {VideoCodingFormat::AppleProRes422LT, "AppleProRes422LT"},
    {VideoCodingFormat::AppleProRes422Proxy, "AppleProRes422Proxy"},
    {VideoCodingFormat::AppleProRes4444, "AppleProRes4444"},
    {VideoCodingFormat::AppleProRes4444XQ, "AppleProRes4444XQ"},
    {VideoCodingFormat::AppleQuickTimeRLE, "AppleQuickTimeRLE"},
    {VideoCodingFormat::AvidDNxHDLow, "AvidDNxHDLow"},
    {VideoCodingFormat::AvidDNxHDHigh, "AvidDNxHDHigh"},
    {VideoCodingFormat::AvidDNxHDHigh10b, "AvidDNxHDHigh10b"},
    {VideoCodingFormat::BMP, "BMP"},
    {VideoCodingFormat::CameraRaw, "CameraRaw"},
    {VideoCodingFormat::DPX, "DPX"},
    {VideoCodingFormat::DV25, "DV25"},
    {VideoCodingFormat::DVCPRO, "DVCPRO"},
    {VideoCodingFormat::DVCPRO50, "DVCPRO50"},
    {VideoCodingFormat::DVCPROHD, "DVCPROHD"},
    {VideoCodingFormat::ORVIKCGTemplate, "ORVIKCGTemplate"},
    {VideoCodingFormat::ORVIKKM, "ORVIKKM"},
    {VideoCodingFormat::ORVIKMJPEG, "ORVIKMJPEG"},
    {VideoCodingFormat::GXFillAndKey, "GXFillAndKey"},
    {VideoCodingFormat::H264, "H264"},
    {VideoCodingFormat::H265, "H265"},
    {VideoCodingFormat::JPEG, "JPEG"},
    {VideoCodingFormat::JPEG2000, "JPEG2000"},
    {VideoCodingFormat::MJPEG, "MJPEG"},
    {VideoCodingFormat::MPEG1, "MPEG1"},
    {VideoCodingFormat::MPEG2, "MPEG2"},
    {VideoCodingFormat::MPEG4, "MPEG4"},
    {VideoCodingFormat::PanasonicAVCIntraHD100, "PanasonicAVCIntraHD100"},
    {VideoCodingFormat::PanasonicAVCIntraHD50, "PanasonicAVCIntraHD50"},
    {VideoCodingFormat::PanasonicAVCLongG, "PanasonicAVCLongG"},
    {VideoCodingFormat::PNG, "PNG"},
    {VideoCodingFormat::Raw, "Raw"},
    {VideoCodingFormat::REDCODERaw, "REDCODERaw"},
    {VideoCodingFormat::SGI, "SGI"},
    {VideoCodingFormat::SonyIMX30, "SonyIMX30"},
    {VideoCodingFormat::SonyIMX40, "SonyIMX40"},
    {VideoCodingFormat::SonyIMX50, "SonyIMX50"},
    {VideoCodingFormat::SonyXAVCLongGOP, "SonyXAVCLongGOP"},
    {VideoCodingFormat::SonyXAVCIntra4K100, "SonyXAVCIntra4K100"},
    {VideoCodingFormat::SonyXAVCIntra4K300, "SonyXAVCIntra4K300"},
    {VideoCodingFormat::SonyXAVCIntra4K480, "SonyXAVCIntra4K480"},
    {VideoCodingFormat::SonyXAVCIntraHD100, "SonyXAVCIntraHD100"},
    {VideoCodingFormat::SonyXAVCIntraHD200, "SonyXAVCIntraHD200"},
    {VideoCodingFormat::SonyXAVCIntraHD50, "SonyXAVCIntraHD50"},
    {VideoCodingFormat::SonyXDCAMEX, "SonyXDCAMEX"},
    {VideoCodingFormat::SonyXDCAMHD, "SonyXDCAMHD"},
    {VideoCodingFormat::TIFF, "TIFF"},
    {VideoCodingFormat::TGA, "TGA"},
    {VideoCodingFormat::VC1, "VC1"},
    {VideoCodingFormat::VP8, "VP8"},
    {VideoCodingFormat::VP9, "VP9"},
};
TEST(VideoCodingFormatConversions, EveryValueConvertsBothWays) { EXPECT_CONVERTS_BOTH_WAYS(VideoCodingFormat, kVideoCodingFormat); }

constexpr Row<BitRateMode> kBitRateMode[] = {
    {BitRateMode::unknown, "unknown"},
    {BitRateMode::cbr, "cbr"},
    {BitRateMode::vbr, "vbr"},
};
TEST(BitRateModeConversions, EveryValueConvertsBothWays) { EXPECT_CONVERTS_BOTH_WAYS(BitRateMode, kBitRateMode); }

constexpr Row<ChromaSubSampling> kChromaSubSampling[] = {
    {ChromaSubSampling::unknown, "unknown"},
    {ChromaSubSampling::CS_444, "CS_444"},
    {ChromaSubSampling::CS_422, "CS_422"},
    {ChromaSubSampling::CS_421, "CS_421"},
    {ChromaSubSampling::CS_411, "CS_411"},
    {ChromaSubSampling::CS_420, "CS_420"},
    {ChromaSubSampling::CS_410, "CS_410"},
    {ChromaSubSampling::CS_311, "CS_311"},
};
TEST(ChromaSubSamplingConversions, EveryValueConvertsBothWays) { EXPECT_CONVERTS_BOTH_WAYS(ChromaSubSampling, kChromaSubSampling); }

constexpr Row<ColorSpace> kColorSpace[] = {
    {ColorSpace::unknown, "unknown"},
    {ColorSpace::BT709, "BT709"},
    {ColorSpace::BT601, "BT601"},
    {ColorSpace::BT601_JPEG, "BT601_JPEG"},
    {ColorSpace::BT2020, "BT2020"},
    {ColorSpace::FCC, "FCC"},
    {ColorSpace::SMPTE_170M, "SMPTE_170M"},
    {ColorSpace::SMPTE_240M, "SMPTE_240M"},
    {ColorSpace::SRGB, "SRGB"},
};
TEST(ColorSpaceConversions, EveryValueConvertsBothWays) { EXPECT_CONVERTS_BOTH_WAYS(ColorSpace, kColorSpace); }

constexpr Row<ScanMode> kScanMode[] = {
    {ScanMode::unknown, "unknown"},
    {ScanMode::progressive, "progressive"},
    {ScanMode::interlaced, "interlaced"},
};
TEST(ScanModeConversions, EveryValueConvertsBothWays) { EXPECT_CONVERTS_BOTH_WAYS(ScanMode, kScanMode); }

constexpr Row<Boxing> kBoxing[] = {
    {Boxing::unknown, "unknown"},
    {Boxing::topaligned, "topaligned"},
    {Boxing::wide, "wide"},
    {Boxing::fullframe, "fullframe"},
    {Boxing::pillarbox, "pillarbox"},
    {Boxing::letterbox, "letterbox"},
    {Boxing::window, "window"},
    {Boxing::protect14x9, "protect14x9"},
    {Boxing::protect4x3, "protect4x3"},
};
TEST(BoxingConversions, EveryValueConvertsBothWays) { EXPECT_CONVERTS_BOTH_WAYS(Boxing, kBoxing); }

constexpr Row<FieldOrdering> kFieldOrdering[] = {
    {FieldOrdering::unknown, "unknown"},
    {FieldOrdering::top, "top"},
    {FieldOrdering::bottom, "bottom"},
};
TEST(FieldOrderingConversions, EveryValueConvertsBothWays) { EXPECT_CONVERTS_BOTH_WAYS(FieldOrdering, kFieldOrdering); }

constexpr Row<FillAndKeyType> kFillAndKeyType[] = {
    {FillAndKeyType::unknown, "unknown"},
    {FillAndKeyType::fill, "fill"},
    {FillAndKeyType::key, "key"},
};
TEST(FillAndKeyTypeConversions, EveryValueConvertsBothWays) { EXPECT_CONVERTS_BOTH_WAYS(FillAndKeyType, kFillAndKeyType); }

TEST(MediaFormatTexts, CaseAndLookalikesMatter)
{
    bool failed = false;
    EXPECT_EQ(ToVideoCodingFormat("RAW", failed), VideoCodingFormat::unknown);
    EXPECT_TRUE(failed);
    EXPECT_EQ(ToWrapperFormat("Raw", failed), WrapperFormat::unknown);
    EXPECT_TRUE(failed);
    EXPECT_EQ(ToBitRateMode("CBR", failed), BitRateMode::unknown);
    EXPECT_TRUE(failed);
    EXPECT_EQ(ToWrapperFormat("MXFOP1a_SonyXDCAMSxS"), static_cast<WrapperFormat>(21));
    EXPECT_EQ(ToWrapperFormat("MXFOP1a_SonyXDCAM"), static_cast<WrapperFormat>(22));
    EXPECT_EQ(ToWrapperFormat("MPEGDASH_Index"), static_cast<WrapperFormat>(35));
}

TEST(MediaFormatTexts, RepeatedCallsReturnTheSameStringObject)
{
    EXPECT_EQ(&ToString(VideoCodingFormat::H264), &ToString(VideoCodingFormat::H264));
    EXPECT_EQ(&ToString(static_cast<ScanMode>(42)), &ToString(ScanMode::unknown));
}
