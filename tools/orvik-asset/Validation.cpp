#include "Validation.h"

#include "JsonPointer.h"
#include "TimeText.h"

#include <Orvik/DataModel/MediaAssets.h>

#include <map>
#include <optional>
#include <set>
#include <string>
#include <utility>

namespace Orvik::AssetTool {

using namespace DataModel::MediaAssets;

namespace {

std::string Quoted(const std::string& text)
{
    return "\"" + text + "\"";
}

std::string RangeText(int min, int max)
{
    return std::to_string(min) + " to " + std::to_string(max);
}

/// What the checks of an asset's parts need to know about the asset as a whole.
struct AssetContext {
    const MediaAsset& asset;
    std::set<std::string> trackIds;
    /// The ids of the streams of the asset's resources; absent when some resource is not loaded,
    /// since its streams are then unknown.
    std::optional<std::set<std::string>> streamIds;
};

AssetContext ContextOf(const MediaAsset& asset)
{
    AssetContext context{asset, {}, std::set<std::string>()};
    for (const auto& track : asset.Tracks())
        context.trackIds.insert(track->Id().Value());
    for (const MediaResourceReference& resource : asset.MediaResources()) {
        if (!resource.Pointer()) {
            context.streamIds.reset();
            break;
        }
        for (const StreamReference& stream : resource.Pointer()->Streams())
            context.streamIds->insert(stream.Id().Value());
    }
    return context;
}

class Checker {
public:
    std::vector<Problem> TakeProblems() { return std::move(problems); }

    void CheckAsset(const MediaAsset& asset, const JsonPointer& at)
    {
        const AssetContext context = ContextOf(asset);
        CheckTimeBounds(asset.PhysicalTimebounds(), at / "physicalTimebounds");
        CheckMetadata(asset.Metadata(), at / "metadata");
        CheckTracks(context, at / "tracks");
        CheckLayouts(context, at / "trackLayouts");
        size_t index = 0;
        for (const MediaResourceReference& resource : asset.MediaResources()) {
            if (resource.Pointer())
                CheckResource(*resource.Pointer(), context, at / "mediaResources" / index);
            ++index;
        }
        index = 0;
        for (const auto& annotation : asset.Annotations()) {
            if (annotation)
                CheckMetadata(annotation->Metadata(), at / "annotations" / index / "metadata");
            ++index;
        }
    }

    void CheckGroup(const MediaAssetGroup& group, const JsonPointer& at)
    {
        CheckMetadata(group.Metadata(), at / "metadata");
        size_t index = 0;
        for (const auto& item : group.Items()) {
            const JsonPointer itemAt = at / "items" / index++;
            if (!item)
                continue;
            const MediaAssetReference& asset = item->MediaAsset();
            if (asset.Pointer())
                CheckAsset(*asset.Pointer(), itemAt / "mediaAsset");
            else if (asset.Id().IsEmpty())
                Add(itemAt / "mediaAsset", "the item refers to no asset");
        }
    }

private:
    void Add(const JsonPointer& at, std::string message) { problems.push_back(Problem{at.Text(), std::move(message)}); }

    /// The parts of TimeBoundsArray::IsValid(), each failing one a problem of its own (the in and
    /// out validity tests always agree, so they make one).
    void CheckTimeBounds(const TimeBoundsArray& bounds, const JsonPointer& at)
    {
        if (bounds.HasOverlappingTimeBounds())
            Add(at, "stretches overlap");
        if (!bounds.IsInValid())
            Add(at / "inBoundary", "the in boundary " + BoundaryText(bounds.InBoundary())
                                       + " is not before the out boundary " + BoundaryText(bounds.OutBoundary()));
        if (bounds.IsInOutOfTimeBounds())
            Add(at / "inBoundary", "the in boundary " + BoundaryText(bounds.InBoundary()) + " lies in no stretch");
        if (bounds.IsOutOutOfTimeBounds())
            Add(at / "outBoundary", "the out boundary " + BoundaryText(bounds.OutBoundary())
                                        + " lies in no stretch (a stretch holds its in point, not its out point)");
    }

    void CheckMetadata(const MetadataProfileDictionary& metadata, const JsonPointer& at)
    {
        for (const FullyQualifiedName& name : metadata.Keys()) {
            const MetadataProfile& profile = metadata.At(name);
            const JsonPointer profileAt = at / name.Value();
            if (const auto* full = dynamic_cast<const PelkOperatorMetadataProfile*>(&profile)) {
                CheckClip(full->Page(), full->Bank(), full->Clip(), profileAt);
                if (full->HasCamera() && !PelkId::IsValidCamera(full->Camera()))
                    Add(profileAt / "camera", "camera '" + std::string(1, full->Camera()) + "' is not 'A' to 'L'");
                CheckProfileServer(full->ServerId(), profileAt / "serverId");
                CheckTimecode(full->UserTimecode(), profileAt / "userTimecode");
                CheckTimecode(full->TodTimecode(), profileAt / "todTimecode");
            } else if (const auto* angles = dynamic_cast<const AnglesPelkOperatorMetadataProfile*>(&profile)) {
                CheckClip(angles->Page(), angles->Bank(), angles->Clip(), profileAt);
                CheckProfileServer(angles->ServerId(), profileAt / "serverId");
            }
        }
    }

    void CheckClip(int32_t page, int32_t bank, int32_t clip, const JsonPointer& at)
    {
        if (!PelkId::IsValidPage(page))
            Add(at / "page", "page " + std::to_string(page) + " is not " + RangeText(PelkId::MinPage, PelkId::MaxPage));
        if (!PelkId::IsValidBank(bank))
            Add(at / "bank", "bank " + std::to_string(bank) + " is not " + RangeText(PelkId::MinBank, PelkId::MaxBank));
        if (!PelkId::IsValidRow(clip))
            Add(at / "clip", "clip " + std::to_string(clip) + " is not " + RangeText(PelkId::MinRow, PelkId::MaxRow));
    }

    /// In a profile, serial number 0 means that the clip has no server.
    void CheckProfileServer(const ZanServerId& server, const JsonPointer& at)
    {
        if (server != ZanServerId::Empty())
            CheckSerialNumber(server, at);
    }

    void CheckSerialNumber(const ZanServerId& server, const JsonPointer& at)
    {
        if (!ZanServerId::IsValid(server.SerialNumber()))
            Add(at, "serial number " + std::to_string(server.SerialNumber()) + " is not a positive multiple of 10");
    }

    void CheckTimecode(const Timecode& timecode, const JsonPointer& at)
    {
        const auto& rate = timecode.Rate();
        if (timecode != Timecode() && (rate.Numerator() <= 0 || rate.Denominator() <= 0))
            Add(at, "rate " + std::to_string(rate.Numerator()) + "/" + std::to_string(rate.Denominator())
                        + " is not positive: the timecode cannot be read as a clock");
    }

    /// A problem for each element whose id an earlier element already has.
    template <typename Collection, typename IdOf>
    void CheckDuplicateIds(const Collection& elements, IdOf idOf, const JsonPointer& at, const char* idMember,
                      const std::string& what)
    {
        std::map<std::string, size_t> first;
        size_t index = 0;
        for (const auto& element : elements) {
            const std::string& id = idOf(element);
            const auto [found, inserted] = first.emplace(id, index);
            if (!inserted)
                Add(at / index / idMember,
                    what + " " + Quoted(id) + " occurs again (first at " + (at / found->second).Text() + ")");
            ++index;
        }
    }

    void CheckTracks(const AssetContext& context, const JsonPointer& at)
    {
        const auto& tracks = context.asset.Tracks();
        CheckDuplicateIds(tracks, [](const auto& track) -> const std::string& { return track->Id().Value(); }, at, "id",
                     "track id");
        size_t index = 0;
        for (const auto& track : tracks) {
            size_t channelIndex = 0;
            for (const auto& channel : track->Channels()) {
                const JsonPointer streamAt = at / index / "channels" / channelIndex++ / "stream";
                const std::string& streamId = channel->Stream().Id().Value();
                if (streamId.empty())
                    Add(streamAt, "the channel names no stream");
                else if (context.streamIds && context.streamIds->count(streamId) == 0)
                    Add(streamAt, "stream " + Quoted(streamId) + " is not a stream of the asset's media resources");
            }
            ++index;
        }
    }

    void CheckLayouts(const AssetContext& context, const JsonPointer& at)
    {
        const auto& layouts = context.asset.TrackLayouts();
        CheckDuplicateIds(layouts, [](const auto& layout) -> const std::string& { return layout->Id().Value(); }, at, "id",
                     "layout id");
        size_t index = 0;
        for (const auto& layout : layouts) {
            const JsonPointer itemsAt = at / index++ / "trackLayoutItems";
            const auto& items = layout->TrackLayoutItems();
            CheckDuplicateIds(items, [](const TrackLayoutItem& item) -> const std::string& { return item.Id().Value(); },
                         itemsAt, "id", "item id");
            size_t itemIndex = 0;
            for (const TrackLayoutItem& item : items)
                CheckItemTracks(item, context, itemsAt / itemIndex++ / "tracks");
        }
    }

    void CheckItemTracks(const TrackLayoutItem& item, const AssetContext& context, const JsonPointer& at)
    {
        size_t index = 0;
        for (const std::weak_ptr<Track>& weak : item.Tracks()) {
            const auto track = weak.lock();
            if (!track)
                Add(at / index, "the track no longer exists");
            else if (!IsTrackOf(track, context.asset))
                Add(at / index, "track " + Quoted(track->Id().Value()) + " is not one of the asset's tracks");
            ++index;
        }
    }

    static bool IsTrackOf(const std::shared_ptr<Track>& track, const MediaAsset& asset)
    {
        for (const auto& own : asset.Tracks())
            if (own == track)
                return true;
        return false;
    }

    void CheckResource(const MediaResource& resource, const AssetContext& context, const JsonPointer& at)
    {
        CheckTimeBounds(resource.Timebounds(), at / "timebounds");
        CheckMetadata(resource.Metadata(), at / "metadata");
        size_t index = 0;
        for (const StreamReference& stream : resource.Streams()) {
            if (stream.Pointer())
                CheckStream(*stream.Pointer(), context, at / "streams" / index);
            ++index;
        }
    }

    void CheckStream(const Stream& stream, const AssetContext& context, const JsonPointer& at)
    {
        CheckTimeBounds(stream.Timebounds(), at / "timebounds");
        CheckMetadata(stream.Metadata(), at / "metadata");
        size_t index = 0;
        for (const auto& essence : stream.Essences())
            CheckEssence(*essence, context, at / "essences" / index++);
        index = 0;
        for (const auto& location : stream.Locations()) {
            if (location->GetType() == Location::ZanLocation)
                CheckSerialNumber(static_cast<const ZanLocation&>(*location).ServerId(), at / "locations" / index / "serverId");
            ++index;
        }
    }

    void CheckEssence(const Essence& essence, const AssetContext& context, const JsonPointer& at)
    {
        CheckMetadata(essence.Metadata(), at / "metadata");
        size_t index = 0;
        for (const auto& channel : essence.TrackChannels()) {
            const std::string& trackId = channel->TrackId().Value();
            if (context.trackIds.count(trackId) == 0)
                Add(at / "trackChannels" / index / "trackId",
                    "track " + Quoted(trackId) + " is not a track of the asset");
            ++index;
        }
        const auto& tables = essence.Timecodes();
        CheckDuplicateIds(tables, [](const auto& table) -> const std::string& { return table->FullyQualifiedName().Value(); },
                     at / "timecodes", "fullyQualifiedName", "timecode table name");
        index = 0;
        for (const auto& table : tables) {
            size_t jumpIndex = 0;
            for (const auto& jump : table->TimeCodeJumpItems()) {
                if (jump->TimeCode().IsEmpty())
                    Add(at / "timecodes" / index / "timeCodeJumpItems" / jumpIndex / "timeCode",
                        "the timecode jump has no timecode text");
                ++jumpIndex;
            }
            ++index;
        }
    }

    std::vector<Problem> problems;
};

}  // namespace

std::vector<Problem> Validate(const MediaAsset& asset)
{
    Checker checker;
    checker.CheckAsset(asset, JsonPointer());
    return checker.TakeProblems();
}

std::vector<Problem> Validate(const MediaAssetGroup& group)
{
    Checker checker;
    checker.CheckGroup(group, JsonPointer());
    return checker.TakeProblems();
}

}  // namespace Orvik::AssetTool
