// A media asset handed from one component to another: the sender builds it, clones it for the
// hand-over, and the receiver compares the clone with its own copy, prints the video codec and
// the clip's location, and checks the asset's time bounds.

#include <Orvik/DataModel/MediaAssets.h>

#include <iostream>
#include <memory>
#include <stdexcept>

using namespace Orvik::DataModel::MediaAssets;

namespace {

constexpr int64_t kSecond = 1000000000;

std::unique_ptr<Stream> MakeHighResolutionStream()
{
    auto stream = std::make_unique<Stream>(StreamId("stream-hires"));
    stream->Format(WrapperFormat::MXFOP1a);

    VideoEssence video;
    video.Nr(0);
    video.VideoCodec(VideoCodingFormat::AvidDNxHDHigh);
    video.Width(1920);
    video.Height(1080);
    video.FrameRate(Rate(50, 1));
    video.ScanMode(ScanMode::progressive);
    stream->Essences().Add(std::move(video));

    stream->Locations().Add(ZanLocation(ZanServerId(120), "A7F3"));
    return stream;
}

MediaAsset MakeAsset()
{
    MediaAsset asset(MediaAssetId("asset-goal-0815"));
    asset.Name("Goal, 81st minute");
    asset.AssetType(AssetType::media);

    auto resource = std::make_shared<MediaResource>(MediaResourceId("resource-hires"));
    resource->Adopt(MakeHighResolutionStream());
    asset.MediaResources().Insert(MediaResourceReference(resource));

    auto track = std::make_shared<Track>(TrackId("track-video"), "Program");
    auto channel = std::make_shared<TrackChannelToRemove>();
    channel->Stream(StreamReference(resource->Streams().front().Pointer()));
    channel->EssenceNr(0);
    track->Channels().push_back(channel);
    asset.Tracks().Insert(track);

    asset.PhysicalTimebounds().Insert(TimeBounds(TimeBoundary(TimePoint(0), false), TimeBoundary(TimePoint(20 * kSecond), false)));
    asset.InBoundary(TimeBoundary(TimePoint(2 * kSecond), false));
    asset.OutBoundary(TimeBoundary(TimePoint(12 * kSecond), false));
    return asset;
}

}  // namespace

int main()
{
    const MediaAsset asset = MakeAsset();
    std::cout << "Built asset " << asset.Id().Value() << " (" << ToString(asset.AssetType()) << ") with "
              << asset.Tracks().Size() << " track and " << asset.MediaResources().Size() << " resource\n";

    try {
        MediaAsset again = MakeAsset();
        again.Tracks().Insert(std::make_shared<Track>(TrackId("track-video"), "Program"));
    } catch (const std::runtime_error& error) {
        std::cout << "A second track-video is refused: " << error.what() << '\n';
    }

    const MediaAsset handedOver = asset.Clone();
    if (const auto difference = FirstDifference(handedOver, asset))
        std::cout << "The clone differs from the source at " << difference->Path() << '\n';
    else
        std::cout << "The clone equals the source; its objectId is " << handedOver.ObjectId() << '\n';

    MediaAsset edited = handedOver.Clone();
    edited.Tracks().Front()->Name("Replay");
    if (const auto difference = FirstDifference(handedOver, edited))
        std::cout << "Renamed, it differs at " << difference->Path() << ": " << difference->Left() << " against "
                  << difference->Right() << '\n';

    const Stream& stream = handedOver.MediaResources().Front()->Streams().front().Value();
    const auto& video = static_cast<const VideoEssence&>(stream.Essences()[0]);
    std::cout << "Video codec: " << ToString(video.VideoCodec()) << ", wrapped as " << ToString(stream.Format()) << '\n';
    std::cout << "Stored at video-server location " << stream.Locations()[0].Uri().Value() << '\n';

    const TimeBoundsArray& bounds = handedOver.PhysicalTimebounds();
    std::cout << "In/out from 2 s to 12 s lasts " << handedOver.GetDuration().ToNanoseconds() / kSecond
              << " s; the time bounds are " << (bounds.IsValid() ? "valid" : "not valid") << '\n';
    return 0;
}
