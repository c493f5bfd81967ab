#include "SampleAssets.h"

#include <Orvik/DataModel/MediaAssets.h>

#include <memory>

namespace Orvik::Samples {

using namespace DataModel::MediaAssets;

namespace {

constexpr int64_t kSecond = 1000000000;

TimeBoundary At(int64_t seconds) { return TimeBoundary(TimePoint(seconds * kSecond), false); }

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

}  // namespace

MediaAsset MakeSampleAsset()
{
    MediaAsset asset(MediaAssetId("asset-goal-0815"));
    asset.Name("Goal, 81st minute");
    asset.AssetType(AssetType::media);

    auto resource = std::make_shared<MediaResource>(MediaResourceId("resource-hires"));
    resource->Adopt(MakeHighResolutionStream());
    asset.MediaResources().Insert(MediaResourceReference(resource));

    // The channel shares the resource's stream object, as a loaded asset does.
    auto track = std::make_shared<Track>(TrackId("track-video"), "Program");
    auto channel = std::make_shared<TrackChannelToRemove>();
    channel->Stream(StreamReference(resource->Streams().front().Pointer()));
    channel->EssenceNr(0);
    track->Channels().push_back(channel);
    asset.Tracks().Insert(track);

    asset.PhysicalTimebounds().Insert(TimeBounds(At(0), At(20)));
    asset.InBoundary(At(2));
    asset.OutBoundary(At(12));
    return asset;
}

AnglesMediaAssetGroup MakeSampleGroup()
{
    AnglesMediaAssetGroup group(MediaAssetGroupId("group-goal-0815"));
    group.Name("Goal, 81st minute: angles");
    group.Items().push_back(
        std::make_shared<AnglesMediaAssetGroupItem>("Main", MediaAssetReference(MediaAssetId("asset-goal-0815"))));
    group.Items().push_back(std::make_shared<AnglesMediaAssetGroupItem>(
        "Reverse", MediaAssetReference(MediaAssetId("asset-goal-0815-reverse"))));
    group.Metadata().Set(std::make_shared<AnglesPelkOperatorMetadataProfile>(PelkId(ZanServerId(120), 1, 2, 3)));
    return group;
}

}  // namespace Orvik::Samples
