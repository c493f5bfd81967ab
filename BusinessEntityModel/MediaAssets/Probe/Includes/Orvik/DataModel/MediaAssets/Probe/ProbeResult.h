#pragma once

#include <Orvik/DataModel/MediaAssets/FieldOrdering.h>
#include <Orvik/DataModel/MediaAssets/MediaAsset.h>
#include <Orvik/DataModel/MediaAssets/MediaResource.h>
#include <Orvik/DataModel/MediaAssets/Probe/ProbeWarning.h>

#include <cstdint>
#include <map>
#include <memory>
#include <vector>

namespace Orvik::DataModel::MediaAssets::Probe {

/// What a probe found: the media resource of the file (one stream, with one essence per stream of
/// the file and, for a file on disk, its file location) and a media asset built around it (one
/// track per video essence and one per audio essence, covering the file from time 0 to its
/// duration), with the warnings of what could not be mapped.
struct ProbeResult {
    /// The asset; its one media resource reference holds `resource`, and its tracks' channels
    /// hold the resource's stream.
    MediaAsset asset;
    /// The same resource object as the asset's, for callers who want the resource alone.
    std::shared_ptr<MediaResource> resource;
    /// The dominant field of each interlaced video essence, by essence number: the model's video
    /// essence has a scan mode but no place for the field order.
    std::map<int32_t, FieldOrdering> fieldOrders;
    /// In the order the probe met them.
    std::vector<ProbeWarning> warnings;

    /// True when a mapping fell back to unknown (a warning of kind Unmapped).
    bool HasUnmapped() const
    {
        for (const ProbeWarning& warning : warnings)
            if (warning.kind == ProbeWarning::Unmapped)
                return true;
        return false;
    }
};

}  // namespace Orvik::DataModel::MediaAssets::Probe
