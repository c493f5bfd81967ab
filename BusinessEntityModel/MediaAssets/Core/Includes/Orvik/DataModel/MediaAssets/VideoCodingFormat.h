#pragma once

#include <cstdint>
#include <string>

namespace Orvik::DataModel::MediaAssets {

/// How a video essence is coded.
/// The text of each value is its enumerator name, letter for letter.
enum class VideoCodingFormat : int32_t {
    unknown = 0,
    AppleProRes422 = 1,
    AppleProRes422HQ = 2,
    AppleProRes422LT = 3,
    AppleProRes422Proxy = 4,
    AppleProRes4444 = 5,
    AppleProRes4444XQ = 6,
    AppleQuickTimeRLE = 7,
    AvidDNxHDLow = 8,
    AvidDNxHDHigh = 9,
    AvidDNxHDHigh10b = 10,
    BMP = 11,
    CameraRaw = 12,
    DPX = 13,
    DV25 = 14,
    DVCPRO = 15,
    DVCPRO50 = 16,
    DVCPROHD = 17,
    ORVIKCGTemplate = 18,
    ORVIKKM = 19,
    ORVIKMJPEG = 20,
    GXFillAndKey = 21,
    H264 = 22,
    H265 = 23,
    JPEG = 24,
    JPEG2000 = 25,
    MJPEG = 26,
    MPEG1 = 27,
    MPEG2 = 28,
    MPEG4 = 29,
    PanasonicAVCIntraHD100 = 30,
    PanasonicAVCIntraHD50 = 31,
    PanasonicAVCLongG = 32,
    PNG = 33,
    Raw = 34,
    REDCODERaw = 35,
    SGI = 36,
    SonyIMX30 = 37,
    SonyIMX40 = 38,
    SonyIMX50 = 39,
    SonyXAVCLongGOP = 40,
    SonyXAVCIntra4K100 = 41,
    SonyXAVCIntra4K300 = 42,
    SonyXAVCIntra4K480 = 43,
    SonyXAVCIntraHD100 = 44,
    SonyXAVCIntraHD200 = 45,
    SonyXAVCIntraHD50 = 46,
    SonyXDCAMEX = 47,
    SonyXDCAMHD = 48,
    TIFF = 49,
    TGA = 50,
    VC1 = 51,
    VP8 = 52,
    VP9 = 53,
};

/// The text of `value`; a number that is no VideoCodingFormat gives "unknown". The reference stays valid
/// for the life of the process.
const std::string& ToString(VideoCodingFormat value);
/// Exact and case-sensitive; a text that is no VideoCodingFormat gives VideoCodingFormat::unknown.
VideoCodingFormat ToVideoCodingFormat(const std::string& text);
/// As above; `failed` is true when the text was not found, telling a real unknown from an unknown text.
VideoCodingFormat ToVideoCodingFormat(const std::string& text, bool& failed);

}  // namespace Orvik::DataModel::MediaAssets
