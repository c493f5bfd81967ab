// The picture's sampling, colour matrix and scan to the model's chroma subsampling, colour space
// and scan mode.

#include "MappingTables.h"

namespace Orvik::DataModel::MediaAssets::Probe {
namespace {

/// Chroma planes sampled at 1 / 2^horizontal of the width and 1 / 2^vertical of the height.
struct ChromaRow {
    int horizontal;
    int vertical;
    ChromaSubSampling chroma;
};

const ChromaRow kChromaRows[] = {
    {0, 0, ChromaSubSampling::CS_444}, {1, 0, ChromaSubSampling::CS_422}, {1, 1, ChromaSubSampling::CS_420},
    {2, 0, ChromaSubSampling::CS_411}, {2, 2, ChromaSubSampling::CS_410},
};

struct ColorRow {
    AVColorSpace matrix;
    /// AVCOL_RANGE_UNSPECIFIED: any range.
    AVColorRange range;
    ColorSpace space;
};

const ColorRow kColorRows[] = {
    {AVCOL_SPC_BT709, AVCOL_RANGE_UNSPECIFIED, ColorSpace::BT709},
    // Full-range 601 pictures are JPEG's.
    {AVCOL_SPC_BT470BG, AVCOL_RANGE_JPEG, ColorSpace::BT601_JPEG},
    {AVCOL_SPC_SMPTE170M, AVCOL_RANGE_JPEG, ColorSpace::BT601_JPEG},
    {AVCOL_SPC_BT470BG, AVCOL_RANGE_UNSPECIFIED, ColorSpace::BT601},
    {AVCOL_SPC_SMPTE170M, AVCOL_RANGE_UNSPECIFIED, ColorSpace::SMPTE_170M},
    {AVCOL_SPC_BT2020_NCL, AVCOL_RANGE_UNSPECIFIED, ColorSpace::BT2020},
    {AVCOL_SPC_BT2020_CL, AVCOL_RANGE_UNSPECIFIED, ColorSpace::BT2020},
    {AVCOL_SPC_FCC, AVCOL_RANGE_UNSPECIFIED, ColorSpace::FCC},
    {AVCOL_SPC_SMPTE240M, AVCOL_RANGE_UNSPECIFIED, ColorSpace::SMPTE_240M},
    {AVCOL_SPC_RGB, AVCOL_RANGE_UNSPECIFIED, ColorSpace::SRGB},
};

struct ScanRow {
    AVFieldOrder order;
    Scan scan;
};

// FFmpeg's demuxers name an interlaced picture's field order by the field displayed first, then
// the other (QuickTime's "bottom field earliest" comes as BT, for instance), whatever its
// documentation says of coding order.
const ScanRow kScanRows[] = {
    {AV_FIELD_PROGRESSIVE, {ScanMode::progressive, FieldOrdering::unknown}},
    {AV_FIELD_TT, {ScanMode::interlaced, FieldOrdering::top}},
    {AV_FIELD_TB, {ScanMode::interlaced, FieldOrdering::top}},
    {AV_FIELD_BB, {ScanMode::interlaced, FieldOrdering::bottom}},
    {AV_FIELD_BT, {ScanMode::interlaced, FieldOrdering::bottom}},
};

/// Codings that have no interlaced pictures: progressive whether or not the stream says so.
const AVCodecID kProgressiveCodings[] = {
    AV_CODEC_ID_MPEG1VIDEO, AV_CODEC_ID_VP8,   AV_CODEC_ID_VP9, AV_CODEC_ID_PNG, AV_CODEC_ID_BMP,
    AV_CODEC_ID_TIFF,       AV_CODEC_ID_TARGA, AV_CODEC_ID_DPX, AV_CODEC_ID_SGI,
};

std::string StreamName(int stream) { return "video stream " + std::to_string(stream) + ": "; }

}  // namespace

ChromaSubSampling MapChromaSubSampling(int stream, AVPixelFormat pixelFormat, Warnings& warnings)
{
    const AVPixFmtDescriptor* descriptor = av_pix_fmt_desc_get(pixelFormat);
    if (descriptor == nullptr)
        return ChromaSubSampling::unknown;  // the stream names no pixel format
    // RGB and every other format of three full planes sample colour at every pixel.
    if (descriptor->nb_components >= 3 || (descriptor->flags & AV_PIX_FMT_FLAG_RGB) != 0)
        for (const ChromaRow& row : kChromaRows)
            if (row.horizontal == descriptor->log2_chroma_w && row.vertical == descriptor->log2_chroma_h)
                return row.chroma;
    warnings.Unmapped(StreamName(stream) + "no chroma subsampling for the pixel format " + descriptor->name);
    return ChromaSubSampling::unknown;
}

ColorSpace MapColorSpace(int stream, int matrix, int range, Warnings& warnings)
{
    if (matrix == AVCOL_SPC_UNSPECIFIED)
        return ColorSpace::unknown;
    for (const ColorRow& row : kColorRows)
        if (row.matrix == matrix && (row.range == AVCOL_RANGE_UNSPECIFIED || row.range == range))
            return row.space;
    const char* name =
        matrix >= 0 && matrix < AVCOL_SPC_NB ? av_color_space_name(static_cast<AVColorSpace>(matrix)) : nullptr;
    warnings.Unmapped(StreamName(stream) + "no colour space for the colour matrix "
                      + (name != nullptr ? name : std::to_string(matrix)));
    return ColorSpace::unknown;
}

Scan MapScan(AVCodecID codec, AVFieldOrder order)
{
    for (const ScanRow& row : kScanRows)
        if (row.order == order)
            return row.scan;
    for (const AVCodecID progressive : kProgressiveCodings)
        if (progressive == codec)
            return {ScanMode::progressive, FieldOrdering::unknown};
    return {ScanMode::unknown, FieldOrdering::unknown};
}

}  // namespace Orvik::DataModel::MediaAssets::Probe
