#include "Mutations.h"

#include <Orvik/DataModel/MediaAssets.h>

#include <algorithm>
#include <cstdint>
#include <memory>
#include <utility>

namespace Orvik::Testing {

using namespace DataModel::MediaAssets;
using Any = ArbitraryObjects;
using Changed = std::optional<Change>;
using Profile = PelkOperatorMetadataProfile;
using AnglesProfile = AnglesPelkOperatorMetadataProfile;

namespace {

std::string At(const std::string& path, size_t index) { return path + "[" + std::to_string(index) + "]"; }

template <typename E>
E Other(E value, E first, E second)
{
    return value == first ? second : first;
}

// A change that needs no choice.
template <typename T>
Mutation<T> Field(Change change, void (*apply)(T&))
{
    return [change, apply](T& target, Any&) {
        apply(target);
        return Changed(change);
    };
}

// A copy of `*pointer` in its place, so that a change to it leaves the source's object alone.
template <typename T>
T& Own(std::shared_ptr<T>& pointer)
{
    pointer = std::make_shared<T>(*pointer);
    return *pointer;
}

// The asset's layouts show `now` (nothing when null) where they showed `before`, each layout
// replaced by a copy first.
void ShowInLayouts(MediaAsset& asset, const std::shared_ptr<Track>& before, const std::shared_ptr<Track>& now)
{
    for (auto& layout : asset.TrackLayouts()) {
        for (TrackLayoutItem& item : Own(layout).TrackLayoutItems()) {
            auto& tracks = item.Tracks();
            const auto shown =
                std::find_if(tracks.begin(), tracks.end(), [&before](const auto& track) { return track.lock() == before; });
            if (shown == tracks.end())
                continue;
            if (now)
                *shown = now;
            else
                tracks.Erase(shown);
        }
    }
}

// A copy of the asset's track at `index` in its place, shown by the asset's layouts instead.
Track& OwnTrack(MediaAsset& asset, size_t index)
{
    const std::shared_ptr<Track> before = asset.Tracks()[index];
    Track& track = Own(asset.Tracks()[index]);
    ShowInLayouts(asset, before, asset.Tracks()[index]);
    return track;
}

// One change of the operator profile of a dictionary whose profiles are shared with the source's:
// the profile is replaced by a changed clone, never changed in place.
Changed MutateMetadata(MetadataProfileDictionary& dictionary, Any& any, const std::string& path)
{
    const FullyQualifiedName name = PelkOperatorMetadataProfile::StaticFullyQualifiedName();
    const std::string entry = path + "[\"" + name.Value() + "\"]";
    if (!dictionary.Contains(name) || any.Below(4) == 0) {
        if (!dictionary.Contains(name))
            dictionary.Set(std::make_shared<AnglesPelkOperatorMetadataProfile>());
        else
            dictionary.Erase(name);
        return Change{entry};
    }
    const auto copy = dictionary.At(name).Clone();
    dictionary.Set(copy);
    auto* angles = dynamic_cast<AnglesPelkOperatorMetadataProfile*>(copy.get());
    Changed change = angles ? Mutate(*angles, any, kAnglesPelkOperatorProfileMutations)
                            : Mutate(dynamic_cast<PelkOperatorMetadataProfile&>(*copy), any, kPelkOperatorProfileMutations);
    if (change)
        change->path = entry + "." + change->path;
    return change;
}

// Technical metadata may be shared with the source (an essence's is, since Clone()): the change
// goes to a dictionary of the target's own.
template <typename T>
Changed MutateOwnMetadata(T& owner, Any& any, const std::string& path)
{
    auto own = std::make_shared<MetadataProfileDictionary>(owner.Metadata().Clone());
    owner.Metadata(own);
    return MutateMetadata(*own, any, path);
}

Changed MutateBounds(TimeBoundsArray& bounds, Any& any, const std::string& path)
{
    const TimeBoundary in = bounds.InBoundary();
    const TimeBoundary out = bounds.OutBoundary();
    switch (any.Below(3)) {
    case 0:
        bounds.InBoundary(TimeBoundary(in.TimePoint(), !in.IsMoving()));
        return Change{path + ".inBoundary.isMoving"};
    case 1:
        bounds.OutBoundary(TimeBoundary(TimePoint(out.TimePoint().ToNanoseconds() ^ 1), out.IsMoving()));
        return Change{path + ".outBoundary.timePoint"};
    default:
        if (bounds.Empty())
            return std::nullopt;
        bounds.Erase(bounds.end() - 1);
        return Change{At(path, bounds.Size())};
    }
}

Changed MutateEssence(Essence& essence, Any& any, const std::string& path)
{
    switch (any.Below(7)) {
    case 0:
        essence.ChannelCount(essence.ChannelCount() ^ 1);
        return Change{path + ".channelCount"};
    case 1: {
        // A negative number matches any number: that change is no difference.
        const bool wildcard = essence.Nr() < 0;
        essence.Nr(wildcard ? 7 : essence.Nr() + 1);
        return Change{path + ".nr", !wildcard};
    }
    case 2:
        return MutateOwnMetadata(essence, any, path + ".metadata");
    case 3: {
        if (essence.TrackChannels().Empty())
            return std::nullopt;
        const size_t index = any.Below(essence.TrackChannels().Size());
        auto& channel = essence.TrackChannels()[index];
        channel = std::make_shared<TrackChannel>(Identifier(channel->TrackId().Value() + "x"), channel->ChannelNr());
        return Change{At(path + ".trackChannels", index) + ".trackId"};
    }
    case 4: {
        // The tables are shared with the source: change a copy in their place.
        if (essence.Timecodes().Empty())
            return std::nullopt;
        const size_t index = any.Below(essence.Timecodes().Size());
        TimeCodeTable& table = Own(essence.Timecodes()[index]);
        const std::string tablePath = At(path + ".timecodes", index);
        if (table.TimeCodeJumpItems().Empty() || any.Flip()) {
            table.Type(table.Type() + "x");
            return Change{tablePath + ".type"};
        }
        const size_t jump = any.Below(table.TimeCodeJumpItems().Size());
        Own(table.TimeCodeJumpItems()[jump]).Duration(table.TimeCodeJumpItems()[jump]->Duration() + 1);
        return Change{At(tablePath + ".timeCodeJumpItems", jump) + ".duration"};
    }
    default:
        if (auto* audio = dynamic_cast<AudioEssence*>(&essence)) {
            const Rate rate = audio->SampleRate();
            audio->SampleRate(Rate(rate.Numerator(), rate.Denominator() ^ 2));
            return Change{path + ".(AudioEssence).sampleRate.denominator"};
        }
        if (auto* video = dynamic_cast<VideoEssence*>(&essence)) {
            if (any.Flip()) {
                video->AspectRatio(AspectRatio(video->AspectRatio().WidthFactor(), video->AspectRatio().HeightFactor() ^ 4));
                return Change{path + ".(VideoEssence).aspectRatio.heightFactor"};
            }
            video->FourCC(video->FourCC() + "X");
            return Change{path + ".(VideoEssence).fourCC"};
        }
        return std::nullopt;
    }
}

Change MutateLocation(Location& location, const std::string& path)
{
    if (auto* file = dynamic_cast<FileLocation*>(&location)) {
        file->LastAccessDate(file->LastAccessDate() + 1);
        return Change{path + ".(FileLocation).lastAccessDate"};
    }
    if (auto* zan = dynamic_cast<ZanLocation*>(&location)) {
        zan->SequenceId(zan->SequenceId() + "/");
        return Change{path + ".(ZanLocation).sequenceId"};
    }
    if (auto* contentTrack = dynamic_cast<DaxContentTrackLocation*>(&location)) {
        contentTrack->PartitionId(Identifier(contentTrack->PartitionId().Value() + "p"));
        return Change{path + ".(DaxContentTrackLocation).daxPartitionId"};
    }
    auto& protect = dynamic_cast<DaxProtectLocation&>(location);
    protect.Uri(URI(protect.Uri().Value() + "u"));
    return Change{path + ".(DaxProtectLocation).daxUri"};
}

}  // namespace

const std::vector<Mutation<Profile>> kPelkOperatorProfileMutations = {
    Field<Profile>({"userProtected", false}, [](Profile& p) { p.UserProtected(!p.IsUserProtected()); }),
    Field<Profile>({"pelkUIProtected", false}, [](Profile& p) { p.PelkUIProtected(!p.IsPelkUiProtected()); }),
    Field<Profile>({"objectId", false}, [](Profile& p) { p.ObjectId(p.ObjectId() + 1); }),
    Field<Profile>({"rating"}, [](Profile& p) { p.Rating(p.Rating() ^ 1); }),
    Field<Profile>({"keywords[0]"}, [](Profile& p) { p.Keyword(0, p.Keyword(0) + "x"); }),
    Field<Profile>({"todTimecode.totalSample"}, [](Profile& p) { p.TodTimecode(p.TodTimecode() + 1); }),
    Field<Profile>({"color"}, [](Profile& p) { p.Color(p.Color() ^ 0x00FF0000); }),
    Field<Profile>(
        {"archiveStatus"},
        [](Profile& p) { p.ArchiveStatus(Other(p.ArchiveStatus(), ArchiveStatus::None, ArchiveStatus::Archived)); }),
    Field<Profile>({"fillAndKeyMediaAssetId"},
                   [](Profile& p) { p.FillAndKeyMediaAssetId(Identifier(p.FillAndKeyMediaAssetId().Value() + "x")); }),
};

const std::vector<Mutation<AnglesProfile>> kAnglesPelkOperatorProfileMutations = {
    Field<AnglesProfile>({"objectId", false}, [](AnglesProfile& p) { p.ObjectId(p.ObjectId() + 1); }),
    Field<AnglesProfile>({"clip"}, [](AnglesProfile& p) { p.Clip(p.Clip() ^ 1); }),
};

const std::vector<Mutation<Stream>> kStreamMutations = {
    Field<Stream>({"streamId"}, [](Stream& s) { s.Id(Identifier(s.Id().Value() + "x")); }),
    Field<Stream>({"format"}, [](Stream& s) { s.Format(Other(s.Format(), WrapperFormat::MXFOP1a, WrapperFormat::MP4)); }),
    [](Stream& s, Any& any) { return MutateBounds(s.Timebounds(), any, "timebounds"); },
    [](Stream& s, Any& any) { return MutateOwnMetadata(s, any, "metadata"); },
    [](Stream& s, Any& any) {
        if (s.Essences().Empty() || any.Below(4) == 0) {
            s.Essences().Add(any.Essence());
            return Changed(Change{At("essences", static_cast<size_t>(s.Essences().Size() - 1))});
        }
        const size_t index = any.Below(static_cast<uint64_t>(s.Essences().Size()));
        return MutateEssence(s.Essences()[static_cast<int>(index)], any, At("essences", index));
    },
    [](Stream& s, Any& any) -> Changed {
        if (s.Locations().Empty())
            return std::nullopt;
        if (any.Below(4) == 0) {
            s.Locations().Erase(s.Locations().Size() - 1);
            return Change{At("locations", static_cast<size_t>(s.Locations().Size()))};
        }
        const size_t index = any.Below(static_cast<uint64_t>(s.Locations().Size()));
        return MutateLocation(s.Locations()[static_cast<int>(index)], At("locations", index));
    },
};

const std::vector<Mutation<MediaResource>> kMediaResourceMutations = {
    Field<MediaResource>({"name"}, [](MediaResource& r) { r.Name(r.Name() + "x"); }),
    Field<MediaResource>({"generalFormat"},
                         [](MediaResource& r) {
                             r.GeneralFormat(Other(r.GeneralFormat(), ResourceFormat::unknown, ResourceFormat::ToBeDefined));
                         }),
    Field<MediaResource>({"modificationDate"}, [](MediaResource& r) { r.ModificationDate(r.ModificationDate() + 1); }),
    [](MediaResource& r, Any& any) { return MutateBounds(r.Timebounds(), any, "timebounds"); },
    [](MediaResource& r, Any& any) { return MutateOwnMetadata(r, any, "metadata"); },
    [](MediaResource& r, Any&) -> Changed {
        // Streams are compared by id alone: a change inside a loaded stream is no difference.
        if (r.Streams().empty())
            return std::nullopt;
        const std::string path = At("streams", r.Streams().size() - 1);
        StreamReference& last = r.Streams().back();
        if (last.Pointer()) {
            auto stream = std::make_shared<Stream>(last->Clone());
            stream->Format(Other(stream->Format(), WrapperFormat::MP4, WrapperFormat::AVI));
            last = StreamReference(stream);
            return Change{path + ".pointer.format", false};
        }
        last = StreamReference(Identifier(last.Id().Value() + "x"));
        return Change{path + ".id"};
    },
};

const std::vector<Mutation<MediaAsset>> kMediaAssetMutations = {
    Field<MediaAsset>({"objectId", false}, [](MediaAsset& a) { a.ObjectId(a.ObjectId() + 1); }),
    Field<MediaAsset>({"assetType"},
                      [](MediaAsset& a) { a.AssetType(Other(a.AssetType(), AssetType::media, AssetType::train)); }),
    // The lineage is compared by id: another asset object with the same id is no difference.
    Field<MediaAsset>({"parent.pointer", false},
                      [](MediaAsset& a) { a.Parent(MediaAssetReference(std::make_shared<MediaAsset>(a.Parent().Id()))); }),
    Field<MediaAsset>({"ancestor.id"},
                      [](MediaAsset& a) { a.Ancestor(MediaAssetReference(Identifier(a.Ancestor().Id().Value() + "x"))); }),
    Field<MediaAsset>({"description"}, [](MediaAsset& a) { a.Description(a.Description() + "\""); }),
    Field<MediaAsset>({"creationDate"}, [](MediaAsset& a) { a.CreationDate(a.CreationDate() + 1); }),
    [](MediaAsset& a, Any& any) { return MutateBounds(a.PhysicalTimebounds(), any, "physicalTimebounds"); },
    // Editorial metadata is the copy's own dictionary, holding the source's profiles.
    [](MediaAsset& a, Any& any) { return MutateMetadata(a.Metadata(), any, "metadata"); },
    [](MediaAsset& a, Any& any) -> Changed {
        if (a.Tracks().Empty())
            return std::nullopt;
        if (any.Below(3) == 0) {
            const size_t last = a.Tracks().Size() - 1;
            ShowInLayouts(a, a.Tracks()[last], nullptr);
            a.Tracks().Erase(a.Tracks().end() - 1);
            return Change{At("tracks", last)};
        }
        // Channels are not compared.
        const size_t index = any.Below(a.Tracks().Size());
        Track& track = OwnTrack(a, index);
        if (any.Flip()) {
            if (track.Channels().empty())
                return std::nullopt;
            track.Channels().clear();
            return Change{At("tracks", index) + ".channels", false};
        }
        track.Name(track.Name() + "x");
        return Change{At("tracks", index) + ".name"};
    },
    [](MediaAsset& a, Any& any) -> Changed {
        if (a.TrackLayouts().Empty())
            return std::nullopt;
        const size_t index = any.Below(a.TrackLayouts().Size());
        TrackLayout& layout = Own(a.TrackLayouts()[index]);
        const std::string path = At("trackLayouts", index);
        if (layout.TrackLayoutItems().Empty() || any.Flip()) {
            layout.Name(layout.Name() + "x");
            return Change{path + ".name"};
        }
        const size_t itemIndex = any.Below(layout.TrackLayoutItems().Size());
        TrackLayoutItem& item = layout.TrackLayoutItems()[itemIndex];
        const std::string itemPath = At(path + ".trackLayoutItems", itemIndex);
        if (item.Tracks().Empty() || any.Flip()) {
            item.Name(item.Name() + "x");
            return Change{itemPath + ".name"};
        }
        item.Tracks().Erase(item.Tracks().end() - 1);
        return Change{At(itemPath + ".tracks", item.Tracks().Size())};
    },
    [](MediaAsset& a, Any&) -> Changed {
        if (a.MediaResources().Empty())
            return std::nullopt;
        const size_t index = a.MediaResources().Size() - 1;
        a.MediaResources()[index] = MediaResourceReference(Identifier(a.MediaResources()[index].Id().Value() + "x"));
        return Change{At("mediaResources", index) + ".id"};
    },
    [](MediaAsset& a, Any& any) {
        if (a.Annotations().empty() || any.Below(4) == 0) {
            a.Annotations().push_back(std::make_shared<Annotation>(any.Annotation()));
            return Change{At("annotations", a.Annotations().size() - 1)};
        }
        const size_t index = any.Below(a.Annotations().size());
        if (any.Below(4) == 0) {
            a.Annotations()[index] = nullptr;
            return Change{At("annotations", index)};
        }
        Annotation& annotation = Own(a.Annotations()[index]);
        const TimeBounds bounds = annotation.TimeBounds();
        const TimeBoundary out = bounds.OutBoundary();
        annotation.TimeBounds(TimeBounds(bounds.InBoundary(), TimeBoundary(out.TimePoint(), !out.IsMoving())));
        return Change{At("annotations", index) + ".timeBounds.outBoundary.isMoving"};
    },
};

const std::vector<Mutation<MediaAssetGroup>> kMediaAssetGroupMutations = {
    Field<MediaAssetGroup>({"type"}, [](MediaAssetGroup& g) { g.Type(g.Type() + "x"); }),
    [](MediaAssetGroup& g, Any& any) { return MutateMetadata(g.Metadata(), any, "metadata"); },
    [](MediaAssetGroup& g, Any& any) -> Changed {
        if (g.Items().empty())
            return std::nullopt;
        const size_t index = any.Below(g.Items().size());
        auto& item = g.Items()[index];
        if (any.Below(4) == 0) {
            item = nullptr;
            return Change{At("items", index)};
        }
        if (const auto* angles = dynamic_cast<const AnglesMediaAssetGroupItem*>(item.get())) {
            item = std::make_shared<AnglesMediaAssetGroupItem>(angles->Name() + "x", angles->MediaAsset());
            return Change{At("items", index) + ".(AnglesMediaAssetGroupItem).name"};
        }
        item = std::make_shared<MediaAssetGroupItem>(MediaAssetReference(Identifier(item->MediaAsset().Id().Value() + "x")));
        return Change{At("items", index) + ".mediaAsset.id"};
    },
};

}  // namespace Orvik::Testing
