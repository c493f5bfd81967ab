#include <Orvik/DataModel/MediaAssets/VideoCodingFormat.h>

#include <Orvik/BusinessEntityModel/BaseTypes/StringAssociation.h>

namespace Orvik::DataModel::MediaAssets {
namespace {

using BusinessEntityModel::BaseTypes::StringAssociation;

const StringAssociation<VideoCodingFormat>& GetConverter()
{
    static const StringAssociation<VideoCodingFormat> converter(
        {
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
        },
        VideoCodingFormat::unknown);
    return converter;
}

}  // namespace

const std::string& ToString(VideoCodingFormat value) { return GetConverter().ToString(value); }
VideoCodingFormat ToVideoCodingFormat(const std::string& text) { return GetConverter().ToEnum(text); }
VideoCodingFormat ToVideoCodingFormat(const std::string& text, bool& failed) { return GetConverter().ToEnum(text, failed); }

}  // namespace Orvik::DataModel::MediaAssets
