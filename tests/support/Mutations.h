#pragma once

#include "ArbitraryObjects.h"

#include <Orvik/DataModel/MediaAssets/AnglesPelkOperatorMetadataProfile.h>
#include <Orvik/DataModel/MediaAssets/MediaAsset.h>
#include <Orvik/DataModel/MediaAssets/MediaAssetGroup.h>
#include <Orvik/DataModel/MediaAssets/MediaResource.h>
#include <Orvik/DataModel/MediaAssets/PelkOperatorMetadataProfile.h>
#include <Orvik/DataModel/MediaAssets/Stream.h>

#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace Orvik::Testing {

/// Changes of one field of a model object, for the properties that must notice each field: that
/// FirstDifference names the changed field, that the JSON form writes and reads it.
///
/// The field a mutation changed, by its path as FirstDifference writes it ("tracks[2].name",
/// "metadata[\"orvik.pelkoperator\"].rating"), and whether operator== compares it: objectId, the
/// operator profile's protection flags, a track's channels, a wildcard essence number and the
/// objects behind references compared by id are held but not compared.
struct Change {
    std::string path;
    bool compared = true;
};

/// Changes one field of `target`, chosen with `any`; nothing when the target has no such field (an
/// empty collection, another kind) and is left as it was. What the target shares with another
/// object (a plain copy or a clone with its source) is replaced by a changed copy, never changed in
/// place, and an asset's layouts keep showing only the asset's own tracks.
template <typename T>
using Mutation = std::function<std::optional<Change>(T& target, ArbitraryObjects& any)>;

extern const std::vector<Mutation<DataModel::MediaAssets::MediaAsset>> kMediaAssetMutations;
extern const std::vector<Mutation<DataModel::MediaAssets::MediaResource>> kMediaResourceMutations;
extern const std::vector<Mutation<DataModel::MediaAssets::Stream>> kStreamMutations;
/// For generic and angles groups alike; items are replaced, never changed.
extern const std::vector<Mutation<DataModel::MediaAssets::MediaAssetGroup>> kMediaAssetGroupMutations;
extern const std::vector<Mutation<DataModel::MediaAssets::PelkOperatorMetadataProfile>> kPelkOperatorProfileMutations;
extern const std::vector<Mutation<DataModel::MediaAssets::AnglesPelkOperatorMetadataProfile>>
    kAnglesPelkOperatorProfileMutations;

/// One of `mutations`, chosen with `any`, applied to `target`.
template <typename T>
std::optional<Change> Mutate(T& target, ArbitraryObjects& any, const std::vector<Mutation<T>>& mutations)
{
    return mutations[any.Below(mutations.size())](target, any);
}

}  // namespace Orvik::Testing
