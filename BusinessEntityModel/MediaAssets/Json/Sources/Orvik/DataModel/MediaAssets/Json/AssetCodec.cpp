// Media assets with their tracks, track layouts and annotations. The resources come before the
// tracks, so that the streams are written in full inside their resources and the track channels
// refer to them.

#include "Codecs.h"
#include "Collections.h"
#include "FieldTable.h"
#include "References.h"
#include "TableList.h"

namespace Orvik::DataModel::MediaAssets::Json::detail {

namespace {

using namespace Members;

/// A layout item is built from its id: its members wait here until all are read.
struct ItemParts {
    int64_t objectId = -1;
    std::string id;
    std::string name;
    std::vector<std::weak_ptr<Track>> tracks;
};

// clang-format off
constexpr auto kChannelTable = MakeTable(Fields(
    Field(kStream,
     [](Writer& w, const TrackChannelToRemove& channel) { WriteReference(w, channel.Stream()); },
     [](Reader& r, value& v, TrackChannelToRemove& channel) { channel.Stream(ReadReference<Stream>(r, v)); }),
    Field(kEssenceNr,
     [](Writer& w, const TrackChannelToRemove& channel) { w.Int(channel.EssenceNr()); },
     [](Reader& r, value& v, TrackChannelToRemove& channel) { channel.EssenceNr(r.Int32(v)); }),
    Field(kChannelNr,
     [](Writer& w, const TrackChannelToRemove& channel) { w.Int(channel.ChannelNr()); },
     [](Reader& r, value& v, TrackChannelToRemove& channel) { channel.ChannelNr(r.Int32(v)); })));

constexpr auto kTrackTable = MakeTable(Fields(
    Field(kObjectId,
     [](Writer& w, const Track& track) { w.Int(track.ObjectId()); },
     [](Reader& r, value& v, Track& track) { track.ObjectId(r.Int64(v)); }),
    Field(kId,
     [](Writer& w, const Track& track) { w.String(track.Id().Value()); },
     [](Reader& r, value& v, Track& track) { track.Id(TrackId(r.Text(v))); }),
    Field(kName,
     [](Writer& w, const Track& track) { w.String(track.Name()); },
     [](Reader& r, value& v, Track& track) { track.Name(r.Text(v)); }),
    Field(kChannels,
     [](Writer& w, const Track& track) {
         w.Array(track.Channels(), [&](const std::shared_ptr<TrackChannelToRemove>& channel) {
             if (!channel)
                 w.Fail("expected a track channel, found a null pointer");
             WriteObject(w, kChannelTable, *channel);
         });
     },
     [](Reader& r, value& v, Track& track) {
         r.Array(v, [&](value& element) {
             auto channel = std::make_shared<TrackChannelToRemove>();
             ReadObject(r, element, kChannelTable, *channel);
             track.Channels().push_back(std::move(channel));
         });
     })));

constexpr auto kItemTable = MakeTable(Fields(
    Field(kObjectId,
     [](Writer& w, const TrackLayoutItem& item) { w.Int(item.ObjectId()); },
     [](Reader& r, value& v, ItemParts& item) { item.objectId = r.Int64(v); }),
    Field(kId,
     [](Writer& w, const TrackLayoutItem& item) { w.String(item.Id().Value()); },
     [](Reader& r, value& v, ItemParts& item) { item.id = r.Text(v); }),
    Field(kName,
     [](Writer& w, const TrackLayoutItem& item) { w.String(item.Name()); },
     [](Reader& r, value& v, ItemParts& item) { item.name = r.Text(v); }),
    Field(kTracks,
     [](Writer& w, const TrackLayoutItem& item) {
         w.Array(item.Tracks(), [&](const std::weak_ptr<Track>& shown) {
             const std::shared_ptr<Track> track = shown.lock();
             if (!track)
                 w.Fail("expected a track, found one that no longer exists");
             const std::string* place = w.PlaceOf(track.get());
             if (place == nullptr)
                 w.Fail("expected one of the asset's tracks, found a track that the asset does not hold");
             w.String(*place);
         });
     },
     [](Reader& r, value& v, ItemParts& item) {
         r.Array(v, [&](value& element) { item.tracks.push_back(r.Referenced<Track>(element, "a track")); });
     })));

TrackLayoutItem ReadItem(Reader& r, value& v)
{
    ItemParts parts;
    ReadObject(r, v, kItemTable, parts);
    TrackLayoutItem item{Identifier(parts.id)};
    item.ObjectId(parts.objectId);
    item.Name(parts.name);
    const PathSegment segment(r.CurrentPath(), kTracks);
    InsertInDocumentOrder(r, item.Tracks(), parts.tracks.data(), parts.tracks.size());
    return item;
}

constexpr auto kLayoutTable = MakeTable(Fields(
    Field(kObjectId,
     [](Writer& w, const TrackLayout& layout) { w.Int(layout.ObjectId()); },
     [](Reader& r, value& v, TrackLayout& layout) { layout.ObjectId(r.Int64(v)); }),
    Field(kId,
     [](Writer& w, const TrackLayout& layout) { w.String(layout.Id().Value()); },
     [](Reader& r, value& v, TrackLayout& layout) { layout.Id(Identifier(r.Text(v))); }),
    Field(kName,
     [](Writer& w, const TrackLayout& layout) { w.String(layout.Name()); },
     [](Reader& r, value& v, TrackLayout& layout) { layout.Name(r.Text(v)); }),
    Field(kTrackLayoutItems,
     [](Writer& w, const TrackLayout& layout) {
         w.Array(layout.TrackLayoutItems(), [&](const TrackLayoutItem& item) { WriteObject(w, kItemTable, item); });
     },
     [](Reader& r, value& v, TrackLayout& layout) {
         ReadInDocumentOrder<TrackLayoutItem>(r, v, layout.TrackLayoutItems(),
                                              [&](value& element) { return ReadItem(r, element); });
     })));

constexpr auto kAnnotationTable = MakeTable(Fields(
    Field(kObjectId,
     [](Writer& w, const Annotation& annotation) { w.Int(annotation.ObjectId()); },
     [](Reader& r, value& v, Annotation& annotation) { annotation.ObjectId(r.Int64(v)); }),
    Field(kType,
     [](Writer& w, const Annotation& annotation) { w.String(ToString(annotation.Type())); },
     [](Reader& r, value& v, Annotation& annotation) {
         annotation.Type(r.Enumeration(v, &ToAnnotationType, "AnnotationType"));
     }),
    Field(kData,
     [](Writer& w, const Annotation& annotation) { w.String(annotation.Data()); },
     [](Reader& r, value& v, Annotation& annotation) { annotation.Data(r.Text(v)); }),
    Field(kTimeBounds,
     [](Writer& w, const Annotation& annotation) { Write(w, annotation.TimeBounds()); },
     [](Reader& r, value& v, Annotation& annotation) { annotation.TimeBounds(ReadTimeBounds(r, v)); }),
    Field(kMetadata,
     [](Writer& w, const Annotation& annotation) { Write(w, annotation.Metadata()); },
     [](Reader& r, value& v, Annotation& annotation) { Read(r, v, annotation.Metadata()); })));

constexpr auto kAssetTable = MakeTable(Fields(
    Field(kObjectId,
     [](Writer& w, const MediaAsset& asset) { w.Int(asset.ObjectId()); },
     [](Reader& r, value& v, MediaAsset& asset) { asset.ObjectId(r.Int64(v)); }),
    Field(kId,
     [](Writer& w, const MediaAsset& asset) { w.String(asset.Id().Value()); },
     [](Reader& r, value& v, MediaAsset& asset) { asset.Id(MediaAssetId(r.Text(v))); }),
    Field(kAssetType,
     [](Writer& w, const MediaAsset& asset) { w.String(ToString(asset.AssetType())); },
     [](Reader& r, value& v, MediaAsset& asset) { asset.AssetType(r.Enumeration(v, &ToAssetType, "AssetType")); }),
    Field(kAncestor,
     [](Writer& w, const MediaAsset& asset) { w.String(asset.Ancestor().Id().Value()); },
     [](Reader& r, value& v, MediaAsset& asset) { asset.Ancestor(MediaAssetReference(MediaAssetId(r.Text(v)))); }),
    Field(kParent,
     [](Writer& w, const MediaAsset& asset) { w.String(asset.Parent().Id().Value()); },
     [](Reader& r, value& v, MediaAsset& asset) { asset.Parent(MediaAssetReference(MediaAssetId(r.Text(v)))); }),
    Field(kName,
     [](Writer& w, const MediaAsset& asset) { w.String(asset.Name()); },
     [](Reader& r, value& v, MediaAsset& asset) { asset.Name(r.Text(v)); }),
    Field(kDescription,
     [](Writer& w, const MediaAsset& asset) { w.String(asset.Description()); },
     [](Reader& r, value& v, MediaAsset& asset) { asset.Description(r.Text(v)); }),
    Field(kPhysicalTimebounds,
     [](Writer& w, const MediaAsset& asset) { Write(w, asset.PhysicalTimebounds()); },
     [](Reader& r, value& v, MediaAsset& asset) { Read(r, v, asset.PhysicalTimebounds()); }),
    Field(kCreationDate,
     [](Writer& w, const MediaAsset& asset) { w.Int(asset.CreationDate()); },
     [](Reader& r, value& v, MediaAsset& asset) { asset.CreationDate(r.Int64(v)); }),
    Field(kModificationDate,
     [](Writer& w, const MediaAsset& asset) { w.Int(asset.ModificationDate()); },
     [](Reader& r, value& v, MediaAsset& asset) { asset.ModificationDate(r.Int64(v)); }),
    Field(kMetadata,
     [](Writer& w, const MediaAsset& asset) { Write(w, asset.Metadata()); },
     [](Reader& r, value& v, MediaAsset& asset) { Read(r, v, asset.Metadata()); }),
    Field(kMediaResources,
     [](Writer& w, const MediaAsset& asset) {
         w.Array(asset.MediaResources(), [&](const MediaResourceReference& reference) { WriteReference(w, reference); });
     },
     [](Reader& r, value& v, MediaAsset& asset) {
         ReadInDocumentOrder<MediaResourceReference>(r, v, asset.MediaResources(),
                                                     [&](value& element) { return ReadReference<MediaResource>(r, element); });
     }),
    Field(kTracks,
     [](Writer& w, const MediaAsset& asset) {
         w.Array(asset.Tracks(), [&](const std::shared_ptr<Track>& track) {
             w.Register(track.get());
             WriteObject(w, kTrackTable, *track);
         });
     },
     [](Reader& r, value& v, MediaAsset& asset) {
         ReadInDocumentOrder<std::shared_ptr<Track>>(r, v, asset.Tracks(), [&](value& element) {
             auto track = std::make_shared<Track>();
             ReadObject(r, element, kTrackTable, *track);
             r.Register(track);
             return track;
         });
     }),
    Field(kTrackLayouts,
     [](Writer& w, const MediaAsset& asset) {
         w.Array(asset.TrackLayouts(),
                 [&](const std::shared_ptr<TrackLayout>& layout) { WriteObject(w, kLayoutTable, *layout); });
     },
     [](Reader& r, value& v, MediaAsset& asset) {
         ReadInDocumentOrder<std::shared_ptr<TrackLayout>>(r, v, asset.TrackLayouts(), [&](value& element) {
             auto layout = std::make_shared<TrackLayout>();
             ReadObject(r, element, kLayoutTable, *layout);
             return layout;
         });
     }),
    Field(kAnnotations,
     [](Writer& w, const MediaAsset& asset) {
         w.Array(asset.Annotations(), [&](const std::shared_ptr<Annotation>& annotation) {
             if (!annotation)
                 w.Fail("expected an annotation, found a null pointer");
             WriteObject(w, kAnnotationTable, *annotation);
         });
     },
     [](Reader& r, value& v, MediaAsset& asset) {
         ReadAppending<std::shared_ptr<Annotation>>(r, v, asset.Annotations(), [&](value& element) {
             auto annotation = std::make_shared<Annotation>(AnnotationType::unknown);
             ReadObject(r, element, kAnnotationTable, *annotation);
             return annotation;
         });
     })));
// clang-format on

}  // namespace

void Write(Writer& w, const MediaAsset& asset) { WriteObject(w, kAssetTable, asset); }

void ReadMembers(Reader& r, Reader::Rest& rest, MediaAsset& asset) { ReadFields(r, rest, kAssetTable, asset); }

void AddAssetTables(std::vector<TableMembers>& tables)
{
    tables.push_back({"trackChannelToRemove", NamesOf(kChannelTable)});
    tables.push_back({"track", NamesOf(kTrackTable)});
    tables.push_back({"trackLayoutItem", NamesOf(kItemTable)});
    tables.push_back({"trackLayout", NamesOf(kLayoutTable)});
    tables.push_back({"annotation", NamesOf(kAnnotationTable)});
    tables.push_back({"mediaAsset", NamesOf(kAssetTable)});
}

}  // namespace Orvik::DataModel::MediaAssets::Json::detail
