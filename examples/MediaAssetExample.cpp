// A media asset handed from one component to another: the sender builds it, clones it for the
// hand-over, and the receiver compares the clone with its own copy, prints the video codec and
// the clip's location, and checks the asset's time bounds. The asset is built step by step in
// sample/SampleAssets.cpp, which the orvik-asset tool prints as its example too.

#include <SampleAssets.h>

#include <Orvik/DataModel/MediaAssets.h>

#include <iostream>
#include <memory>
#include <stdexcept>

using namespace Orvik::DataModel::MediaAssets;

namespace {

constexpr int64_t kSecond = 1000000000;

}  // namespace

int main()
{
    const MediaAsset asset = Orvik::Samples::MakeSampleAsset();
    std::cout << "Built asset " << asset.Id().Value() << " (" << ToString(asset.AssetType()) << ") with "
              << asset.Tracks().Size() << " track and " << asset.MediaResources().Size() << " resource\n";

    try {
        MediaAsset again = Orvik::Samples::MakeSampleAsset();
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
