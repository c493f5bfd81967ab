// Builds an asset, clones it and compares the clone: the smallest use of the installed library.

#include <Orvik/DataModel/MediaAssets.h>

#include <iostream>
#include <memory>

using namespace Orvik::DataModel::MediaAssets;

int main()
{
    MediaAsset asset(MediaAssetId("consumer-asset"));
    asset.AssetType(AssetType::train);
    asset.Tracks().Insert(std::make_shared<Track>(TrackId("track-1"), "Program"));

    const MediaAsset clone = asset.Clone();
    const bool equal = clone == asset;
    std::cout << "consumer: clone of " << clone.Id().Value() << " (" << ToString(clone.AssetType()) << ") "
              << (equal ? "equals" : "differs from") << " its source\n";
    return equal ? 0 : 1;
}
