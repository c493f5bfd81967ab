// FirstDifference against operator== on two objects built from the fuzzer's bytes: the second is
// drawn anew, or is a copy or a clone of the first, possibly changed in one field. A difference is
// reported exactly when the objects are unequal, in either direction, and never with two equal
// texts, except for two null annotations (which are unequal).

#include <Orvik/DataModel/MediaAssets.h>
#include <Orvik/DataModel/MediaAssets/FirstDifference.h>

#include "ArbitraryObjects.h"
#include "FuzzText.h"

#include <cstddef>
#include <cstdint>

using namespace Orvik::DataModel::MediaAssets;
using Orvik::Testing::ArbitraryObjects;

namespace {

template <typename T>
void CheckBothWays(const T& a, const T& b)
{
    for (const bool forward : {true, false}) {
        const T& left = forward ? a : b;
        const T& right = forward ? b : a;
        const auto difference = FirstDifference(left, right);
        Check(difference.has_value() == (left != right), "a difference exactly when unequal");
        if (difference)
            Check(difference->Left() != difference->Right() || difference->Left() == "null",
                  "the two sides of a difference read differently");
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    ArbitraryObjects any(data, size);
    switch (any.Below(6)) {
    case 0: {
        const MediaAsset asset = any.MediaAsset();
        MediaAsset other = any.Flip() ? asset.Clone() : any.MediaAsset();
        if (any.Flip() && !other.Annotations().empty())
            other.Annotations()[any.Below(other.Annotations().size())] = nullptr;
        CheckBothWays(asset, other);
        break;
    }
    case 1: {
        const MediaResource resource = any.MediaResource();
        CheckBothWays(resource, any.Flip() ? resource.Clone() : any.MediaResource());
        break;
    }
    case 2: {
        const Stream stream = any.Stream();
        Stream other = any.Flip() ? stream.Clone() : any.Stream();
        if (any.Flip())
            other.Essences().Add(any.Essence());
        CheckBothWays(stream, other);
        break;
    }
    case 3: {
        const auto essence = any.Essence();
        const auto other = any.Flip() ? essence->Clone() : any.Essence();
        CheckBothWays<Essence>(*essence, *other);
        const auto location = any.Location();
        const auto otherLocation = any.Flip() ? location->Clone() : any.Location();
        CheckBothWays<Location>(*location, *otherLocation);
        break;
    }
    case 4: {
        const auto group = any.Flip() ? any.MediaAssetGroup() : any.AnglesMediaAssetGroup();
        const auto other = any.Flip() ? std::make_shared<MediaAssetGroup>(*group) : any.AnglesMediaAssetGroup();
        if (any.Flip() && !other->Items().empty()) {
            const auto donor = any.MediaAssetGroup();
            other->Items().back() = donor->Items().empty() ? nullptr : donor->Items().front();
        }
        CheckBothWays<MediaAssetGroup>(*group, *other);
        break;
    }
    default: {
        const auto dictionary = any.MetadataDictionary();
        CheckBothWays(dictionary, any.MetadataDictionary());
        const auto bounds = any.TimeBoundsArray();
        CheckBothWays(bounds, any.TimeBoundsArray());
        const auto table = any.TimeCodeTable();
        CheckBothWays(table, any.TimeCodeTable());
        const auto annotation = any.Annotation();
        CheckBothWays(annotation, any.Annotation());
        const auto layout = any.TrackLayout();
        CheckBothWays(layout, any.TrackLayout());
        break;
    }
    }
    return 0;
}
