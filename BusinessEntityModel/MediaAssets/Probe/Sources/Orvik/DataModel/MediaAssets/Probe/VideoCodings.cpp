// Video codec, profile, bit depth, frame size and bit rate to the model's video coding format.

#include "MappingTables.h"

#include <cstdlib>

namespace Orvik::DataModel::MediaAssets::Probe {
namespace {

using Facts = VideoFacts;
using F = VideoCodingFormat;
using M = BitRateMode;

struct Row {
    AVCodecID codec;
    bool (*matches)(const Facts&);
    VideoCodingFormat format;
    BitRateMode bitRateMode;
};

bool Any(const Facts&) { return true; }

/// Within a tenth of `megabits` per second, as the nominal rates of a coding family are.
bool Near(const Facts& video, int64_t megabits)
{
    return std::llabs(video.bitRate - megabits * 1000000) <= megabits * 100000;
}

/// A ProRes profile, as the stream's profile or the sample description's FourCC names it.
bool ProRes(const Facts& video, int profile, const char* fourCC)
{
    return video.profile == profile || video.fourCC == fourCC;
}

bool Dnxhd(const Facts& video) { return video.profile == FF_PROFILE_DNXHD || video.profile == FF_PROFILE_UNKNOWN; }

bool Mpeg2Profile422(const Facts& video) { return video.profile == FF_PROFILE_MPEG2_422; }

/// D-10's standard-definition rasters: 608 and 512 lines carry the vertical interval.
bool D10Raster(const Facts& video)
{
    return video.inMxf && Mpeg2Profile422(video) && video.width == 720
        && (video.height == 608 || video.height == 576 || video.height == 512 || video.height == 486);
}

bool HdRaster(const Facts& video)
{
    return (video.width == 1920 && video.height == 1080) || (video.width == 1280 && video.height == 720);
}

// One row a line, read as a table.
// clang-format off
const Row kRows[] = {
    {AV_CODEC_ID_PRORES, [](const Facts& v) { return ProRes(v, FF_PROFILE_PRORES_PROXY, "apco"); }, F::AppleProRes422Proxy, M::vbr},
    {AV_CODEC_ID_PRORES, [](const Facts& v) { return ProRes(v, FF_PROFILE_PRORES_LT, "apcs"); }, F::AppleProRes422LT, M::vbr},
    {AV_CODEC_ID_PRORES, [](const Facts& v) { return ProRes(v, FF_PROFILE_PRORES_STANDARD, "apcn"); }, F::AppleProRes422, M::vbr},
    {AV_CODEC_ID_PRORES, [](const Facts& v) { return ProRes(v, FF_PROFILE_PRORES_HQ, "apch"); }, F::AppleProRes422HQ, M::vbr},
    {AV_CODEC_ID_PRORES, [](const Facts& v) { return ProRes(v, FF_PROFILE_PRORES_4444, "ap4h"); }, F::AppleProRes4444, M::vbr},
    {AV_CODEC_ID_PRORES, [](const Facts& v) { return ProRes(v, FF_PROFILE_PRORES_XQ, "ap4x"); }, F::AppleProRes4444XQ, M::vbr},
    // DNxHD's classes have fixed frame sizes; the 8-bit ones below 100 Mb/s (36, 45, 60, 75, 90)
    // are the low-bandwidth ones. DNxHR's resolution-independent profiles have no row.
    {AV_CODEC_ID_DNXHD, [](const Facts& v) { return Dnxhd(v) && v.bitDepth == 10; }, F::AvidDNxHDHigh10b, M::cbr},
    {AV_CODEC_ID_DNXHD, [](const Facts& v) { return Dnxhd(v) && v.bitDepth == 8 && v.bitRate > 0 && v.bitRate < 100000000; }, F::AvidDNxHDLow, M::cbr},
    {AV_CODEC_ID_DNXHD, [](const Facts& v) { return Dnxhd(v) && v.bitDepth == 8 && v.bitRate >= 100000000; }, F::AvidDNxHDHigh, M::cbr},
    {AV_CODEC_ID_MPEG2VIDEO, [](const Facts& v) { return D10Raster(v) && Near(v, 30); }, F::SonyIMX30, M::cbr},
    {AV_CODEC_ID_MPEG2VIDEO, [](const Facts& v) { return D10Raster(v) && Near(v, 40); }, F::SonyIMX40, M::cbr},
    {AV_CODEC_ID_MPEG2VIDEO, [](const Facts& v) { return D10Raster(v) && Near(v, 50); }, F::SonyIMX50, M::cbr},
    {AV_CODEC_ID_MPEG2VIDEO, [](const Facts& v) { return Mpeg2Profile422(v) && HdRaster(v) && Near(v, 50); }, F::SonyXDCAMHD, M::unknown},
    {AV_CODEC_ID_MPEG2VIDEO, Any, F::MPEG2, M::unknown},
    {AV_CODEC_ID_MPEG1VIDEO, Any, F::MPEG1, M::unknown},
    {AV_CODEC_ID_H264, [](const Facts& v) { return v.profile == FF_PROFILE_H264_HIGH_10_INTRA && (v.width == 1440 || v.width == 960); }, F::PanasonicAVCIntraHD50, M::cbr},
    {AV_CODEC_ID_H264, [](const Facts& v) { return v.profile == FF_PROFILE_H264_HIGH_422_INTRA && (v.width == 1920 || v.width == 1280); }, F::PanasonicAVCIntraHD100, M::cbr},
    {AV_CODEC_ID_H264, Any, F::H264, M::unknown},
    {AV_CODEC_ID_HEVC, Any, F::H265, M::unknown},
    // DV at 4:1:1 on 480 lines is consumer DV or DVCPRO, which the stream does not tell apart:
    // no row.
    {AV_CODEC_ID_DVVIDEO, [](const Facts& v) { return v.width == 1440 || v.width == 1280 || v.width == 960; }, F::DVCPROHD, M::cbr},
    {AV_CODEC_ID_DVVIDEO, [](const Facts& v) { return v.chroma == ChromaSubSampling::CS_422; }, F::DVCPRO50, M::cbr},
    {AV_CODEC_ID_DVVIDEO, [](const Facts& v) { return v.chroma == ChromaSubSampling::CS_411 && v.height == 576; }, F::DVCPRO, M::cbr},
    {AV_CODEC_ID_DVVIDEO, [](const Facts& v) { return v.chroma == ChromaSubSampling::CS_420; }, F::DV25, M::cbr},
    {AV_CODEC_ID_JPEG2000, Any, F::JPEG2000, M::unknown},
    {AV_CODEC_ID_MJPEG, [](const Facts& v) { return v.stillImage; }, F::JPEG, M::unknown},
    {AV_CODEC_ID_MJPEG, Any, F::MJPEG, M::unknown},
    {AV_CODEC_ID_PNG, Any, F::PNG, M::unknown},
    {AV_CODEC_ID_BMP, Any, F::BMP, M::unknown},
    {AV_CODEC_ID_TIFF, Any, F::TIFF, M::unknown},
    {AV_CODEC_ID_TARGA, Any, F::TGA, M::unknown},
    {AV_CODEC_ID_DPX, Any, F::DPX, M::unknown},
    {AV_CODEC_ID_SGI, Any, F::SGI, M::unknown},
    {AV_CODEC_ID_QTRLE, Any, F::AppleQuickTimeRLE, M::unknown},
    {AV_CODEC_ID_VP8, Any, F::VP8, M::unknown},
    {AV_CODEC_ID_VP9, Any, F::VP9, M::unknown},
    {AV_CODEC_ID_VC1, Any, F::VC1, M::unknown},
    {AV_CODEC_ID_WMV3, Any, F::VC1, M::unknown},
    {AV_CODEC_ID_MPEG4, Any, F::MPEG4, M::unknown},
    {AV_CODEC_ID_RAWVIDEO, Any, F::Raw, M::unknown},
};
// clang-format on

/// "dnxhd profile DNXHR LB, 8-bit, 4:2:2, 1920x1080, 120000000 b/s": what the warning names.
std::string Seen(const Facts& video)
{
    std::string seen = avcodec_get_name(video.codec);
    if (const char* profile = avcodec_profile_name(video.codec, video.profile))
        seen += std::string(" profile ") + profile;
    seen += ", " + std::to_string(video.bitDepth) + "-bit, " + ToString(video.chroma) + ", " + std::to_string(video.width)
        + "x" + std::to_string(video.height);
    if (video.bitRate > 0)
        seen += ", " + std::to_string(video.bitRate) + " b/s";
    return seen;
}

}  // namespace

VideoCoding MapVideoCoding(const VideoFacts& video, Warnings& warnings)
{
    for (const Row& row : kRows)
        if (row.codec == video.codec && row.matches(video))
            return {row.format, row.bitRateMode};
    warnings.Unmapped("video stream " + std::to_string(video.stream) + ": no video coding format for " + Seen(video));
    return {VideoCodingFormat::unknown, BitRateMode::unknown};
}

}  // namespace Orvik::DataModel::MediaAssets::Probe
