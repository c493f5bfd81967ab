#include <Orvik/DataModel/MediaAssets/WrapperFormat.h>

#include <Orvik/BusinessEntityModel/BaseTypes/StringAssociation.h>

namespace Orvik::DataModel::MediaAssets {
namespace {

using BusinessEntityModel::BaseTypes::StringAssociation;

const StringAssociation<WrapperFormat>& GetConverter()
{
    static const StringAssociation<WrapperFormat> converter(
        {
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
        },
        WrapperFormat::unknown);
    return converter;
}

}  // namespace

const std::string& ToString(WrapperFormat value) { return GetConverter().ToString(value); }
WrapperFormat ToWrapperFormat(const std::string& text) { return GetConverter().ToEnum(text); }
WrapperFormat ToWrapperFormat(const std::string& text, bool& failed) { return GetConverter().ToEnum(text, failed); }

}  // namespace Orvik::DataModel::MediaAssets
