// Writes an asset as JSON and reads it back: the smallest use of the installed JSON library,
// compiled without any JSON package.

#include <Orvik/DataModel/MediaAssets.h>
#include <Orvik/DataModel/MediaAssets/Json.h>

#include <iostream>
#include <memory>

using namespace Orvik::DataModel::MediaAssets;

int main()
{
    MediaAsset asset(MediaAssetId("consumer-asset"));
    asset.AssetType(AssetType::train);
    asset.Tracks().Insert(std::make_shared<Track>(TrackId("track-1"), "Program"));

    const std::string document = Json::ToJson(asset);
    const bool equal = Json::FromJson<MediaAsset>(document) == asset;
    std::cout << "json-consumer: " << document.size() << " bytes, " << Json::SchemaName(document) << " document "
              << (equal ? "reads back equal" : "reads back different") << "\n";
    return equal ? 0 : 1;
}
