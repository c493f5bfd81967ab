#pragma once

// The data of a media asset in plain structs (std::string, std::vector, std::map, std::unique_ptr),
// with a hand-written deep copy and comparison: the yardstick for the cost of MediaAsset::Clone
// and operator==.
//
// Every field that the model copies and compares is here, and copy and comparison follow the
// model's rules: a deep copy rebuilds every track channel's stream, shares the timecode tables and
// leaves the layout items pointing at the source's tracks; equality compares tracks by id and
// name, layout items' tracks through their pointers by id and name, resources by id, essence
// numbers with the negative wildcard. Each object the model keeps on the heap is on the heap here
// too, so the two make about the same allocations; a layout item refers to its tracks by raw
// pointer, where the model holds weak pointers that it must lock.

#include <Orvik/DataModel/MediaAssets/MediaAsset.h>

#include <cstdint>
#include <map>
#include <memory>
#include <string>
#include <vector>

namespace OrvikBenchmarks::Plain {

struct Boundary {
    int64_t at = 0;
    bool moving = false;
};
struct Bounds {
    Boundary in;
    Boundary out;
};
struct BoundsList {
    std::vector<Bounds> spans;
    Boundary in;
    Boundary out;
};
struct Timecode {
    int64_t rateNumerator = 0;
    int64_t rateDenominator = 0;
    int64_t totalSample = 0;
    bool isDrop = false;
    bool hasDate = false;
};
struct Profile {
    int32_t serverId = 0;
    int32_t page = 0;
    int32_t bank = 0;
    int32_t clip = 0;
    char camera = '\0';
    std::string umId;
    std::string varId;
    int32_t rating = 0;
    int32_t archiveStatus = 0;
    int32_t userTimecodeType = 0;
    int32_t primaryTimecode = 0;
    Timecode userTimecode;
    Timecode todTimecode;
    std::string icon;
    uint32_t color = 0;
    int32_t fillAndKeyType = 0;
    std::string fillAndKeyAssetId;
    std::vector<std::string> keywords;
    bool userProtected = false;
    bool pelkUIProtected = false;
};
using Metadata = std::map<std::string, std::unique_ptr<Profile>>;

struct Jump {
    int64_t at = 0;
    std::string timecode;
    int64_t duration = 0;
};
struct TimecodeTable {
    std::string name;
    int32_t standard = 0;
    std::string type;
    std::vector<std::unique_ptr<Jump>> jumps;
};
struct Channel {
    std::string trackId;
    int32_t channelNr = 0;
};
/// Audio, video and data essences in one struct; a kind leaves the other kinds' fields alone.
struct Essence {
    int32_t kind = 0;
    int32_t channelCount = 0;
    int32_t nr = -1;
    Metadata metadata;
    std::vector<std::unique_ptr<Channel>> channels;
    std::vector<std::shared_ptr<const TimecodeTable>> timecodes;
    int32_t codec = 0;
    int32_t bitRate = 0;
    int32_t bitRateMode = 0;
    int32_t bitDepth = 0;
    int32_t rateNumerator = 0;
    int32_t rateDenominator = 0;
    int32_t height = 0;
    int32_t width = 0;
    int32_t chromaSubSampling = 0;
    int32_t colorSpace = 0;
    int32_t scanMode = 0;
    std::string fourCC;
    int32_t aspectWidth = 0;
    int32_t aspectHeight = 0;
    int32_t boxing = 0;
};
/// File and video-server locations in one struct, compared by kind, then by the kind's fields.
struct Location {
    int32_t kind = 0;
    std::string name;
    int64_t size = 0;
    bool isReadOnly = false;
    int64_t creationDate = 0;
    int64_t modificationDate = 0;
    int64_t lastAccessDate = 0;
    std::string uri;
    int32_t serverId = 0;
    std::string sequenceId;
};
struct Stream {
    std::string id;
    int32_t format = 0;
    BoundsList timebounds;
    Metadata metadata;
    std::vector<std::unique_ptr<Essence>> essences;
    std::vector<std::unique_ptr<Location>> locations;
};
/// A stream by id, and by pointer when it is loaded.
struct StreamReference {
    std::string id;
    std::unique_ptr<Stream> stream;
};
struct Resource {
    std::string id;
    std::string name;
    int32_t generalFormat = 0;
    std::vector<StreamReference> streams;
    BoundsList timebounds;
    int64_t creationDate = 0;
    int64_t modificationDate = 0;
    Metadata metadata;
};
struct ResourceReference {
    std::string id;
    std::unique_ptr<Resource> resource;
};
struct TrackChannel {
    StreamReference stream;
    int32_t essenceNr = 0;
    int32_t channelNr = 0;
};
struct Track {
    std::string id;
    std::string name;
    std::vector<std::unique_ptr<TrackChannel>> channels;
};
struct LayoutItem {
    std::string id;
    std::string name;
    std::vector<const Track*> tracks;
};
struct Layout {
    std::string id;
    std::string name;
    std::vector<LayoutItem> items;
};
struct Annotation {
    int32_t type = 0;
    std::string data;
    Bounds bounds;
    Metadata metadata;
};
struct Asset {
    std::string id;
    int32_t type = 0;
    std::string ancestorId;
    std::string parentId;
    std::string name;
    std::string description;
    BoundsList physicalTimebounds;
    int64_t creationDate = 0;
    int64_t modificationDate = 0;
    Metadata metadata;
    std::vector<std::unique_ptr<Track>> tracks;
    std::vector<std::unique_ptr<Layout>> layouts;
    std::vector<ResourceReference> resources;
    std::vector<std::unique_ptr<Annotation>> annotations;
};

/// The plain form of a model asset whose only metadata profile is the operator profile.
Asset FromModel(const Orvik::DataModel::MediaAssets::MediaAsset& asset);
Asset DeepCopy(const Asset& asset);
std::unique_ptr<Stream> DeepCopy(const Stream& stream);
bool Equal(const Asset& a, const Asset& b);
bool Equal(const Stream& a, const Stream& b);

}  // namespace OrvikBenchmarks::Plain
