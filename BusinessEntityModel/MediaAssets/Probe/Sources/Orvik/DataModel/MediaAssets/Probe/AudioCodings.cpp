// Audio codec to the model's audio coding format.

#include "MappingTables.h"

namespace Orvik::DataModel::MediaAssets::Probe {
namespace {

using F = AudioCodingFormat;
using M = BitRateMode;

struct Row {
    AVCodecID codec;
    AudioCodingFormat format;
    BitRateMode bitRateMode;
};

// One row a line, read as a table.
// clang-format off
const Row kRows[] = {
    // Linear PCM of every sample size, sign, byte order and layout.
    {AV_CODEC_ID_PCM_S8, F::PCM, M::cbr},
    {AV_CODEC_ID_PCM_U8, F::PCM, M::cbr},
    {AV_CODEC_ID_PCM_S8_PLANAR, F::PCM, M::cbr},
    {AV_CODEC_ID_PCM_S16LE, F::PCM, M::cbr},
    {AV_CODEC_ID_PCM_S16BE, F::PCM, M::cbr},
    {AV_CODEC_ID_PCM_U16LE, F::PCM, M::cbr},
    {AV_CODEC_ID_PCM_U16BE, F::PCM, M::cbr},
    {AV_CODEC_ID_PCM_S16LE_PLANAR, F::PCM, M::cbr},
    {AV_CODEC_ID_PCM_S16BE_PLANAR, F::PCM, M::cbr},
    {AV_CODEC_ID_PCM_S24LE, F::PCM, M::cbr},
    {AV_CODEC_ID_PCM_S24BE, F::PCM, M::cbr},
    {AV_CODEC_ID_PCM_U24LE, F::PCM, M::cbr},
    {AV_CODEC_ID_PCM_U24BE, F::PCM, M::cbr},
    {AV_CODEC_ID_PCM_S24LE_PLANAR, F::PCM, M::cbr},
    {AV_CODEC_ID_PCM_S24DAUD, F::PCM, M::cbr},
    {AV_CODEC_ID_PCM_S32LE, F::PCM, M::cbr},
    {AV_CODEC_ID_PCM_S32BE, F::PCM, M::cbr},
    {AV_CODEC_ID_PCM_U32LE, F::PCM, M::cbr},
    {AV_CODEC_ID_PCM_U32BE, F::PCM, M::cbr},
    {AV_CODEC_ID_PCM_S32LE_PLANAR, F::PCM, M::cbr},
    {AV_CODEC_ID_PCM_S64LE, F::PCM, M::cbr},
    {AV_CODEC_ID_PCM_S64BE, F::PCM, M::cbr},
    {AV_CODEC_ID_PCM_F16LE, F::PCM, M::cbr},
    {AV_CODEC_ID_PCM_F24LE, F::PCM, M::cbr},
    {AV_CODEC_ID_PCM_F32LE, F::PCM, M::cbr},
    {AV_CODEC_ID_PCM_F32BE, F::PCM, M::cbr},
    {AV_CODEC_ID_PCM_F64LE, F::PCM, M::cbr},
    {AV_CODEC_ID_PCM_F64BE, F::PCM, M::cbr},
    {AV_CODEC_ID_PCM_DVD, F::PCM, M::cbr},
    {AV_CODEC_ID_PCM_BLURAY, F::PCM, M::cbr},
    {AV_CODEC_ID_PCM_ALAW, F::Alaw, M::cbr},
    {AV_CODEC_ID_AAC, F::AAC, M::unknown},
    {AV_CODEC_ID_AAC_LATM, F::AAC, M::unknown},
    {AV_CODEC_ID_MP1, F::MP1, M::unknown},
    {AV_CODEC_ID_MP2, F::MP2, M::unknown},
    {AV_CODEC_ID_MP3, F::MP3, M::unknown},
    {AV_CODEC_ID_WMAV1, F::WMA, M::unknown},
    {AV_CODEC_ID_WMAV2, F::WMA, M::unknown},
    {AV_CODEC_ID_WMAPRO, F::WMA, M::unknown},
    {AV_CODEC_ID_WMALOSSLESS, F::WMA, M::unknown},
    {AV_CODEC_ID_WMAVOICE, F::WMA, M::unknown},
    {AV_CODEC_ID_DOLBY_E, F::DolbyE, M::unknown},
};
// clang-format on

}  // namespace

AudioCoding MapAudioCoding(int stream, AVCodecID codec, Warnings& warnings)
{
    for (const Row& row : kRows)
        if (row.codec == codec)
            return {row.format, row.bitRateMode};
    warnings.Unmapped("audio stream " + std::to_string(stream) + ": no audio coding format for " + avcodec_get_name(codec));
    return {AudioCodingFormat::unknown, BitRateMode::unknown};
}

}  // namespace Orvik::DataModel::MediaAssets::Probe
