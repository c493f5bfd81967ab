// The probe on real media files, written at test time by Debian's ffmpeg (tests/media): one row per
// file, each for a row of the probe's mapping tables, checked field by field and cross-checked with
// ffprobe; the same bytes probed from memory; and the files it must refuse.

#include <Orvik/DataModel/MediaAssets.h>
#include <Orvik/DataModel/MediaAssets/FirstDifference.h>
#include <Orvik/DataModel/MediaAssets/Probe.h>

#include <gmock/gmock.h>
#include <nlohmann/json.hpp>

#include <algorithm>
#include <cctype>
#include <cstdio>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <map>
#include <optional>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

using namespace Orvik::DataModel::MediaAssets;
using namespace Orvik::DataModel::MediaAssets::Probe;
using ::testing::AllOf;
using ::testing::Property;
using ::testing::StrEq;
using ::testing::Throws;

namespace {

const std::string kMediaDir = ORVIK_TEST_MEDIA_DIR;
constexpr DateTime kModificationDate = 1704164645;  // 2024-01-02T03:04:05Z, as make-test-media.sh sets it
std::string Path(const std::string& name) { return kMediaDir + "/" + name; }

// How the pictures are scanned: the scan mode and, when interlaced, the field displayed first.
enum Scan { unknownScan, progressive, top, bottom };

struct Video {
    VideoCodingFormat codec;
    int32_t width;
    int32_t height;
    int32_t rateNumerator;  // 0 for a single picture, which has no frame rate
    int32_t rateDenominator;
    Scan scan;
    ChromaSubSampling chroma;
    ColorSpace colour;
    int32_t bitDepth;
    const char* fourCC;
};

struct Audio {
    AudioCodingFormat codec;
    int32_t sampleRate;
    int32_t channels;
    int32_t bitDepth;  // 0 for a compressed coding
};

struct Timecode {
    TimeCodeStandard standard;
    const char* text;
    bool track;  // a QuickTime timecode track, which is a data essence
};

// A generated file and what the probe must make of it: at most one video and one audio stream,
// the start timecode, and the warnings, one per line.
struct MediaFile {
    const char* name;
    WrapperFormat wrapper;
    std::optional<Video> video;
    std::optional<Audio> audio;
    std::optional<Timecode> timecode;
    const char* warnings;
};

using W = WrapperFormat;
using V = VideoCodingFormat;
using A = AudioCodingFormat;
using CS = ChromaSubSampling;
using Col = ColorSpace;
using TC = TimeCodeStandard;

constexpr Timecode kZero{TC::SmptePal25, "00:00:00:00", false};  // ffmpeg's MXF and DV files always have one
constexpr char kNoDuration[] = "the file gives no duration: the time bounds are left unset";

// One file a line, read as a table.
// clang-format off
const MediaFile kFiles[] = {
    // ProRes by profile; 4444 codes 12 bits whatever its source's depth. The HQ movie again with its
    // file type box renamed: a classic QuickTime movie has none.
    {"prores-proxy.mov",    W::QuickTime, Video{V::AppleProRes422Proxy, 64, 64, 25, 1, progressive, CS::CS_422, Col::unknown, 10, "apco"}, {}, {}, ""},
    {"prores-lt.mov",       W::QuickTime, Video{V::AppleProRes422LT, 64, 64, 25, 1, progressive, CS::CS_422, Col::unknown, 10, "apcs"}, {}, {}, ""},
    {"prores-standard.mov", W::QuickTime, Video{V::AppleProRes422, 64, 64, 25, 1, progressive, CS::CS_422, Col::unknown, 10, "apcn"}, {}, {}, ""},
    {"prores-hq.mov",       W::QuickTime, Video{V::AppleProRes422HQ, 64, 64, 25, 1, progressive, CS::CS_422, Col::unknown, 10, "apch"}, {}, {}, ""},
    {"prores-4444.mov",     W::QuickTime, Video{V::AppleProRes4444, 64, 64, 25, 1, progressive, CS::CS_444, Col::unknown, 12, "ap4h"}, {}, {}, ""},
    {"prores-4444xq.mov",   W::QuickTime, Video{V::AppleProRes4444XQ, 64, 64, 25, 1, progressive, CS::CS_444, Col::unknown, 12, "ap4x"}, {}, {}, ""},
    {"no-ftyp.mov",         W::QuickTime, Video{V::AppleProRes422HQ, 64, 64, 25, 1, progressive, CS::CS_422, Col::unknown, 10, "apch"}, {}, {}, ""},
    // DNxHD: 36 Mb/s is a low-bandwidth class, 120 Mb/s a high one; DNxHR is not mapped. Cut in
    // the middle of its essence, an MXF file still describes itself from its header.
    {"dnxhd-low.mxf",    W::MXFOP1a,   Video{V::AvidDNxHDLow, 1920, 1080, 25, 1, progressive, CS::CS_422, Col::BT709, 8, ""}, Audio{A::PCM, 48000, 2, 24}, kZero, ""},
    {"cut-half.mxf",     W::MXFOP1a,   Video{V::AvidDNxHDLow, 1920, 1080, 25, 1, progressive, CS::CS_422, Col::BT709, 8, ""}, Audio{A::PCM, 48000, 2, 24}, kZero, ""},
    {"dnxhd-high.mov",   W::QuickTime, Video{V::AvidDNxHDHigh, 1920, 1080, 25, 1, unknownScan, CS::CS_422, Col::BT709, 8, "AVdn"}, {}, {}, ""},
    {"dnxhd-high10.mxf", W::MXFOP1a,   Video{V::AvidDNxHDHigh10b, 1920, 1080, 25, 1, progressive, CS::CS_422, Col::BT709, 10, ""}, {}, kZero, ""},
    {"dnxhr-lb.mov",     W::QuickTime, Video{V::unknown, 256, 144, 25, 1, unknownScan, CS::CS_422, Col::BT709, 8, "AVdh"}, {}, {},
     "video stream 0: no video coding format for dnxhd profile DNXHR LB, 8-bit, CS_422, 256x144, 1638400 b/s"},
    // MPEG-2: IMX in D-10 MXF, XDCAM HD 4:2:2 long GOP in OP1a MXF, plain MPEG-2 in a transport
    // stream and raw (bottom field first); MPEG-1, which has no interlaced pictures.
    {"imx30.mxf",   W::MXFOP1a, Video{V::SonyIMX30, 720, 512, 30000, 1001, top, CS::CS_422, Col::unknown, 8, ""}, Audio{A::PCM, 48000, 4, 16}, Timecode{TC::SmpteNtsc30NoDrop, "01:00:00:00", false}, ""},
    {"imx40.mxf",   W::MXFOP1a, Video{V::SonyIMX40, 720, 608, 25, 1, top, CS::CS_422, Col::unknown, 8, ""}, Audio{A::PCM, 48000, 4, 16}, kZero, ""},
    {"imx50.mxf",   W::MXFOP1a, Video{V::SonyIMX50, 720, 608, 25, 1, top, CS::CS_422, Col::unknown, 8, ""}, Audio{A::PCM, 48000, 8, 16}, kZero, ""},
    {"xdcamhd.mxf", W::MXFOP1a, Video{V::SonyXDCAMHD, 1920, 1080, 25, 1, top, CS::CS_422, Col::unknown, 8, ""}, Audio{A::PCM, 48000, 1, 24}, Timecode{TC::SmptePal25, "10:00:00:00", false}, ""},
    {"mpeg2.ts",    W::MPEGTS,  Video{V::MPEG2, 64, 64, 25, 1, progressive, CS::CS_420, Col::unknown, 8, ""}, Audio{A::MP2, 48000, 2, 0}, {}, ""},
    {"mpeg2.m2v",   W::RAW,     Video{V::MPEG2, 720, 576, 25, 1, bottom, CS::CS_420, Col::unknown, 8, ""}, {}, {}, kNoDuration},
    {"mpeg1.mpg",   W::MPEGPS,  Video{V::MPEG1, 64, 64, 25, 1, progressive, CS::CS_420, Col::unknown, 8, ""}, Audio{A::unknown, 48000, 1, 0}, {},
     "audio stream 1: no audio coding format for ac3"},
    // H.264: AVC-Intra 50 (1080i, top field first) and 100 (720p50, with a timecode track), plain
    // H.264 in MP4 and raw; H.265.
    {"avc-intra50.mxf",  W::MXFOP1a,   Video{V::PanasonicAVCIntraHD50, 1440, 1080, 25, 1, top, CS::CS_420, Col::unknown, 10, ""}, {}, kZero, ""},
    {"avc-intra100.mov", W::QuickTime, Video{V::PanasonicAVCIntraHD100, 1280, 720, 50, 1, progressive, CS::CS_422, Col::unknown, 10, "ai1q"}, {}, Timecode{TC::SmptePal25, "10:00:00:00", true}, ""},
    {"h264.mp4",         W::MP4,       Video{V::H264, 64, 64, 25, 1, progressive, CS::CS_420, Col::BT709, 8, "avc1"}, Audio{A::AAC, 48000, 2, 0}, {}, ""},
    {"h264.h264",        W::RAW,       Video{V::H264, 64, 64, 25, 1, progressive, CS::CS_420, Col::unknown, 8, ""}, {}, {}, kNoDuration},
    {"hevc.mp4",         W::MP4,       Video{V::H265, 64, 64, 25, 1, progressive, CS::CS_420, Col::unknown, 8, "hvc1"}, {}, {}, ""},
    // DV, interlaced bottom field first but DVCPRO HD at 720p50; raw DV carries a start timecode.
    {"dv25.dv",      W::RAW,       Video{V::DV25, 720, 576, 25, 1, unknownScan, CS::CS_420, Col::unknown, 8, ""}, Audio{A::PCM, 48000, 2, 16}, kZero, ""},
    {"dvcpro.mov",   W::QuickTime, Video{V::DVCPRO, 720, 576, 25, 1, bottom, CS::CS_411, Col::unknown, 8, "dvpp"}, {}, {}, ""},
    {"dvcpro50.mxf", W::MXFOP1a,   Video{V::DVCPRO50, 720, 576, 25, 1, bottom, CS::CS_422, Col::unknown, 8, ""}, {}, kZero, ""},
    {"dvcprohd.mov", W::QuickTime, Video{V::DVCPROHD, 960, 720, 50, 1, progressive, CS::CS_422, Col::unknown, 8, "dvhq"}, {}, {}, ""},
    {"dv-ntsc.avi",  W::AVI,       Video{V::unknown, 720, 480, 30000, 1001, unknownScan, CS::CS_411, Col::unknown, 8, "dvsd"}, {}, {},
     "video stream 0: no video coding format for dvvideo, 8-bit, CS_411, 720x480"},
    // Intra codings and single pictures. Nothing in AVI or in an image says how it is scanned.
    {"jpeg2000.mxf", W::MXFOP1a,   Video{V::JPEG2000, 64, 64, 25, 1, progressive, CS::CS_422, Col::unknown, 8, ""}, {}, kZero, ""},
    {"mjpeg.avi",    W::AVI,       Video{V::MJPEG, 64, 64, 25, 1, unknownScan, CS::CS_422, Col::BT601_JPEG, 8, "MJPG"}, Audio{A::PCM, 48000, 1, 8}, {}, ""},
    {"image.jpg",    W::RAW,       Video{V::JPEG, 64, 64, 0, 1, unknownScan, CS::CS_444, Col::BT601_JPEG, 8, ""}, {}, {}, kNoDuration},
    {"image.png",    W::RAW,       Video{V::PNG, 64, 64, 0, 1, progressive, CS::CS_444, Col::unknown, 8, ""}, {}, {}, kNoDuration},
    {"image.bmp",    W::RAW,       Video{V::BMP, 64, 64, 0, 1, progressive, CS::CS_444, Col::unknown, 8, ""}, {}, {}, kNoDuration},
    {"image.tif",    W::RAW,       Video{V::TIFF, 64, 64, 0, 1, progressive, CS::CS_444, Col::unknown, 8, ""}, {}, {}, kNoDuration},
    {"image.dpx",    W::RAW,       Video{V::DPX, 64, 64, 0, 1, progressive, CS::CS_444, Col::SRGB, 8, ""}, {}, {}, kNoDuration},
    {"image.sgi",    W::RAW,       Video{V::SGI, 64, 64, 0, 1, progressive, CS::CS_444, Col::unknown, 8, ""}, {}, {}, kNoDuration},
    {"image.j2k",    W::RAW,       Video{V::JPEG2000, 64, 64, 0, 1, unknownScan, CS::CS_444, Col::unknown, 8, ""}, {}, {}, kNoDuration},
    {"targa.mov",    W::QuickTime, Video{V::TGA, 64, 64, 25, 1, progressive, CS::CS_444, Col::unknown, 8, "tga "}, {}, {}, ""},
    {"qtrle.mov",    W::QuickTime, Video{V::AppleQuickTimeRLE, 64, 64, 25, 1, progressive, CS::CS_444, Col::unknown, 8, "rle "}, {}, {}, ""},
    {"rawvideo.avi", W::AVI,       Video{V::Raw, 64, 64, 25, 1, unknownScan, CS::CS_410, Col::unknown, 8, "YUV9"}, {}, {}, ""},
    {"ffv1.avi",     W::AVI,       Video{V::unknown, 64, 64, 25, 1, unknownScan, CS::CS_444, Col::unknown, 8, "FFV1"}, {}, {},
     "video stream 0: no video coding format for ffv1, 8-bit, CS_444, 64x64"},
    // Other wrappers; MPEG-4 part 2 as ffmpeg codes it has no interlaced pictures. Plain Matroska
    // carries its start timecode as a tag of the video stream.
    {"vp8.webm",     W::WebM,     Video{V::VP8, 64, 64, 25, 1, progressive, CS::CS_420, Col::unknown, 8, ""}, Audio{A::unknown, 48000, 2, 0}, {},
     "audio stream 1: no audio coding format for vorbis"},
    {"vp9.webm",     W::WebM,     Video{V::VP9, 64, 64, 25, 1, progressive, CS::CS_420, Col::unknown, 8, ""}, Audio{A::unknown, 48000, 2, 0}, {},
     "audio stream 1: no audio coding format for opus"},
    {"matroska.mkv", W::unknown,  Video{V::H264, 64, 64, 25, 1, progressive, CS::CS_420, Col::unknown, 8, ""}, Audio{A::unknown, 48000, 1, 16}, Timecode{TC::SmptePal25, "00:59:59:00", false},
     "no wrapper format for Matroska DocType matroska\naudio stream 1: no audio coding format for flac"},
    {"mpeg4.3gp",    W::ISO_BMFF, Video{V::MPEG4, 64, 64, 25, 1, unknownScan, CS::CS_420, Col::unknown, 8, "mp4v"}, Audio{A::AAC, 48000, 1, 0}, {}, ""},
    {"aac.m4a",      W::MP4,      {}, Audio{A::AAC, 48000, 2, 0}, {}, ""},
    {"wma.asf",      W::ASF,      {}, Audio{A::WMA, 48000, 2, 0}, {}, ""},
    // Colour spaces, as the H.264 stream signals them.
    {"color-bt470bg.mp4",   W::MP4, Video{V::H264, 64, 64, 25, 1, progressive, CS::CS_420, Col::BT601, 8, "avc1"}, {}, {}, ""},
    {"color-smpte170m.mp4", W::MP4, Video{V::H264, 64, 64, 25, 1, progressive, CS::CS_420, Col::SMPTE_170M, 8, "avc1"}, {}, {}, ""},
    {"color-bt2020nc.mp4",  W::MP4, Video{V::H264, 64, 64, 25, 1, progressive, CS::CS_420, Col::BT2020, 8, "avc1"}, {}, {}, ""},
    {"color-fcc.mp4",       W::MP4, Video{V::H264, 64, 64, 25, 1, progressive, CS::CS_420, Col::FCC, 8, "avc1"}, {}, {}, ""},
    {"color-smpte240m.mp4", W::MP4, Video{V::H264, 64, 64, 25, 1, progressive, CS::CS_420, Col::SMPTE_240M, 8, "avc1"}, {}, {}, ""},
    {"color-rgb.mp4",       W::MP4, Video{V::H264, 64, 64, 25, 1, progressive, CS::CS_444, Col::SRGB, 8, "avc1"}, {}, {}, ""},
    // Sound alone: PCM of every sample size in both byte orders, A-law and mu-law, MP3 and AAC
    // without a wrapper, PCM in OP-Atom MXF (whose timecode counts at its edit rate, 25).
    {"pcm16.wav",      W::WAVE,    {}, Audio{A::PCM, 48000, 2, 16}, {}, ""},
    {"pcm24-bext.wav", W::BWAVE,   {}, Audio{A::PCM, 48000, 1, 24}, {}, ""},
    {"pcm32.wav",      W::WAVE,    {}, Audio{A::PCM, 48000, 4, 32}, {}, ""},
    {"pcm24.aif",      W::AIFF,    {}, Audio{A::PCM, 48000, 2, 24}, {}, ""},
    {"alaw.wav",       W::WAVE,    {}, Audio{A::Alaw, 48000, 1, 8}, {}, ""},
    {"mulaw.wav",      W::WAVE,    {}, Audio{A::unknown, 48000, 1, 8}, {}, "audio stream 0: no audio coding format for pcm_mulaw"},
    {"mp3.mp3",        W::RAW,     {}, Audio{A::MP3, 48000, 1, 0}, {}, ""},
    {"aac.aac",        W::RAW,     {}, Audio{A::AAC, 48000, 2, 0}, {}, ""},
    {"opatom.mxf",     W::unknown, {}, Audio{A::PCM, 48000, 1, 24}, Timecode{TC::NotSet, "00:00:00:00", false},
     "no wrapper format for MXF operational pattern OP-Atom\ntimecode 00:00:00:00: no timecode standard, as the file gives no frame rate"},
    // Start timecodes in QuickTime timecode tracks: drop-frame at 29.97 (interlaced H.264, top
    // field first) and 59.94, and a rate that no timecode standard counts at.
    {"timecode-drop.mov", W::QuickTime, Video{V::H264, 64, 64, 30000, 1001, top, CS::CS_420, Col::unknown, 8, "avc1"}, {}, Timecode{TC::SmpteNtsc30Drop, "01:00:00;00", true}, ""},
    {"timecode-5994.mov", W::QuickTime, Video{V::MJPEG, 64, 64, 60000, 1001, progressive, CS::CS_444, Col::BT601_JPEG, 8, "jpeg"}, {}, Timecode{TC::SmpteNtsc30Drop, "01:00:00;00", true}, ""},
    {"timecode-24.mov",   W::QuickTime, Video{V::MJPEG, 64, 64, 24, 1, progressive, CS::CS_444, Col::BT601_JPEG, 8, "jpeg"}, {}, Timecode{TC::NotSet, "00:59:50:00", true},
     "timecode 00:59:50:00: no timecode standard for timecode at 24/1 frames per second"},
};
// clang-format on

// Every result and ffprobe's every answer once per file, for the tests that look at them.
const ProbeResult& Probed(const std::string& name)
{
    static std::map<std::string, ProbeResult> results;
    auto found = results.find(name);
    if (found == results.end())
        found = results.emplace(name, ProbeFile(Path(name))).first;
    return found->second;
}

std::string ShellQuoted(const std::string& text)
{
    std::string quoted = "'";
    for (const char character : text)
        quoted += character == '\'' ? std::string("'\\''") : std::string(1, character);
    return quoted + "'";
}

const nlohmann::json& Ffprobe(const std::string& name)
{
    static std::map<std::string, nlohmann::json> answers;
    auto found = answers.find(name);
    if (found != answers.end())
        return found->second;
    const std::string command =
        ShellQuoted(ORVIK_FFPROBE) + " -v error -show_format -show_streams -of json " + ShellQuoted(Path(name));
    FILE* pipe = popen(command.c_str(), "r");
    std::string output;
    char buffer[4096];
    for (size_t count; pipe != nullptr && (count = std::fread(buffer, 1, sizeof buffer, pipe)) > 0;)
        output.append(buffer, count);
    EXPECT_TRUE(pipe != nullptr && pclose(pipe) == 0) << command;
    return answers.emplace(name, nlohmann::json::parse(output)).first->second;
}

// ffprobe's decimal seconds ("0.200208") in nanoseconds, exactly.
int64_t Nanoseconds(const std::string& seconds)
{
    const size_t point = seconds.find('.');
    std::string fraction = seconds.substr(point + 1);
    fraction.resize(9, '0');
    return std::stoll(seconds.substr(0, point)) * 1000000000 + std::stoll(fraction);
}

// One frame at `numerator` / `denominator` frames per second, in nanoseconds, rounded.
int64_t Period(int64_t numerator, int64_t denominator)
{
    return numerator > 0 ? (1000000000 * denominator + numerator / 2) / numerator : 0;
}

// "30000/1001" or "16:9" as two numbers.
std::pair<int32_t, int32_t> Ratio(const std::string& text)
{
    const size_t separator = text.find_first_of("/:");
    return {std::stoi(text.substr(0, separator)), std::stoi(text.substr(separator + 1))};
}

std::string ReadAll(const std::string& path)
{
    std::ifstream file(path, std::ios::binary);
    std::ostringstream bytes;
    bytes << file.rdbuf();
    return bytes.str();
}

const Stream& StreamOf(const ProbeResult& result) { return *result.resource->Streams().at(0).Pointer(); }

template <class Kind>
const Kind* FirstOf(const Stream& stream)
{
    for (const auto& essence : stream.Essences())
        if (const auto* kind = dynamic_cast<const Kind*>(essence.get()))
            return kind;
    return nullptr;
}

std::string Joined(const std::vector<ProbeWarning>& warnings)
{
    std::string text;
    for (const ProbeWarning& warning : warnings)
        text += (text.empty() ? "" : "\n") + warning.message;
    return text;
}

std::string Described(const std::optional<Difference>& difference)
{
    return difference ? difference->Path() + ": " + difference->Left() + " against " + difference->Right() : "";
}

void PrintTo(const MediaFile& file, std::ostream* out) { *out << file.name; }

class GeneratedFile : public ::testing::TestWithParam<MediaFile> {
protected:
    const MediaFile& row = GetParam();
    const ProbeResult& result = Probed(row.name);
    const Stream& stream = StreamOf(result);
};

std::string TestName(const ::testing::TestParamInfo<MediaFile>& info)
{
    std::string name = info.param.name;
    for (char& character : name)
        if (!std::isalnum(static_cast<unsigned char>(character)))
            character = '_';
    return name;
}

INSTANTIATE_TEST_SUITE_P(Files, GeneratedFile, ::testing::ValuesIn(kFiles), TestName);

}  // namespace

TEST_P(GeneratedFile, MapsAsItsRowSays)
{
    EXPECT_EQ(ToString(stream.Format()), ToString(row.wrapper));
    const auto* video = FirstOf<VideoEssence>(stream);
    ASSERT_EQ(video != nullptr, row.video.has_value());
    if (video != nullptr) {
        const Video& expected = *row.video;
        EXPECT_EQ(ToString(video->VideoCodec()), ToString(expected.codec));
        EXPECT_EQ(video->Width(), expected.width);
        EXPECT_EQ(video->Height(), expected.height);
        EXPECT_EQ(video->FrameRate().Numerator(), expected.rateNumerator);
        EXPECT_EQ(video->FrameRate().Denominator(), expected.rateDenominator);
        const auto field = result.fieldOrders.find(video->Nr());
        const FieldOrdering dominant = field != result.fieldOrders.end() ? field->second : FieldOrdering::unknown;
        const bool interlaced = expected.scan == top || expected.scan == bottom;
        EXPECT_EQ(ToString(video->ScanMode()),
                  ToString(interlaced                         ? ScanMode::interlaced
                               : expected.scan == progressive ? ScanMode::progressive
                                                              : ScanMode::unknown));
        EXPECT_EQ(ToString(dominant),
                  ToString(expected.scan == top          ? FieldOrdering::top
                               : expected.scan == bottom ? FieldOrdering::bottom
                                                         : FieldOrdering::unknown));
        EXPECT_EQ(ToString(video->ChromaSubSampling()), ToString(expected.chroma));
        EXPECT_EQ(ToString(video->ColorSpace()), ToString(expected.colour));
        EXPECT_EQ(video->BitDepth(), expected.bitDepth);
        EXPECT_EQ(video->FourCC(), expected.fourCC);
    }
    const auto* audio = FirstOf<AudioEssence>(stream);
    ASSERT_EQ(audio != nullptr, row.audio.has_value());
    if (audio != nullptr) {
        EXPECT_EQ(ToString(audio->AudioCodec()), ToString(row.audio->codec));
        EXPECT_EQ(audio->SampleRate(), Rate(row.audio->sampleRate, 1));
        EXPECT_EQ(audio->ChannelCount(), row.audio->channels);
        EXPECT_EQ(audio->BitDepth(), row.audio->bitDepth);
    }
    const bool track = row.timecode && row.timecode->track;
    EXPECT_EQ(FirstOf<DataEssence>(stream) != nullptr, track);
    EXPECT_EQ(stream.Essences().Size(), int32_t{row.video.has_value()} + row.audio.has_value() + track);

    // One start timecode shared by every essence, or none.
    for (const auto& essence : stream.Essences()) {
        ASSERT_EQ(essence->Timecodes().Size(), row.timecode ? 1u : 0u) << "essence " << essence->Nr();
        if (row.timecode) {
            const TimeCodeTable& table = *essence->Timecodes()[0];
            EXPECT_EQ(&table, stream.Essences()[0].Timecodes()[0].get());
            EXPECT_EQ(ToString(table.Standard()), ToString(row.timecode->standard));
            ASSERT_EQ(table.TimeCodeJumpItems().Size(), 1u);
            EXPECT_EQ(table.TimeCodeJumpItems()[0]->TimePoint(), TimePoint(0));
            EXPECT_EQ(table.TimeCodeJumpItems()[0]->TimeCode().Value(), row.timecode->text);
        }
    }
    EXPECT_EQ(Joined(result.warnings), row.warnings);
}

// Rates, sizes, sample rates, channels and the duration as ffprobe reads them, stream by stream.
TEST_P(GeneratedFile, AgreesWithFfprobe)
{
    const nlohmann::json& answer = Ffprobe(row.name);
    ASSERT_EQ(answer.at("streams").size(), static_cast<size_t>(stream.Essences().Size()));
    for (const nlohmann::json& source : answer.at("streams")) {
        const int index = source.at("index").get<int>();
        SCOPED_TRACE("stream " + std::to_string(index));
        const Essence& essence = stream.Essences()[index];
        EXPECT_EQ(essence.Nr(), index);
        if (const auto* video = dynamic_cast<const VideoEssence*>(&essence)) {
            EXPECT_EQ(video->Width(), source.at("width").get<int32_t>());
            EXPECT_EQ(video->Height(), source.at("height").get<int32_t>());
            if (row.video->rateNumerator != 0) {  // a single picture's rate is the demuxer's default
                const auto [numerator, denominator] = Ratio(source.at("r_frame_rate").get<std::string>());
                EXPECT_EQ(video->FrameRate(), Rate(numerator, denominator));
            }
            const auto [width, height] = Ratio(source.value("display_aspect_ratio", "0:0"));
            EXPECT_EQ(video->AspectRatio(), AspectRatio(width, height));
            if (source.contains("bit_rate")) {
                EXPECT_EQ(video->BitRate(), std::stoi(source.at("bit_rate").get<std::string>()));
            }
        } else if (const auto* audio = dynamic_cast<const AudioEssence*>(&essence)) {
            EXPECT_EQ(audio->SampleRate(), Rate(std::stoi(source.at("sample_rate").get<std::string>()), 1));
            EXPECT_EQ(audio->ChannelCount(), source.at("channels").get<int32_t>());
            if (source.contains("bit_rate")) {
                EXPECT_EQ(audio->BitRate(), std::stoi(source.at("bit_rate").get<std::string>()));
            }
        }
    }

    const nlohmann::json& format = answer.at("format");
    ASSERT_EQ(stream.Locations().Size(), 1);
    EXPECT_EQ(dynamic_cast<const FileLocation&>(stream.Locations()[0]).Size(),
              std::stoll(format.at("size").get<std::string>()));
    // One stretch from time 0 to the duration, in at 0 and out where the last frame (or sample)
    // starts, which the stretch holds: the asset, its resource and stream; the timecode runs for
    // the duration. No stretch and unset boundaries when the file gives no duration. ffprobe reads
    // a single JPEG picture with the image sequence demuxer (which the probe never uses), and that
    // gives it one frame's duration.
    TimeBoundsArray expected;
    int64_t duration = 0;
    if (format.contains("duration") && format.at("format_name") != "image2") {
        duration = Nanoseconds(format.at("duration").get<std::string>());
        const int64_t frame =
            row.video ? Period(row.video->rateNumerator, row.video->rateDenominator) : Period(row.audio->sampleRate, 1);
        expected.Insert(TimeBounds(TimeBoundary(TimePoint(0), false), TimeBoundary(TimePoint(duration), false)));
        expected.InBoundary(TimeBoundary(TimePoint(0), false));
        expected.OutBoundary(TimeBoundary(TimePoint(duration - frame), false));
    }
    EXPECT_EQ(Described(FirstDifference(result.asset.PhysicalTimebounds(), expected)), "");
    EXPECT_EQ(Described(FirstDifference(result.resource->Timebounds(), expected)), "");
    EXPECT_EQ(Described(FirstDifference(stream.Timebounds(), expected)), "");
    if (row.timecode) {
        EXPECT_EQ(stream.Essences()[0].Timecodes()[0]->TimeCodeJumpItems()[0]->Duration(), duration);
    }
}

// Ids from the file's name, a track per video essence and per audio stream (a channel per sound
// channel) on the resource's one stream, and the file's location.
TEST_P(GeneratedFile, IsOneAssetAroundItsFile)
{
    const MediaAsset& asset = result.asset;
    EXPECT_EQ(asset.Id().Value(), row.name);
    ASSERT_EQ(asset.MediaResources().Size(), 1u);
    EXPECT_EQ(asset.MediaResources()[0].Pointer(), result.resource);
    EXPECT_EQ(result.resource->Id().Value(), std::string(row.name) + "/resource");
    EXPECT_EQ(stream.Id().Value(), std::string(row.name) + "/stream");

    size_t tracks = 0;
    for (const auto& essence : stream.Essences()) {
        if (essence->GetType() == Essence::Data)
            continue;
        const bool isVideo = essence->GetType() == Essence::Video;
        const std::string id = isVideo ? "V1" : "A1";
        ++tracks;
        const auto track = std::find_if(asset.Tracks().begin(), asset.Tracks().end(),
                                        [&](const auto& candidate) { return candidate->Id().Value() == id; });
        ASSERT_NE(track, asset.Tracks().end()) << id;
        const Track::ChannelVector& channels = (*track)->Channels();
        ASSERT_EQ(static_cast<int32_t>(channels.size()), isVideo ? 1 : essence->ChannelCount()) << id;
        for (size_t i = 0; i < channels.size(); ++i) {
            EXPECT_EQ(channels[i]->Stream().Pointer().get(), &stream) << id;
            EXPECT_EQ(channels[i]->EssenceNr(), essence->Nr()) << id;
            EXPECT_EQ(channels[i]->ChannelNr(), static_cast<int32_t>(i)) << id;
        }
    }
    EXPECT_EQ(asset.Tracks().Size(), tracks);

    ASSERT_EQ(stream.Locations().Size(), 1);
    const auto& location = dynamic_cast<const FileLocation&>(stream.Locations()[0]);
    EXPECT_EQ(location.Name(), row.name);
    EXPECT_EQ(location.ModificationDate(), kModificationDate);
}

// The same bytes from memory give the same asset, resource and stream, but for the location.
TEST_P(GeneratedFile, ReadsTheSameFromMemory)
{
    const ProbeResult fromMemory = ProbeBytes(ReadAll(Path(row.name)), row.name);
    EXPECT_EQ(Described(FirstDifference(fromMemory.asset, result.asset)), "");
    EXPECT_EQ(Described(FirstDifference(*fromMemory.resource, *result.resource)), "");
    Stream located = stream.Clone();
    located.Locations().Clear();
    EXPECT_EQ(Described(FirstDifference(StreamOf(fromMemory), located)), "");
    EXPECT_EQ(fromMemory.fieldOrders, result.fieldOrders);
    EXPECT_EQ(fromMemory.warnings, result.warnings);
}

TEST(ProbeBytes, TakesItsIdsFromTheNameGiven)
{
    const ProbeResult result = ProbeBytes(ReadAll(Path("pcm16.wav")), "take 2.wav");
    EXPECT_EQ(result.asset.Id().Value(), "take 2.wav");
    EXPECT_EQ(result.resource->Id().Value(), "take 2.wav/resource");
    EXPECT_EQ(StreamOf(result).Id().Value(), "take 2.wav/stream");
    EXPECT_EQ(StreamOf(result).Locations().Size(), 0);
}

// The location is the file's absolute path, normalised and percent-encoded but for the unreserved
// characters and the slashes.
TEST(ProbeFile, LocatesTheFileByItsAbsolutePercentEncodedUri)
{
    const std::string name = "sound 100% \xC3\xBC.wav";  // "ü" in UTF-8
    const std::string detour = "/../" + std::filesystem::path(kMediaDir).filename().string() + "/./";
    const ProbeResult result = ProbeFile(kMediaDir + detour + name);
    const auto& location = dynamic_cast<const FileLocation&>(StreamOf(result).Locations()[0]);
    std::string directory = "file://";
    for (const char character : kMediaDir) {
        if (std::isalnum(static_cast<unsigned char>(character)) || std::strchr("-._~/", character) != nullptr) {
            directory += character;
        } else {
            char escaped[4];
            std::snprintf(escaped, sizeof escaped, "%%%02X", static_cast<unsigned char>(character));
            directory += escaped;
        }
    }
    EXPECT_EQ(location.Uri().Value(), directory + "/sound%20100%25%20%C3%BC.wav");
    EXPECT_EQ(location.Name(), name);
    EXPECT_EQ(result.asset.Id().Value(), name);
}

// What the probe refuses, from the file and from its bytes, with the reason it gives. The playlist
// and the concat list name a file that the probe would describe: they are refused without it.
struct Refusal {
    const char* name;
    const char* reason;
};

constexpr Refusal kRefusals[] = {
    {"no-such-file.mxf", "cannot open: No such file or directory"},
    {"directory.mov", "cannot read: Is a directory"},
    {"cut-0.mxf", "cannot read: the file is empty"},
    {"cut-0.mov", "cannot read: the file is empty"},
    {"text.txt", "not a media file: no format recognised"},
    {"cut-100.mxf", "cannot read the MXF (Material eXchange Format) headers"},
    {"cut-4096.mxf", "cannot read the MXF (Material eXchange Format) headers"},
    {"flipped.mxf", "cannot read the MXF (Material eXchange Format) headers"},
    {"cut-100.mov", "cannot read the QuickTime / MOV headers"},
    {"cut-4096.mov", "cannot read the QuickTime / MOV headers"},
    {"cut-half.mov", "cannot read the QuickTime / MOV headers"},
    {"playlist.m3u8", "refused: an HLS playlist names other files or URLs, which the probe does not follow"},
    {"concat.ffconcat", "refused: a concat list names other files or URLs, which the probe does not follow"},
};

TEST(ProbeRefusal, NamesTheFileAndTheReason)
{
    for (const Refusal& refusal : kRefusals) {
        SCOPED_TRACE(refusal.name);
        const std::string path = Path(refusal.name);
        EXPECT_THAT([&] { ProbeFile(path); },
                    Throws<ProbeError>(AllOf(Property(&ProbeError::Source, StrEq(path)),
                                             Property(&ProbeError::Reason, StrEq(refusal.reason)))));
        if (!std::filesystem::is_regular_file(path))
            continue;
        EXPECT_THAT([&] { ProbeBytes(ReadAll(path), refusal.name); },
                    Throws<ProbeError>(AllOf(Property(&ProbeError::Source, StrEq(refusal.name)),
                                             Property(&ProbeError::Reason, StrEq(refusal.reason)))));
    }
}
