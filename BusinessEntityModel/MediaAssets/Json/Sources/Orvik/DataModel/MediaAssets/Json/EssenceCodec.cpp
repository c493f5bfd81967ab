// Essences, tagged by their "type": the members every kind has, then the kind's own.

#include "Codecs.h"
#include "Collections.h"
#include "FieldTable.h"
#include "TableList.h"

namespace Orvik::DataModel::MediaAssets::Json::detail {

namespace {

using namespace Members;

// clang-format off
constexpr auto kTrackChannelTable = MakeTable(Fields(
    Field(kTrackId,
     [](Writer& w, const TrackChannel& channel) { w.String(channel.TrackId().Value()); },
     [](Reader& r, value& v, TrackChannel& channel) { channel.TrackId(Identifier(r.Text(v))); }),
    Field(kChannelNr,
     [](Writer& w, const TrackChannel& channel) { w.Int(channel.ChannelNr()); },
     [](Reader& r, value& v, TrackChannel& channel) { channel.ChannelNr(r.Int32(v)); })));

constexpr auto kAspectRatioTable = MakeTable(Fields(
    Field(kWidthFactor,
     [](Writer& w, const AspectRatio& ratio) { w.Int(ratio.WidthFactor()); },
     [](Reader& r, value& v, AspectRatio& ratio) { ratio.WidthFactor(r.Int32(v)); }),
    Field(kHeightFactor,
     [](Writer& w, const AspectRatio& ratio) { w.Int(ratio.HeightFactor()); },
     [](Reader& r, value& v, AspectRatio& ratio) { ratio.HeightFactor(r.Int32(v)); })));

/// The members that every kind of essence has, first in each kind's table.
template <typename E>
constexpr auto kEssenceFields = Fields(
    Field(kObjectId,
     [](Writer& w, const E& essence) { w.Int(essence.ObjectId()); },
     [](Reader& r, value& v, E& essence) { essence.ObjectId(r.Int64(v)); }),
    Field(kMetadata,
     [](Writer& w, const E& essence) { Write(w, essence.Metadata()); },
     [](Reader& r, value& v, E& essence) { Read(r, v, essence.Metadata()); }),
    Field(kChannelCount,
     [](Writer& w, const E& essence) { w.Int(essence.ChannelCount()); },
     [](Reader& r, value& v, E& essence) { essence.ChannelCount(r.Int32(v)); }),
    Field(kNr,
     [](Writer& w, const E& essence) { w.Int(essence.Nr()); },
     [](Reader& r, value& v, E& essence) { essence.Nr(r.Int32(v)); }),
    Field(kTrackChannels,
     [](Writer& w, const E& essence) {
         w.Array(essence.TrackChannels(), [&](const std::shared_ptr<TrackChannel>& channel) {
             if (!channel)
                 w.Fail("expected a track channel, found a null pointer");
             WriteObject(w, kTrackChannelTable, *channel);
         });
     },
     [](Reader& r, value& v, E& essence) {
         ReadInDocumentOrder<std::shared_ptr<TrackChannel>>(r, v, essence.TrackChannels(), [&](value& element) {
             auto channel = std::make_shared<TrackChannel>();
             ReadObject(r, element, kTrackChannelTable, *channel);
             return channel;
         });
     }),
    Field(kTimecodes,
     [](Writer& w, const E& essence) {
         w.Array(essence.Timecodes(), [&](const std::shared_ptr<TimeCodeTable>& table) { Write(w, table); });
     },
     [](Reader& r, value& v, E& essence) {
         ReadInDocumentOrder<std::shared_ptr<TimeCodeTable>>(r, v, essence.Timecodes(),
                                                             [&](value& element) { return ReadTimeCodeTable(r, element); });
     }));

constexpr auto kAudioTable = MakeTable(kEssenceFields<AudioEssence>, Fields(
    Field(kAudioCodec,
     [](Writer& w, const AudioEssence& audio) { w.String(ToString(audio.AudioCodec())); },
     [](Reader& r, value& v, AudioEssence& audio) {
         audio.AudioCodec(r.Enumeration(v, &ToAudioCodingFormat, "AudioCodingFormat"));
     }),
    Field(kBitRate,
     [](Writer& w, const AudioEssence& audio) { w.Int(audio.BitRate()); },
     [](Reader& r, value& v, AudioEssence& audio) { audio.BitRate(r.Int32(v)); }),
    Field(kBitRateMode,
     [](Writer& w, const AudioEssence& audio) { w.String(ToString(audio.BitRateMode())); },
     [](Reader& r, value& v, AudioEssence& audio) { audio.BitRateMode(r.Enumeration(v, &ToBitRateMode, "BitRateMode")); }),
    Field(kSampleRate,
     [](Writer& w, const AudioEssence& audio) { Write(w, audio.SampleRate()); },
     [](Reader& r, value& v, AudioEssence& audio) { audio.SampleRate(ReadRate(r, v)); }),
    Field(kBitDepth,
     [](Writer& w, const AudioEssence& audio) { w.Int(audio.BitDepth()); },
     [](Reader& r, value& v, AudioEssence& audio) { audio.BitDepth(r.Int32(v)); }),
    Field(kFourCC,
     [](Writer& w, const AudioEssence& audio) { w.String(audio.FourCC()); },
     [](Reader& r, value& v, AudioEssence& audio) { audio.FourCC(r.Text(v)); })));

constexpr auto kDataTable = MakeTable(kEssenceFields<DataEssence>);

constexpr auto kVideoTable = MakeTable(kEssenceFields<VideoEssence>, Fields(
    Field(kVideoCodec,
     [](Writer& w, const VideoEssence& video) { w.String(ToString(video.VideoCodec())); },
     [](Reader& r, value& v, VideoEssence& video) {
         video.VideoCodec(r.Enumeration(v, &ToVideoCodingFormat, "VideoCodingFormat"));
     }),
    Field(kBitRate,
     [](Writer& w, const VideoEssence& video) { w.Int(video.BitRate()); },
     [](Reader& r, value& v, VideoEssence& video) { video.BitRate(r.Int32(v)); }),
    Field(kBitRateMode,
     [](Writer& w, const VideoEssence& video) { w.String(ToString(video.BitRateMode())); },
     [](Reader& r, value& v, VideoEssence& video) { video.BitRateMode(r.Enumeration(v, &ToBitRateMode, "BitRateMode")); }),
    Field(kBitDepth,
     [](Writer& w, const VideoEssence& video) { w.Int(video.BitDepth()); },
     [](Reader& r, value& v, VideoEssence& video) { video.BitDepth(r.Int32(v)); }),
    Field(kFrameRate,
     [](Writer& w, const VideoEssence& video) { Write(w, video.FrameRate()); },
     [](Reader& r, value& v, VideoEssence& video) { video.FrameRate(ReadRate(r, v)); }),
    Field(kHeight,
     [](Writer& w, const VideoEssence& video) { w.Int(video.Height()); },
     [](Reader& r, value& v, VideoEssence& video) { video.Height(r.Int32(v)); }),
    Field(kWidth,
     [](Writer& w, const VideoEssence& video) { w.Int(video.Width()); },
     [](Reader& r, value& v, VideoEssence& video) { video.Width(r.Int32(v)); }),
    Field(kChromaSubSampling,
     [](Writer& w, const VideoEssence& video) { w.String(ToString(video.ChromaSubSampling())); },
     [](Reader& r, value& v, VideoEssence& video) {
         video.ChromaSubSampling(r.Enumeration(v, &ToChromaSubSampling, "ChromaSubSampling"));
     }),
    Field(kColorSpace,
     [](Writer& w, const VideoEssence& video) { w.String(ToString(video.ColorSpace())); },
     [](Reader& r, value& v, VideoEssence& video) { video.ColorSpace(r.Enumeration(v, &ToColorSpace, "ColorSpace")); }),
    Field(kScanMode,
     [](Writer& w, const VideoEssence& video) { w.String(ToString(video.ScanMode())); },
     [](Reader& r, value& v, VideoEssence& video) { video.ScanMode(r.Enumeration(v, &ToScanMode, "ScanMode")); }),
    Field(kFourCC,
     [](Writer& w, const VideoEssence& video) { w.String(video.FourCC()); },
     [](Reader& r, value& v, VideoEssence& video) { video.FourCC(r.Text(v)); }),
    Field(kAspectRatio,
     [](Writer& w, const VideoEssence& video) { WriteObject(w, kAspectRatioTable, video.AspectRatio()); },
     [](Reader& r, value& v, VideoEssence& video) {
         AspectRatio ratio;
         ReadObject(r, v, kAspectRatioTable, ratio);
         video.AspectRatio(ratio);
     }),
    Field(kBoxing,
     [](Writer& w, const VideoEssence& video) { w.String(ToString(video.Boxing())); },
     [](Reader& r, value& v, VideoEssence& video) { video.Boxing(r.Enumeration(v, &ToBoxing, "Boxing")); })));
// clang-format on

}  // namespace

void Write(Writer& w, const Essence& essence)
{
    if (const auto* audio = dynamic_cast<const AudioEssence*>(&essence))
        WriteTagged(w, kType, Essence::ToString(Essence::Audio), kAudioTable, *audio);
    else if (const auto* video = dynamic_cast<const VideoEssence*>(&essence))
        WriteTagged(w, kType, Essence::ToString(Essence::Video), kVideoTable, *video);
    else if (const auto* data = dynamic_cast<const DataEssence*>(&essence))
        WriteTagged(w, kType, Essence::ToString(Essence::Data), kDataTable, *data);
    else
        w.Fail("expected an audio, video or data essence, found another class");
}

std::unique_ptr<Essence> ReadEssence(Reader& r, value& v)
{
    std::unique_ptr<Essence> essence;
    r.Polymorphic(v, kType, [&](std::string_view type, Reader::Rest& rest) {
        bool failed = false;
        const Essence::Type kind = Essence::ToType(std::string(type), failed);
        if (failed)
            r.FailTag(kType,
                      Alternatives({Essence::ToString(Essence::Audio), Essence::ToString(Essence::Data),
                                    Essence::ToString(Essence::Video)}),
                      type);
        switch (kind) {
        case Essence::Audio:
            essence = ReadInto(r, rest, kAudioTable, std::make_unique<AudioEssence>());
            break;
        case Essence::Video:
            essence = ReadInto(r, rest, kVideoTable, std::make_unique<VideoEssence>());
            break;
        case Essence::Data:
            essence = ReadInto(r, rest, kDataTable, std::make_unique<DataEssence>());
            break;
        }
    });
    return essence;
}

void AddEssenceTables(std::vector<TableMembers>& tables)
{
    tables.push_back({"trackChannel", NamesOf(kTrackChannelTable)});
    tables.push_back({"aspectRatio", NamesOf(kAspectRatioTable)});
    tables.push_back({"audioEssence", NamesOf(kAudioTable)});
    tables.push_back({"dataEssence", NamesOf(kDataTable)});
    tables.push_back({"videoEssence", NamesOf(kVideoTable)});
}

}  // namespace Orvik::DataModel::MediaAssets::Json::detail
