#pragma once

// The same data as the benchmark asset in plain structs (std::string, std::vector,
// std::unique_ptr), with a hand-written deep copy and comparison: the yardstick for the cost of
// MediaAsset::Clone and operator==. Channels of tracks own their stream copies and essences share
// their timecode table, as in the model, so both make about the same heap allocations.

#include <Orvik/DataModel/MediaAssets/MediaAsset.h>

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

namespace OrvikBenchmarks::Plain {

struct Channel {
    std::string trackId;
    int32_t number = 0;
};
struct Jump {
    int64_t at = 0;
    std::string text;
    int64_t duration = 0;
};
struct TimecodeTable {
    std::string name;
    int32_t standard = 0;
    std::string type;
    std::vector<std::unique_ptr<Jump>> jumps;
};
struct Essence {
    int32_t kind = 0;
    int32_t nr = 0;
    int32_t channelCount = 0;
    int32_t codec = 0;
    std::string fourCC;
    std::vector<std::unique_ptr<Channel>> channels;
    std::shared_ptr<TimecodeTable> timecodes;
};
struct Location {
    int32_t kind = 0;
    std::string uri;
    std::string name;
};
struct Stream {
    std::string id;
    int32_t format = 0;
    std::vector<std::unique_ptr<Essence>> essences;
    std::vector<std::unique_ptr<Location>> locations;
};
struct Resource {
    std::string id;
    std::string name;
    std::vector<std::unique_ptr<Stream>> streams;
};
struct TrackChannel {
    std::unique_ptr<Stream> stream;
    int32_t channelNr = 0;
};
struct Track {
    std::string id;
    std::string name;
    std::vector<std::unique_ptr<TrackChannel>> channels;
};
struct Layout {
    std::string id;
    std::vector<std::string> trackIds;
};
struct Annotation {
    int32_t type = 0;
    std::string data;
    int64_t in = 0;
    int64_t out = 0;
};
struct Profile {
    int32_t page = 0;
    int32_t bank = 0;
    int32_t clip = 0;
    std::vector<std::string> keywords;
};
struct Asset {
    std::string id;
    std::string name;
    std::vector<std::unique_ptr<Track>> tracks;
    std::vector<std::unique_ptr<Layout>> layouts;
    std::vector<std::unique_ptr<Resource>> resources;
    std::vector<std::unique_ptr<Annotation>> annotations;
    std::unique_ptr<Profile> profile;
};

/// The plain form of a model asset. Like the model, asset equality compares resources by id.
Asset FromModel(const Orvik::DataModel::MediaAssets::MediaAsset& asset);
Asset DeepCopy(const Asset& asset);
std::unique_ptr<Stream> DeepCopy(const Stream& stream);
bool Equal(const Asset& a, const Asset& b);
bool Equal(const Stream& a, const Stream& b);

}  // namespace OrvikBenchmarks::Plain
