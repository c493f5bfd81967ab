// Media assets with their tracks, track layouts and annotations. The resources come before the
// tracks, so that the streams are written in full inside their resources and the track channels
// refer to them.

#include "Codecs.h"

namespace Orvik::DataModel::MediaAssets::Json::detail {

namespace {

constexpr auto kAssetMembers =
    MemberNames("objectId", "id", "assetType", "ancestor", "parent", "name", "description", "physicalTimebounds",
                "creationDate", "modificationDate", "metadata", "mediaResources", "tracks", "trackLayouts", "annotations");
constexpr uint64_t kPointerIsOptional = 1u << 1;
constexpr Members<2> kReferenceMembers{{"id", "pointer"}, kPointerIsOptional};
constexpr auto kTrackMembers = MemberNames("objectId", "id", "name", "channels");
constexpr auto kChannelMembers = MemberNames("stream", "essenceNr", "channelNr");
constexpr auto kLayoutMembers = MemberNames("objectId", "id", "name", "trackLayoutItems");
constexpr auto kItemMembers = MemberNames("objectId", "id", "name", "tracks");
constexpr auto kAnnotationMembers = MemberNames("objectId", "type", "data", "timeBounds", "metadata");

void Write(Writer& w, const MediaResourceReference& reference)
{
    w.StartObject();
    w.String("id", reference.Id().Value());
    const std::shared_ptr<const MediaResource> resource = reference.Pointer();
    if (resource)
        w.Member("pointer", [&] { Write(w, *resource); });
    w.EndObject();
}

MediaResourceReference ReadResourceReference(Reader& r, value v)
{
    std::string id;
    std::shared_ptr<MediaResource> resource;
    r.Object(v, kReferenceMembers, [&](size_t index, value member) {
        if (index == 0) {
            id = r.Text(member);
        } else {
            resource = std::make_shared<MediaResource>();
            Read(r, member, *resource);
        }
    });
    return resource ? MakeReference(resource, MediaResourceId(id)) : MediaResourceReference(MediaResourceId(id));
}

void Write(Writer& w, const Track& track)
{
    w.Register(&track);
    w.StartObject();
    w.Int("objectId", track.ObjectId());
    w.String("id", track.Id().Value());
    w.String("name", track.Name());
    w.Array("channels", track.Channels(), [&](const std::shared_ptr<TrackChannelToRemove>& channel) {
        if (!channel)
            w.Fail("expected a track channel, found a null pointer");
        w.StartObject();
        w.Member("stream", [&] { Write(w, channel->Stream()); });
        w.Int("essenceNr", channel->EssenceNr());
        w.Int("channelNr", channel->ChannelNr());
        w.EndObject();
    });
    w.EndObject();
}

std::shared_ptr<Track> ReadTrack(Reader& r, value v)
{
    auto track = std::make_shared<Track>();
    r.Object(v, kTrackMembers, [&](size_t index, value member) {
        switch (index) {
        case 0:
            track->ObjectId(r.Int64(member));
            break;
        case 1:
            track->Id(TrackId(r.Text(member)));
            break;
        case 2:
            track->Name(r.Text(member));
            break;
        default:
            r.Array(member, [&](value element) {
                auto channel = std::make_shared<TrackChannelToRemove>();
                r.Object(element, kChannelMembers, [&](size_t field, value part) {
                    switch (field) {
                    case 0:
                        channel->Stream(ReadStreamReference(r, part));
                        break;
                    case 1:
                        channel->EssenceNr(r.Int32(part));
                        break;
                    default:
                        channel->ChannelNr(r.Int32(part));
                    }
                });
                track->Channels().push_back(std::move(channel));
            });
        }
    });
    r.Register(track);
    return track;
}

void Write(Writer& w, const TrackLayoutItem& item)
{
    w.StartObject();
    w.Int("objectId", item.ObjectId());
    w.String("id", item.Id().Value());
    w.String("name", item.Name());
    w.Array("tracks", item.Tracks(), [&](const std::weak_ptr<Track>& shown) {
        const std::shared_ptr<Track> track = shown.lock();
        if (!track)
            w.Fail("expected a track, found one that no longer exists");
        const std::string* place = w.PlaceOf(track.get());
        if (place == nullptr)
            w.Fail("expected one of the asset's tracks, found a track that the asset does not hold");
        w.String(*place);
    });
    w.EndObject();
}

TrackLayoutItem ReadItem(Reader& r, value v)
{
    int64_t objectId = -1;
    std::string id;
    std::string name;
    std::vector<std::weak_ptr<Track>> tracks;
    r.Object(v, kItemMembers, [&](size_t index, value member) {
        switch (index) {
        case 0:
            objectId = r.Int64(member);
            break;
        case 1:
            id = r.Text(member);
            break;
        case 2:
            name = r.Text(member);
            break;
        default:
            r.Array(member, [&](value element) { tracks.push_back(r.Referenced<Track>(element, "a track")); });
        }
    });
    TrackLayoutItem item{Identifier(id)};
    item.ObjectId(objectId);
    item.Name(name);
    const PathSegment segment(r.CurrentPath(), "tracks");
    InsertInDocumentOrder(r, item.Tracks(), tracks.data(), tracks.size());
    return item;
}

void Write(Writer& w, const TrackLayout& layout)
{
    w.StartObject();
    w.Int("objectId", layout.ObjectId());
    w.String("id", layout.Id().Value());
    w.String("name", layout.Name());
    w.Array("trackLayoutItems", layout.TrackLayoutItems(), [&](const TrackLayoutItem& item) { Write(w, item); });
    w.EndObject();
}

std::shared_ptr<TrackLayout> ReadLayout(Reader& r, value v)
{
    auto layout = std::make_shared<TrackLayout>();
    r.Object(v, kLayoutMembers, [&](size_t index, value member) {
        switch (index) {
        case 0:
            layout->ObjectId(r.Int64(member));
            break;
        case 1:
            layout->Id(Identifier(r.Text(member)));
            break;
        case 2:
            layout->Name(r.Text(member));
            break;
        default: {
            ReadInDocumentOrder<TrackLayoutItem>(r, member, layout->TrackLayoutItems(),
                                                 [&](value element) { return ReadItem(r, element); });
        }
        }
    });
    return layout;
}

void Write(Writer& w, const std::shared_ptr<Annotation>& annotation)
{
    if (!annotation)
        w.Fail("expected an annotation, found a null pointer");
    w.StartObject();
    w.Int("objectId", annotation->ObjectId());
    w.String("type", ToString(annotation->Type()));
    w.String("data", annotation->Data());
    w.Member("timeBounds", [&] { Write(w, annotation->TimeBounds()); });
    w.Member("metadata", [&] { Write(w, annotation->Metadata()); });
    w.EndObject();
}

std::shared_ptr<Annotation> ReadAnnotation(Reader& r, value v)
{
    auto annotation = std::make_shared<Annotation>(AnnotationType::unknown);
    r.Object(v, kAnnotationMembers, [&](size_t index, value member) {
        switch (index) {
        case 0:
            annotation->ObjectId(r.Int64(member));
            break;
        case 1:
            annotation->Type(r.Enumeration(member, &ToAnnotationType, "AnnotationType"));
            break;
        case 2:
            annotation->Data(r.Text(member));
            break;
        case 3:
            annotation->TimeBounds(ReadTimeBounds(r, member));
            break;
        default:
            Read(r, member, annotation->Metadata());
        }
    });
    return annotation;
}

}  // namespace

void Write(Writer& w, const MediaAsset& asset)
{
    w.StartObject();
    w.Int("objectId", asset.ObjectId());
    w.String("id", asset.Id().Value());
    w.String("assetType", ToString(asset.AssetType()));
    w.String("ancestor", asset.Ancestor().Id().Value());
    w.String("parent", asset.Parent().Id().Value());
    w.String("name", asset.Name());
    w.String("description", asset.Description());
    w.Member("physicalTimebounds", [&] { Write(w, asset.PhysicalTimebounds()); });
    w.Int("creationDate", asset.CreationDate());
    w.Int("modificationDate", asset.ModificationDate());
    w.Member("metadata", [&] { Write(w, asset.Metadata()); });
    w.Array("mediaResources", asset.MediaResources(), [&](const MediaResourceReference& reference) { Write(w, reference); });
    w.Array("tracks", asset.Tracks(), [&](const std::shared_ptr<Track>& track) { Write(w, *track); });
    w.Array("trackLayouts", asset.TrackLayouts(), [&](const std::shared_ptr<TrackLayout>& layout) { Write(w, *layout); });
    w.Array("annotations", asset.Annotations(),
            [&](const std::shared_ptr<Annotation>& annotation) { Write(w, annotation); });
    w.EndObject();
}

void ReadMembers(Reader& r, Reader::Rest& rest, MediaAsset& asset)
{
    r.ReadRest(rest, kAssetMembers, [&](size_t index, value v) {
        switch (index) {
        case 0:
            asset.ObjectId(r.Int64(v));
            break;
        case 1:
            asset.Id(MediaAssetId(r.Text(v)));
            break;
        case 2:
            asset.AssetType(r.Enumeration(v, &ToAssetType, "AssetType"));
            break;
        case 3:
            asset.Ancestor(MediaAssetReference(MediaAssetId(r.Text(v))));
            break;
        case 4:
            asset.Parent(MediaAssetReference(MediaAssetId(r.Text(v))));
            break;
        case 5:
            asset.Name(r.Text(v));
            break;
        case 6:
            asset.Description(r.Text(v));
            break;
        case 7:
            Read(r, v, asset.PhysicalTimebounds());
            break;
        case 8:
            asset.CreationDate(r.Int64(v));
            break;
        case 9:
            asset.ModificationDate(r.Int64(v));
            break;
        case 10:
            Read(r, v, asset.Metadata());
            break;
        case 11: {
            ReadInDocumentOrder<MediaResourceReference>(r, v, asset.MediaResources(),
                                                        [&](value element) { return ReadResourceReference(r, element); });
            break;
        }
        case 12: {
            ReadInDocumentOrder<std::shared_ptr<Track>>(r, v, asset.Tracks(),
                                                        [&](value element) { return ReadTrack(r, element); });
            break;
        }
        case 13: {
            ReadInDocumentOrder<std::shared_ptr<TrackLayout>>(r, v, asset.TrackLayouts(),
                                                              [&](value element) { return ReadLayout(r, element); });
            break;
        }
        default:
            ReadAppending<std::shared_ptr<Annotation>>(r, v, asset.Annotations(),
                                                       [&](value element) { return ReadAnnotation(r, element); });
        }
    });
}

}  // namespace Orvik::DataModel::MediaAssets::Json::detail
