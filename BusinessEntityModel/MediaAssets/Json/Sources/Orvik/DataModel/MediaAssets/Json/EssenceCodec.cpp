// Essences, tagged by their "type": the members every kind has, then the kind's own.

#include "Codecs.h"

namespace Orvik::DataModel::MediaAssets::Json::detail {

namespace {

// The six members that every kind has come first, in this order, in each table below.
constexpr auto kAudioMembers = MemberNames("objectId", "metadata", "channelCount", "nr", "trackChannels", "timecodes",
                                           "audioCodec", "bitRate", "bitRateMode", "sampleRate", "bitDepth", "fourCC");
constexpr auto kDataMembers = MemberNames("objectId", "metadata", "channelCount", "nr", "trackChannels", "timecodes");
constexpr auto kVideoMembers =
    MemberNames("objectId", "metadata", "channelCount", "nr", "trackChannels", "timecodes", "videoCodec", "bitRate",
                "bitRateMode", "bitDepth", "frameRate", "height", "width", "chromaSubSampling", "colorSpace", "scanMode",
                "fourCC", "aspectRatio", "boxing");
constexpr auto kTrackChannelMembers = MemberNames("trackId", "channelNr");
constexpr auto kAspectRatioMembers = MemberNames("widthFactor", "heightFactor");

void WriteBase(Writer& w, const Essence& essence)
{
    w.String("type", Essence::ToString(essence.GetType()));
    w.Int("objectId", essence.ObjectId());
    w.Member("metadata", [&] { Write(w, essence.Metadata()); });
    w.Int("channelCount", essence.ChannelCount());
    w.Int("nr", essence.Nr());
    w.Array("trackChannels", essence.TrackChannels(), [&](const std::shared_ptr<TrackChannel>& channel) {
        if (!channel)
            w.Fail("expected a track channel, found a null pointer");
        w.StartObject();
        w.String("trackId", channel->TrackId().Value());
        w.Int("channelNr", channel->ChannelNr());
        w.EndObject();
    });
    w.Array("timecodes", essence.Timecodes(), [&](const std::shared_ptr<TimeCodeTable>& table) { Write(w, table); });
}

void ReadBase(Reader& r, size_t index, value v, Essence& essence)
{
    switch (index) {
    case 0:
        essence.ObjectId(r.Int64(v));
        break;
    case 1:
        Read(r, v, essence.Metadata());
        break;
    case 2:
        essence.ChannelCount(r.Int32(v));
        break;
    case 3:
        essence.Nr(r.Int32(v));
        break;
    case 4: {
        ReadInDocumentOrder<std::shared_ptr<TrackChannel>>(r, v, essence.TrackChannels(), [&](value element) {
            auto channel = std::make_shared<TrackChannel>();
            r.Object(element, kTrackChannelMembers, [&](size_t member, value field) {
                if (member == 0)
                    channel->TrackId(Identifier(r.Text(field)));
                else
                    channel->ChannelNr(r.Int32(field));
            });
            return channel;
        });
        break;
    }
    default: {
        ReadInDocumentOrder<std::shared_ptr<TimeCodeTable>>(r, v, essence.Timecodes(),
                                                            [&](value element) { return ReadTimeCodeTable(r, element); });
    }
    }
}

void WriteOwn(Writer& w, const AudioEssence& audio)
{
    w.String("audioCodec", ToString(audio.AudioCodec()));
    w.Int("bitRate", audio.BitRate());
    w.String("bitRateMode", ToString(audio.BitRateMode()));
    w.Member("sampleRate", [&] { Write(w, audio.SampleRate()); });
    w.Int("bitDepth", audio.BitDepth());
    w.String("fourCC", audio.FourCC());
}

std::unique_ptr<Essence> ReadAudio(Reader& r, Reader::Rest& rest)
{
    auto audio = std::make_unique<AudioEssence>();
    r.ReadRest(rest, kAudioMembers, [&](size_t index, value v) {
        switch (index) {
        case 6:
            audio->AudioCodec(r.Enumeration(v, &ToAudioCodingFormat, "AudioCodingFormat"));
            break;
        case 7:
            audio->BitRate(r.Int32(v));
            break;
        case 8:
            audio->BitRateMode(r.Enumeration(v, &ToBitRateMode, "BitRateMode"));
            break;
        case 9:
            audio->SampleRate(ReadRate(r, v));
            break;
        case 10:
            audio->BitDepth(r.Int32(v));
            break;
        case 11:
            audio->FourCC(r.Text(v));
            break;
        default:
            ReadBase(r, index, v, *audio);
        }
    });
    return audio;
}

std::unique_ptr<Essence> ReadData(Reader& r, Reader::Rest& rest)
{
    auto data = std::make_unique<DataEssence>();
    r.ReadRest(rest, kDataMembers, [&](size_t index, value v) { ReadBase(r, index, v, *data); });
    return data;
}

void WriteOwn(Writer& w, const VideoEssence& video)
{
    w.String("videoCodec", ToString(video.VideoCodec()));
    w.Int("bitRate", video.BitRate());
    w.String("bitRateMode", ToString(video.BitRateMode()));
    w.Int("bitDepth", video.BitDepth());
    w.Member("frameRate", [&] { Write(w, video.FrameRate()); });
    w.Int("height", video.Height());
    w.Int("width", video.Width());
    w.String("chromaSubSampling", ToString(video.ChromaSubSampling()));
    w.String("colorSpace", ToString(video.ColorSpace()));
    w.String("scanMode", ToString(video.ScanMode()));
    w.String("fourCC", video.FourCC());
    w.Member("aspectRatio", [&] {
        w.StartObject();
        w.Int("widthFactor", video.AspectRatio().WidthFactor());
        w.Int("heightFactor", video.AspectRatio().HeightFactor());
        w.EndObject();
    });
    w.String("boxing", ToString(video.Boxing()));
}

std::unique_ptr<Essence> ReadVideo(Reader& r, Reader::Rest& rest)
{
    auto video = std::make_unique<VideoEssence>();
    r.ReadRest(rest, kVideoMembers, [&](size_t index, value v) {
        switch (index) {
        case 6:
            video->VideoCodec(r.Enumeration(v, &ToVideoCodingFormat, "VideoCodingFormat"));
            break;
        case 7:
            video->BitRate(r.Int32(v));
            break;
        case 8:
            video->BitRateMode(r.Enumeration(v, &ToBitRateMode, "BitRateMode"));
            break;
        case 9:
            video->BitDepth(r.Int32(v));
            break;
        case 10:
            video->FrameRate(ReadRate(r, v));
            break;
        case 11:
            video->Height(r.Int32(v));
            break;
        case 12:
            video->Width(r.Int32(v));
            break;
        case 13:
            video->ChromaSubSampling(r.Enumeration(v, &ToChromaSubSampling, "ChromaSubSampling"));
            break;
        case 14:
            video->ColorSpace(r.Enumeration(v, &ToColorSpace, "ColorSpace"));
            break;
        case 15:
            video->ScanMode(r.Enumeration(v, &ToScanMode, "ScanMode"));
            break;
        case 16:
            video->FourCC(r.Text(v));
            break;
        case 17: {
            AspectRatio ratio;
            r.Object(v, kAspectRatioMembers, [&](size_t member, value factor) {
                if (member == 0)
                    ratio.WidthFactor(r.Int32(factor));
                else
                    ratio.HeightFactor(r.Int32(factor));
            });
            video->AspectRatio(ratio);
            break;
        }
        case 18:
            video->Boxing(r.Enumeration(v, &ToBoxing, "Boxing"));
            break;
        default:
            ReadBase(r, index, v, *video);
        }
    });
    return video;
}

}  // namespace

void Write(Writer& w, const Essence& essence)
{
    w.StartObject();
    WriteBase(w, essence);
    if (const auto* audio = dynamic_cast<const AudioEssence*>(&essence))
        WriteOwn(w, *audio);
    else if (const auto* video = dynamic_cast<const VideoEssence*>(&essence))
        WriteOwn(w, *video);
    else if (dynamic_cast<const DataEssence*>(&essence) == nullptr)
        w.Fail("expected an audio, video or data essence, found another class");
    w.EndObject();
}

std::unique_ptr<Essence> ReadEssence(Reader& r, value v)
{
    std::unique_ptr<Essence> essence;
    r.Polymorphic(v, "type", [&](std::string_view type, Reader::Rest& rest) {
        if (type == "Audio")
            essence = ReadAudio(r, rest);
        else if (type == "Video")
            essence = ReadVideo(r, rest);
        else if (type == "Data")
            essence = ReadData(r, rest);
        else {
            const PathSegment segment(r.CurrentPath(), "type");
            r.Fail("expected \"Audio\", \"Data\" or \"Video\", found \"" + std::string(type) + "\"");
        }
    });
    return essence;
}

}  // namespace Orvik::DataModel::MediaAssets::Json::detail
