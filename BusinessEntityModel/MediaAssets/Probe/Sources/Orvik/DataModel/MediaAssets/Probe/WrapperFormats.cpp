// Container (the demuxer that reads it, and what tells its variants apart) to the model's wrapper
// format.

#include "MappingTables.h"

namespace Orvik::DataModel::MediaAssets::Probe {
namespace {

using Facts = ContainerFacts;
using F = WrapperFormat;

struct Row {
    std::string_view demuxer;
    bool (*matches)(const Facts&);
    WrapperFormat format;
};

bool Any(const Facts&) { return true; }

constexpr char kIsoDemuxer[] = "mov,mp4,m4a,3gp,3g2,mj2";

/// The brands of the MP4 family; a file without a file type box is a classic QuickTime movie.
bool Mp4Brand(const Facts& container)
{
    for (std::string_view brand : {"isom", "iso2", "iso3", "iso4", "iso5", "iso6", "mp41", "mp42", "avc1", "M4V ", "M4A "})
        if (container.brand == brand)
            return true;
    return false;
}

const Row kRows[] = {
    {"mxf", [](const Facts& c) { return c.pattern == "OP1a"; }, F::MXFOP1a},
    {"mxf", [](const Facts& c) { return c.pattern == "OP1b"; }, F::MXFOP1b},
    {kIsoDemuxer, [](const Facts& c) { return c.brand.empty() || c.brand == "qt  "; }, F::QuickTime},
    {kIsoDemuxer, Mp4Brand, F::MP4},
    {kIsoDemuxer, Any, F::ISO_BMFF},
    {"wav", [](const Facts& c) { return c.broadcastExtension; }, F::BWAVE},
    {"wav", Any, F::WAVE},
    {"aiff", Any, F::AIFF},
    {"avi", Any, F::AVI},
    {"mpegts", Any, F::MPEGTS},
    {"mpeg", Any, F::MPEGPS},
    {"matroska,webm", [](const Facts& c) { return c.docType == "webm"; }, F::WebM},
    {"asf", Any, F::ASF},
    // Elementary streams and single pictures, with no wrapper around them.
    {"dv", Any, F::RAW},
    {"mpegvideo", Any, F::RAW},
    {"m4v", Any, F::RAW},
    {"h264", Any, F::RAW},
    {"hevc", Any, F::RAW},
    {"vc1", Any, F::RAW},
    {"mjpeg", Any, F::RAW},
    {"mp3", Any, F::RAW},
    {"aac", Any, F::RAW},
    {"ac3", Any, F::RAW},
    {"eac3", Any, F::RAW},
    {"flac", Any, F::RAW},
    {"bmp_pipe", Any, F::RAW},
    {"dpx_pipe", Any, F::RAW},
    {"j2k_pipe", Any, F::RAW},
    {"jpeg_pipe", Any, F::RAW},
    {"png_pipe", Any, F::RAW},
    {"sgi_pipe", Any, F::RAW},
    {"tiff_pipe", Any, F::RAW},
};

/// "MXF operational pattern OP2a", "Matroska DocType matroska", or the demuxer's name.
std::string Seen(const Facts& container)
{
    if (container.demuxer == "mxf")
        return "MXF operational pattern " + (container.pattern.empty() ? std::string("(none)") : container.pattern);
    if (container.demuxer == "matroska,webm")
        return "Matroska DocType " + container.docType;
    return "the container " + std::string(container.demuxer);
}

}  // namespace

WrapperFormat MapWrapperFormat(const ContainerFacts& container, Warnings& warnings)
{
    for (const Row& row : kRows)
        if (row.demuxer == container.demuxer && row.matches(container))
            return row.format;
    warnings.Unmapped("no wrapper format for " + Seen(container));
    return WrapperFormat::unknown;
}

}  // namespace Orvik::DataModel::MediaAssets::Probe
