#include "BenchmarkAsset.h"

#include <string>

using namespace Orvik::DataModel::MediaAssets;

namespace OrvikBenchmarks {
namespace {

std::shared_ptr<TimeCodeTable> MakeTimecodeTable()
{
    auto table = std::make_shared<TimeCodeTable>();
    table->FullyQualifiedName(FullyQualifiedName("timecode.ltc"));
    table->Standard(TimeCodeStandard::SmptePal25);
    table->Type("LTC");
    for (int jump = 0; jump < 10; ++jump)
        table->TimeCodeJumpItems().Insert(std::make_shared<TimeCodeJump>(
            TimePoint(jump * 1000000000LL), TimeCodeString("10:00:0" + std::to_string(jump) + ":00"), 25));
    return table;
}

template <typename E>
E WithChannels(E essence, int32_t nr, const std::shared_ptr<TimeCodeTable>& timecodes)
{
    essence.Nr(nr);
    essence.ChannelCount(2);
    essence.TrackChannels().Insert(std::make_shared<TrackChannel>(Identifier("track-" + std::to_string(nr)), 1));
    essence.TrackChannels().Insert(std::make_shared<TrackChannel>(Identifier("track-" + std::to_string(nr)), 2));
    essence.Timecodes().Insert(timecodes);
    return essence;
}

}  // namespace

std::unique_ptr<Stream> MakeStream(size_t index, size_t audioEssences)
{
    auto stream = std::make_unique<Stream>(StreamId("stream-" + std::to_string(index)));
    stream->Format(WrapperFormat::MXFOP1a);
    const auto timecodes = MakeTimecodeTable();
    VideoEssence video;
    video.VideoCodec(VideoCodingFormat::AvidDNxHDHigh);
    video.FourCC("AVdn");
    stream->Essences().Add(WithChannels(std::move(video), 0, timecodes));
    for (size_t audio = 0; audio < audioEssences; ++audio) {
        AudioEssence essence;
        essence.AudioCodec(AudioCodingFormat::PCM);
        essence.FourCC("twos");
        stream->Essences().Add(WithChannels(std::move(essence), static_cast<int32_t>(audio + 1), timecodes));
    }
    stream->Essences().Add(WithChannels(DataEssence(), static_cast<int32_t>(audioEssences + 1), timecodes));
    FileLocation file;
    file.Name("clip-" + std::to_string(index) + ".mxf");
    file.Uri(URI("file:///media/clip-" + std::to_string(index) + ".mxf"));
    stream->Locations().Add(std::move(file));
    stream->Locations().Add(ZanLocation(ZanServerId(120), "A7F3-" + std::to_string(index)));
    return stream;
}

MediaAsset MakeAsset(const AssetShape& shape)
{
    MediaAsset asset(MediaAssetId("asset"));
    asset.AssetType(AssetType::media);
    asset.Name("Goal, 81st minute");
    asset.Ancestor(MediaAssetReference(MediaAssetId("ancestor")));

    std::vector<std::shared_ptr<Stream>> streams;
    for (size_t r = 0; r < shape.resources; ++r) {
        auto resource = std::make_shared<MediaResource>(MediaResourceId("resource-" + std::to_string(r)));
        for (size_t s = 0; s < shape.streamsPerResource; ++s) {
            resource->Adopt(MakeStream(r * shape.streamsPerResource + s, shape.audioEssencesPerStream));
            streams.push_back(resource->Streams().back().Pointer());
        }
        asset.MediaResources().Insert(MediaResourceReference(resource));
    }

    std::vector<std::shared_ptr<Track>> tracks;
    for (size_t t = 0; t < shape.tracks; ++t) {
        auto track = std::make_shared<Track>(TrackId("track-" + std::to_string(t)), "Track " + std::to_string(t));
        for (int32_t channel = 1; channel <= 2; ++channel) {
            auto trackChannel = std::make_shared<TrackChannelToRemove>();
            if (!streams.empty())
                trackChannel->Stream(StreamReference(streams[t % streams.size()]));
            trackChannel->ChannelNr(channel);
            track->Channels().push_back(trackChannel);
        }
        asset.Tracks().Insert(track);
        tracks.push_back(track);
    }

    for (size_t l = 0; l < shape.layouts; ++l) {
        auto layout = std::make_shared<TrackLayout>(Identifier("layout-" + std::to_string(l)));
        TrackLayoutItem item(Identifier("item-" + std::to_string(l)));
        for (size_t t = l; t < tracks.size(); t += shape.layouts)
            item.Tracks().Insert(tracks[t]);
        layout->TrackLayoutItems().Insert(item);
        asset.TrackLayouts().Insert(layout);
    }

    for (size_t a = 0; a < shape.annotations; ++a) {
        auto annotation = std::make_shared<Annotation>(AnnotationType::CuePoint, "cue " + std::to_string(a));
        annotation->TimeBounds(TimeBounds(TimeBoundary(TimePoint(static_cast<int64_t>(a)), false),
                                          TimeBoundary(TimePoint(static_cast<int64_t>(a) + 1), false)));
        asset.Annotations().push_back(annotation);
    }

    auto profile = std::make_shared<PelkOperatorMetadataProfile>(PelkId(ZanServerId(120), 1, 2, 3, 'B'));
    for (size_t k = 0; k < 5; ++k)
        profile->Keyword(k, "keyword " + std::to_string(k));
    asset.Metadata().Set(profile);
    return asset;
}

}  // namespace OrvikBenchmarks
