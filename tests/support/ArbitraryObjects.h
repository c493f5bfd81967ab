#pragma once

#include <Orvik/DataModel/MediaAssets/AnglesPelkOperatorMetadataProfile.h>
#include <Orvik/DataModel/MediaAssets/Annotation.h>
#include <Orvik/DataModel/MediaAssets/Essence.h>
#include <Orvik/DataModel/MediaAssets/Location.h>
#include <Orvik/DataModel/MediaAssets/MediaAsset.h>
#include <Orvik/DataModel/MediaAssets/MediaAssetGroup.h>
#include <Orvik/DataModel/MediaAssets/MediaResource.h>
#include <Orvik/DataModel/MediaAssets/PelkOperatorMetadataProfile.h>
#include <Orvik/DataModel/MediaAssets/Stream.h>
#include <Orvik/DataModel/MediaAssets/TimeBoundsArray.h>
#include <Orvik/DataModel/MediaAssets/TimeCodeTable.h>
#include <Orvik/DataModel/MediaAssets/Track.h>
#include <Orvik/DataModel/MediaAssets/TrackLayout.h>

#include <cstddef>
#include <cstdint>
#include <memory>
#include <random>
#include <string>
#include <vector>

namespace Orvik::Testing {

/// Arbitrary, valid model objects for property tests, fuzz targets and benchmarks.
///
/// Built from a seed, the same seed yields the same objects in the same order of calls; built
/// from a byte buffer, every choice is read from the bytes (zeros once they run out), so a
/// fuzzer steers the objects. Over many seeds the objects use every field, every kind of essence,
/// location, profile and group item, and every value of every enumeration, with the sharing the
/// model really has: the essences of a stream share timecode tables, track channels point (by a
/// loaded reference) at streams of the asset's own resources or hold only a stream id, layout
/// items point at the asset's own tracks, and metadata dictionaries hold nothing or one of the
/// two operator profiles. Sorted collections never receive a refused duplicate, annotations are
/// never null, so every object can be cloned.
///
/// The tracks that a layout returned by TrackLayout() points at are kept alive by this object.
class ArbitraryObjects {
public:
    explicit ArbitraryObjects(uint64_t seed);
    /// Reads the choices from `data`, which must outlive this object.
    ArbitraryObjects(const uint8_t* data, size_t size);

    DataModel::MediaAssets::MediaAsset MediaAsset();
    DataModel::MediaAssets::MediaResource MediaResource();
    DataModel::MediaAssets::Stream Stream();
    std::unique_ptr<DataModel::MediaAssets::Essence> Essence();
    std::unique_ptr<DataModel::MediaAssets::Location> Location();
    /// A track whose channels refer to new streams or to stream ids only.
    DataModel::MediaAssets::Track Track();
    /// A layout whose items point at tracks kept by this object.
    DataModel::MediaAssets::TrackLayout TrackLayout();
    DataModel::MediaAssets::Annotation Annotation();
    DataModel::MediaAssets::TimeBoundsArray TimeBoundsArray();
    DataModel::MediaAssets::MetadataProfileDictionary MetadataDictionary();
    DataModel::MediaAssets::PelkOperatorMetadataProfile PelkOperatorProfile();
    DataModel::MediaAssets::AnglesPelkOperatorMetadataProfile AnglesPelkOperatorProfile();
    DataModel::MediaAssets::TimeCodeTable TimeCodeTable();
    /// A generic group (any type text) holding plain and angles items.
    std::shared_ptr<DataModel::MediaAssets::MediaAssetGroup> MediaAssetGroup();
    /// An angles group, held as its base, with mostly angles items.
    std::shared_ptr<DataModel::MediaAssets::MediaAssetGroup> AnglesMediaAssetGroup();

    /// The engine: a number below `count` (0 when `count` is 0 or 1).
    uint64_t Below(uint64_t count);
    /// A number from `min` to `max`, both included.
    int64_t Between(int64_t min, int64_t max);
    bool Flip() { return Below(2) == 1; }
    /// A short text, sometimes empty, sometimes with quotes, backslashes, control or multi-byte
    /// characters.
    std::string Text();

private:
    uint64_t Draw(size_t bytes);
    std::mt19937_64 engine;
    bool fromBytes = false;
    const uint8_t* data = nullptr;
    size_t size = 0;
    size_t position = 0;
    std::vector<std::shared_ptr<DataModel::MediaAssets::Track>> keptTracks;
};

}  // namespace Orvik::Testing
