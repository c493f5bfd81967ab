// FromOtio either throws JsonError or returns an asset whose timeline reads back to an equal asset
// and is written again byte for byte.

#include <Orvik/DataModel/MediaAssets.h>
#include <Orvik/DataModel/MediaAssets/Json.h>

#include "FuzzText.h"

#include <string>

using namespace Orvik::DataModel::MediaAssets;

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    MediaAsset first;
    try {
        first = Json::FromOtio(Text(data, size));
    } catch (const Json::JsonError&) {
        return 0;
    }
    const std::string timeline = Json::ToOtio(first, Json::Layout::Compact);
    const MediaAsset second = Json::FromOtio(timeline);
    Check(!FirstDifference(first, second), "what FromOtio accepts reads back equal from its timeline");
    Check(Json::ToOtio(second, Json::Layout::Compact) == timeline,
          "the timeline of what FromOtio accepts is written again byte for byte");
    return 0;
}
