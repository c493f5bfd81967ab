#pragma once

#include <cstdint>
#include <string>

namespace Orvik::DataModel::MediaAssets {

/// How a stream is wrapped: its container format.
/// The text of each value is its enumerator name, letter for letter.
enum class WrapperFormat : int32_t {
    unknown = 0,
    AIFF = 1,
    ASF = 2,
    AVI = 3,
    BDAVMPEGTS = 4,
    BWAVE = 5,
    DCP = 6,
    ORVIKMPEGMultistream = 7,
    ORVIKMXF = 8,
    ORVIKZAN = 9,
    HLS = 10,
    ISO_BMFF = 11,
    MP4 = 12,
    MPEGDASH = 13,
    MPEGPS = 14,
    MPEGTS = 15,
    MXFOP1a = 16,
    MXFOP1a_AFN100 = 17,
    MXFOP1a_ARDZDFHDF = 18,
    MXFOP1a_AS11UKDPP = 19,
    MXFOP1a_SonyXAVC = 20,
    MXFOP1a_SonyXDCAMSxS = 21,
    MXFOP1a_SonyXDCAM = 22,
    MXFOP1b = 23,
    MXFOPAtom_Avid = 24,
    MXFOPAtom_P2 = 25,
    QuickTime = 26,
    QuickTimeRef = 27,
    RAW = 28,
    R3D = 29,
    SmoothStreaming = 30,
    VOB = 31,
    WAVE = 32,
    WebM = 33,
    DaxContentTrack = 34,
    MPEGDASH_Index = 35,
};

/// The text of `value`; a number that is no WrapperFormat gives "unknown". The reference stays valid
/// for the life of the process.
const std::string& ToString(WrapperFormat value);
/// Exact and case-sensitive; a text that is no WrapperFormat gives WrapperFormat::unknown.
WrapperFormat ToWrapperFormat(const std::string& text);
/// As above; `failed` is true when the text was not found, telling a real unknown from an unknown text.
WrapperFormat ToWrapperFormat(const std::string& text, bool& failed);

}  // namespace Orvik::DataModel::MediaAssets
