#include "Description.h"

#include "MappingTables.h"

#include <Orvik/DataModel/MediaAssets.h>
#include <Orvik/TimePoints/Core/Parsers/Iso8601TimePointParser.h>

#include <algorithm>
#include <climits>
#include <cstring>
#include <utility>

namespace Orvik::DataModel::MediaAssets::Probe {
namespace {

constexpr int64_t kNanosecondsPerSecond = 1000000000;

/// The tables' name for the start timecode, shared by every essence of the stream.
constexpr char kTimeCodeTableName[] = "timecode";

const char* Tag(const AVDictionary* tags, const char* key)
{
    const AVDictionaryEntry* entry = av_dict_get(tags, key, nullptr, 0);
    return entry != nullptr ? entry->value : nullptr;
}

int32_t Clamped(int64_t value) { return static_cast<int32_t>(std::min<int64_t>(std::max<int64_t>(value, 0), INT32_MAX)); }

/// The number held in an enumeration field that a demuxer may have filled from the file unchecked:
/// a number outside a C enumeration's range must not be read as that type in C++.
template <typename Enumeration>
int Number(const Enumeration& field)
{
    static_assert(sizeof(Enumeration) == sizeof(int));
    int number = 0;
    std::memcpy(&number, &field, sizeof number);
    return number;
}

/// The exact rational, reduced to fit the model's 32-bit fields; 0/0 when the stream gives none.
MediaAssets::Rate ExactRate(AVRational rate)
{
    if (rate.num <= 0 || rate.den <= 0)
        return MediaAssets::Rate(0, 0);
    int num = 0;
    int den = 0;
    av_reduce(&num, &den, rate.num, rate.den, INT32_MAX);
    return MediaAssets::Rate(num, den);
}

AVRational FrameRate(const AVStream& stream)
{
    return stream.avg_frame_rate.num > 0 && stream.avg_frame_rate.den > 0 ? stream.avg_frame_rate : stream.r_frame_rate;
}

/// The codec tag as four characters, when the container has one that reads as text.
std::string FourCC(uint32_t tag)
{
    std::string text;
    for (int shift = 0; shift < 32; shift += 8) {
        const auto character = static_cast<char>((tag >> shift) & 0xFF);
        if (character < ' ' || character > '~')
            return "";
        text += character;
    }
    return text;
}

/// The nominal bit rate: the stream's, or the maximum its decoder buffer declares, or, for DNxHD,
/// whose frames all have the size of their class, the first frame's size at the frame rate.
int64_t BitRate(OpenedMedia& media, const AVStream& stream)
{
    if (stream.codecpar->bit_rate > 0)
        return stream.codecpar->bit_rate;
    size_t size = 0;
    const uint8_t* data = av_stream_get_side_data(&stream, AV_PKT_DATA_CPB_PROPERTIES, &size);
    if (data != nullptr && size >= sizeof(AVCPBProperties)
        && reinterpret_cast<const AVCPBProperties*>(data)->max_bitrate > 0)
        return reinterpret_cast<const AVCPBProperties*>(data)->max_bitrate;
    const AVRational rate = FrameRate(stream);
    if (stream.codecpar->codec_id == AV_CODEC_ID_DNXHD && rate.num > 0 && rate.den > 0)
        return av_rescale(media.FirstPacketSize(stream.index) * 8, rate.num, rate.den);
    return 0;
}

int BitDepth(const AVCodecParameters& codec)
{
    if (codec.bits_per_raw_sample > 0)
        return codec.bits_per_raw_sample;
    if (codec.codec_type == AVMEDIA_TYPE_VIDEO) {
        const AVPixFmtDescriptor* descriptor = av_pix_fmt_desc_get(static_cast<AVPixelFormat>(codec.format));
        return descriptor != nullptr ? descriptor->comp[0].depth : 0;
    }
    // Linear and companded PCM have a sample size; a compressed coding has none, whatever size
    // the container's sample description states.
    return av_get_bits_per_sample(codec.codec_id);
}

/// MXF's operational pattern label "060e2b34.04010101.0d010201.01010900" as its name "OP1a";
/// "OP-Atom" for that pattern; the label itself for any other. The label's version byte (the
/// eighth) takes no part.
std::string OperationalPattern(const char* label)
{
    if (label == nullptr)
        return "";
    const std::string text = label;
    if (text.size() != 35 || text.compare(0, 15, "060e2b34.040101") != 0 || text.compare(17, 10, ".0d010201.") != 0)
        return text;
    const std::string complexity = text.substr(27, 4);
    if (complexity.compare(0, 2, "10") == 0)
        return "OP-Atom";
    const char item = complexity[1];
    const char package = complexity[3];
    if (complexity[0] != '0' || complexity[2] != '0' || item < '1' || item > '3' || package < '1' || package > '3')
        return text;
    return std::string("OP") + item + static_cast<char>('a' + (package - '1'));
}

/// The DocType of a Matroska file's EBML header, found in its first bytes.
std::string DocType(const std::string& head)
{
    const size_t at = head.find("\x42\x82");
    if (at == std::string::npos || at + 2 >= head.size())
        return "";
    const auto sizeByte = static_cast<unsigned char>(head[at + 2]);
    const size_t length = (sizeByte & 0x80) != 0 ? sizeByte & 0x7F : 0;
    return head.substr(at + 3, length);
}

ContainerFacts Container(const OpenedMedia& media)
{
    const AVFormatContext& context = media.Context();
    ContainerFacts facts;
    facts.demuxer = context.iformat->name;
    facts.pattern = OperationalPattern(Tag(context.metadata, "operational_pattern_ul"));
    const char* brand = Tag(context.metadata, "major_brand");
    facts.brand = brand != nullptr ? brand : "";
    // The WAVE demuxer reports the broadcast extension's time reference, always present in it.
    facts.broadcastExtension = Tag(context.metadata, "time_reference") != nullptr;
    if (facts.demuxer == "matroska,webm")
        facts.docType = DocType(media.Head());
    return facts;
}

bool IsStillImage(const AVFormatContext& context)
{
    const char* name = context.iformat->name;
    const size_t length = std::strlen(name);
    return length > 5 && std::strcmp(name + length - 5, "_pipe") == 0;
}

std::unique_ptr<VideoEssence> Video(OpenedMedia& media, const AVStream& stream, ProbeResult& result, Warnings& warnings)
{
    const AVFormatContext& context = media.Context();
    const AVCodecParameters& codec = *stream.codecpar;
    auto video = std::make_unique<VideoEssence>();
    VideoFacts facts;
    facts.stream = stream.index;
    facts.codec = codec.codec_id;
    facts.profile = codec.profile;
    facts.fourCC = FourCC(codec.codec_tag);
    facts.bitDepth = BitDepth(codec);
    facts.chroma = MapChromaSubSampling(stream.index, static_cast<AVPixelFormat>(codec.format), warnings);
    facts.width = codec.width;
    facts.height = codec.height;
    facts.bitRate = BitRate(media, stream);
    facts.inMxf = std::strcmp(context.iformat->name, "mxf") == 0;
    facts.stillImage = IsStillImage(context);
    const VideoCoding coding = MapVideoCoding(facts, warnings);
    const Scan scan = MapScan(codec.codec_id, codec.field_order);

    video->VideoCodec(coding.format);
    video->BitRate(Clamped(facts.bitRate));
    video->BitRateMode(coding.bitRateMode);
    video->BitDepth(facts.bitDepth);
    if (!facts.stillImage)  // a single picture has no frame rate, whatever its demuxer assumes
        video->FrameRate(ExactRate(FrameRate(stream)));
    video->Height(codec.height);
    video->Width(codec.width);
    video->ChromaSubSampling(facts.chroma);
    video->ColorSpace(MapColorSpace(stream.index, Number(codec.color_space), Number(codec.color_range), warnings));
    video->ScanMode(scan.mode);
    video->FourCC(facts.fourCC);
    const AVRational pixel = stream.sample_aspect_ratio.num > 0 ? stream.sample_aspect_ratio : codec.sample_aspect_ratio;
    if (pixel.num > 0 && pixel.den > 0 && codec.width > 0 && codec.height > 0) {
        int width = 0;
        int height = 0;
        av_reduce(&width, &height, int64_t{codec.width} * pixel.num, int64_t{codec.height} * pixel.den, INT32_MAX);
        video->AspectRatio(AspectRatio(width, height));
    }
    if (scan.mode == ScanMode::interlaced)
        result.fieldOrders[stream.index] = scan.dominantField;
    return video;
}

std::unique_ptr<AudioEssence> Audio(const AVStream& stream, Warnings& warnings)
{
    const AVCodecParameters& codec = *stream.codecpar;
    auto audio = std::make_unique<AudioEssence>();
    const AudioCoding coding = MapAudioCoding(stream.index, codec.codec_id, warnings);
    audio->AudioCodec(coding.format);
    audio->BitRate(Clamped(codec.bit_rate));
    audio->BitRateMode(coding.bitRateMode);
    audio->SampleRate(MediaAssets::Rate(codec.sample_rate, codec.sample_rate > 0 ? 1 : 0));
    audio->BitDepth(BitDepth(codec));
    audio->FourCC(FourCC(codec.codec_tag));
    audio->ChannelCount(codec.ch_layout.nb_channels);
    return audio;
}

/// Where the start timecode is read from, first found first: a timecode track, the first video
/// stream's tag, the file's tag.
struct TimeCodeSource {
    const char* text = nullptr;
    const char* type = nullptr;
};

bool IsVideo(const AVStream& stream) { return stream.codecpar->codec_type == AVMEDIA_TYPE_VIDEO; }

bool IsTimeCodeTrack(const AVStream& stream) { return stream.codecpar->codec_tag == MKTAG('t', 'm', 'c', 'd'); }

/// The first stream of the file that `matches`, or null.
template <typename Predicate>
const AVStream* FirstStream(const AVFormatContext& context, Predicate&& matches)
{
    for (unsigned i = 0; i < context.nb_streams; ++i)
        if (matches(*context.streams[i]))
            return context.streams[i];
    return nullptr;
}

const char* TimeCodeTag(const AVStream& stream) { return Tag(stream.metadata, "timecode"); }

TimeCodeSource FindTimeCode(const AVFormatContext& context)
{
    if (const AVStream* track = FirstStream(context, [](const AVStream& s) { return IsTimeCodeTrack(s) && TimeCodeTag(s); }))
        return {TimeCodeTag(*track), "timecode track"};
    if (const AVStream* video = FirstStream(context, [](const AVStream& s) { return IsVideo(s) && TimeCodeTag(s); }))
        return {TimeCodeTag(*video), "video stream"};
    if (const char* text = Tag(context.metadata, "timecode"))
        return {text, "file"};
    return {};
}

/// The rate the timecode counts at: the first video stream's frame rate, else the timecode
/// track's.
AVRational TimeCodeRate(const AVFormatContext& context)
{
    const AVStream* counting = FirstStream(context, IsVideo);
    if (counting == nullptr)
        counting = FirstStream(context, IsTimeCodeTrack);
    return counting != nullptr ? FrameRate(*counting) : AVRational{0, 0};
}

/// The file's start timecode as a table with one jump at time 0, or null when there is none.
std::shared_ptr<TimeCodeTable> StartTimeCode(const AVFormatContext& context, int64_t duration, Warnings& warnings)
{
    const TimeCodeSource source = FindTimeCode(context);
    if (source.text == nullptr)
        return nullptr;
    const std::string text = source.text;
    if (!TimeCodeString().IsStringFormatValid(text)) {
        warnings.Omitted("the start timecode " + text + " is not a timecode text of the model");
        return nullptr;
    }
    auto table = std::make_shared<TimeCodeTable>();
    table->FullyQualifiedName(MediaAssets::FullyQualifiedName(kTimeCodeTableName));
    table->Standard(MapTimeCodeStandard(text, TimeCodeRate(context), text.find(';') != std::string::npos, warnings));
    table->Type(source.type);
    table->TimeCodeJumpItems().Insert(
        std::make_shared<TimeCodeJump>(MediaAssets::TimePoint(0), TimeCodeString(text), duration));
    return table;
}

/// The file's duration in nanoseconds; -1 when the file gives none, or one that 64-bit nanoseconds
/// cannot hold (about 292 years: a corrupt header), which av_rescale would turn into INT64_MIN.
int64_t FileDuration(const AVFormatContext& context)
{
    constexpr int64_t kLongest = INT64_MAX / (kNanosecondsPerSecond / AV_TIME_BASE);
    if (context.duration == AV_NOPTS_VALUE || context.duration < 0 || context.duration > kLongest)
        return -1;
    return av_rescale(context.duration, kNanosecondsPerSecond, AV_TIME_BASE);
}

TimeBoundary At(int64_t nanoseconds) { return TimeBoundary(MediaAssets::TimePoint(nanoseconds), false); }

/// Where the last frame starts (or, without pictures, the last audio sample): the out point, which
/// lies inside the stretch it closes, as a stretch holds its in point and not its out point. -1
/// when no rate tells, or when the file is a single frame.
int64_t LastFrame(const AVFormatContext& context, int64_t duration)
{
    AVRational rate{0, 0};
    if (const AVStream* video = FirstStream(context, [](const AVStream& s) { return IsVideo(s) && FrameRate(s).num > 0; }))
        rate = FrameRate(*video);
    else if (const AVStream* audio = FirstStream(context, [](const AVStream& s) {
                 return s.codecpar->codec_type == AVMEDIA_TYPE_AUDIO && s.codecpar->sample_rate > 0;
             }))
        rate = {audio->codecpar->sample_rate, 1};
    if (rate.num <= 0 || rate.den <= 0)
        return -1;
    const int64_t last = duration - av_rescale(kNanosecondsPerSecond, rate.den, rate.num);
    return last > 0 ? last : -1;
}

/// One stretch from 0 to the file's duration, in at 0 and out at the last frame; no stretch and
/// unset boundaries when the file gives no duration.
TimeBoundsArray Span(int64_t duration, int64_t lastFrame)
{
    TimeBoundsArray bounds;
    if (duration >= 0) {
        bounds.Insert(TimeBounds(At(0), At(duration)));
        bounds.InBoundary(At(0));
        if (lastFrame > 0)
            bounds.OutBoundary(At(lastFrame));
    }
    return bounds;
}

/// The file's creation time, as its tags give it, in seconds; 0 without one.
DateTime CreationDate(const AVFormatContext& context)
{
    const char* text = Tag(context.metadata, "creation_time");
    if (text == nullptr)
        return 0;
    const auto [valid, point] = TimePoints::Iso8601TimePointParser().TryParse(text);
    if (!valid)
        return 0;
    const int64_t nanoseconds = point.ToNanoseconds();
    return static_cast<DateTime>(nanoseconds / kNanosecondsPerSecond - (nanoseconds % kNanosecondsPerSecond < 0 ? 1 : 0));
}

/// A track of the asset fed by `channels` channels of essence `essence`, which records them.
std::shared_ptr<Track> MakeTrack(const std::string& id, const std::string& name,
                                 const std::shared_ptr<MediaAssets::Stream>& stream, Essence& essence, int channels)
{
    auto track = std::make_shared<Track>(TrackId(id), name);
    for (int32_t number = 0; number < channels; ++number) {
        auto channel = std::make_shared<TrackChannelToRemove>();
        channel->Stream(StreamReference(stream));
        channel->EssenceNr(essence.Nr());
        channel->ChannelNr(number);
        track->Channels().push_back(channel);
        essence.TrackChannels().Insert(std::make_shared<TrackChannel>(TrackId(id), number));
    }
    return track;
}

}  // namespace

ProbeResult Describe(OpenedMedia& media, const std::string& name, std::unique_ptr<Location> location)
{
    const AVFormatContext& context = media.Context();
    ProbeResult result;
    Warnings warnings;

    const int64_t duration = FileDuration(context);
    const TimeBoundsArray span = Span(duration, LastFrame(context, duration));
    auto stream = std::make_shared<MediaAssets::Stream>(StreamId(name + "/stream"));
    stream->Format(MapWrapperFormat(Container(media), warnings));
    stream->Timebounds(span);
    if (duration < 0)
        warnings.Omitted("the file gives no duration: the time bounds are left unset");

    const std::shared_ptr<TimeCodeTable> timecode = StartTimeCode(context, std::max<int64_t>(duration, 0), warnings);
    for (unsigned i = 0; i < context.nb_streams; ++i) {
        const AVStream& source = *context.streams[i];
        std::unique_ptr<Essence> essence;
        if (IsVideo(source))
            essence = Video(media, source, result, warnings);
        else if (source.codecpar->codec_type == AVMEDIA_TYPE_AUDIO)
            essence = Audio(source, warnings);
        else
            essence = std::make_unique<DataEssence>();
        essence->Nr(static_cast<int32_t>(i));
        if (timecode)
            essence->Timecodes().Insert(timecode);
        stream->Essences().Add(std::move(essence));
    }
    if (location)
        stream->Locations().Add(std::move(location));

    result.resource = std::make_shared<MediaResource>(MediaResourceId(name + "/resource"));
    result.resource->Name(name);
    result.resource->Timebounds(span);
    result.resource->CreationDate(CreationDate(context));
    result.resource->Streams().push_back(StreamReference(stream));

    MediaAsset& asset = result.asset;
    asset.Id(MediaAssetId(name));
    const char* title = Tag(context.metadata, "title");
    asset.Name(title != nullptr ? title : name);
    asset.AssetType(AssetType::media);
    asset.PhysicalTimebounds(span);
    asset.CreationDate(result.resource->CreationDate());
    asset.MediaResources().Insert(MediaResourceReference(result.resource));
    int videos = 0;
    int audios = 0;
    for (int32_t i = 0; i < stream->Essences().Size(); ++i) {
        Essence& essence = stream->Essences()[i];
        if (essence.GetType() == Essence::Video) {
            ++videos;
            asset.Tracks().Insert(
                MakeTrack("V" + std::to_string(videos), "Video " + std::to_string(videos), stream, essence, 1));
        } else if (essence.GetType() == Essence::Audio) {
            ++audios;
            asset.Tracks().Insert(MakeTrack("A" + std::to_string(audios), "Audio " + std::to_string(audios), stream, essence,
                                            essence.ChannelCount()));
        }
    }
    result.warnings = warnings.Take();
    return result;
}

}  // namespace Orvik::DataModel::MediaAssets::Probe
