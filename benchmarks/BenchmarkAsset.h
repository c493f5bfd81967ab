#pragma once

// The realistic asset that the clone and compare benchmarks work on, and its scaled variants.

#include <Orvik/DataModel/MediaAssets.h>

#include <cstddef>
#include <memory>

namespace OrvikBenchmarks {

/// How many of each part an asset gets. The defaults are the full asset: 16 tracks of 2 channels
/// over loaded streams, 4 layouts, 4 resources of 3 streams, each stream with 1 video, 8 audio
/// and 1 data essence (track channels and a shared timecode table of 10 jumps) and 2 locations,
/// 64 annotations, and an operator profile with 5 keywords.
struct AssetShape {
    size_t tracks = 16;
    size_t layouts = 4;
    size_t resources = 4;
    size_t streamsPerResource = 3;
    size_t audioEssencesPerStream = 8;
    size_t annotations = 64;
};

Orvik::DataModel::MediaAssets::MediaAsset MakeAsset(const AssetShape& shape = AssetShape());
std::unique_ptr<Orvik::DataModel::MediaAssets::Stream> MakeStream(size_t index, size_t audioEssences);

}  // namespace OrvikBenchmarks
