#include "Validation.h"

#include "TimeText.h"

#include <Orvik/DataModel/MediaAssets.h>
#include <Orvik/DataModel/MediaAssets/Json/JsonPointer.h>
#include <Orvik/DataModel/MediaAssets/Json/Members.h>
#include <Orvik/TimePoints/Core/Formatters/SmpteTimeCodeFormatter.h>

#include <map>
#include <optional>
#include <set>
#include <stdexcept>
#include <string>
#include <utility>

namespace Orvik::AssetTool {

using namespace DataModel::MediaAssets;
using DataModel::MediaAssets::Json::JsonPointer;
namespace Members = DataModel::MediaAssets::Json::Members;

namespace {

std::string Quoted(const std::string& text) { return "\"" + text + "\""; }

std::string RangeText(int min, int max) { return std::to_string(min) + " to " + std::to_string(max); }

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
        // In the order of the document, which writes the resources (and the streams that track
        // channels share with them) before the tracks.
        const AssetContext context = ContextOf(asset);
        CheckTimeBounds(asset.PhysicalTimebounds(), at / Members::kPhysicalTimebounds);
        CheckMetadata(asset.Metadata(), at / Members::kMetadata);
        size_t index = 0;
        for (const MediaResourceReference& resource : asset.MediaResources()) {
            if (resource.Pointer())
                CheckResource(*resource.Pointer(), context, at / Members::kMediaResources / index / Members::kPointer);
            ++index;
        }
        CheckTracks(context, at / Members::kTracks);
        CheckLayouts(context, at / Members::kTrackLayouts);
        index = 0;
        for (const auto& annotation : asset.Annotations()) {
            if (annotation)
                CheckMetadata(annotation->Metadata(), at / Members::kAnnotations / index / Members::kMetadata);
            ++index;
        }
    }

    void CheckGroup(const MediaAssetGroup& group, const JsonPointer& at)
    {
        CheckMetadata(group.Metadata(), at / Members::kMetadata);
        size_t index = 0;
        for (const auto& item : group.Items()) {
            if (item && item->MediaAsset().Id().IsEmpty())
                Add(at / Members::kItems / index / Members::kMediaAsset, "the item refers to no asset");
            ++index;
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
            Add(at / Members::kInBoundary,
                "the in boundary " + BoundaryText(bounds.InBoundary()) + " is not before the out boundary "
                    + BoundaryText(bounds.OutBoundary()));
        if (bounds.IsInOutOfTimeBounds())
            Add(at / Members::kInBoundary, "the in boundary " + BoundaryText(bounds.InBoundary()) + " lies in no stretch");
        if (bounds.IsOutOutOfTimeBounds())
            Add(at / Members::kOutBoundary,
                "the out boundary " + BoundaryText(bounds.OutBoundary())
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
                    Add(profileAt / Members::kCamera,
                        "camera '" + CameraText(full->Camera()) + "' is not " + ValidCamerasText());
                CheckProfileServer(full->ServerId(), profileAt / Members::kServerId);
                CheckTimecode(full->UserTimecode(), profileAt / Members::kUserTimecode);
                CheckTimecode(full->TodTimecode(), profileAt / Members::kTodTimecode);
            } else if (const auto* angles = dynamic_cast<const AnglesPelkOperatorMetadataProfile*>(&profile)) {
                CheckClip(angles->Page(), angles->Bank(), angles->Clip(), profileAt);
                CheckProfileServer(angles->ServerId(), profileAt / Members::kServerId);
            }
        }
    }

    void CheckClip(int32_t page, int32_t bank, int32_t clip, const JsonPointer& at)
    {
        if (!PelkId::IsValidPage(page))
            Add(at / Members::kPage,
                "page " + std::to_string(page) + " is not " + RangeText(PelkId::MinPage, PelkId::MaxPage));
        if (!PelkId::IsValidBank(bank))
            Add(at / Members::kBank,
                "bank " + std::to_string(bank) + " is not " + RangeText(PelkId::MinBank, PelkId::MaxBank));
        if (!PelkId::IsValidRow(clip))
            Add(at / Members::kClip,
                "clip " + std::to_string(clip) + " is not " + RangeText(PelkId::MinRow, PelkId::MaxRow));
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

    /// A timecode that is set must read as a label (see SmpteTimeCodeFormatter).
    void CheckTimecode(const Timecode& timecode, const JsonPointer& at)
    {
        if (timecode == Timecode())
            return;
        try {
            timecode.ToString(TimePoints::SmpteTimeCodeFormatter());
        } catch (const std::invalid_argument& error) {
            Add(at, std::string("the timecode cannot be read: ") + error.what());
        }
    }

    /// The ids met so far in one collection, each with the pointer of the element that has it.
    using SeenIds = std::map<std::string, JsonPointer>;

    /// A problem at `problemAt` when an earlier element of the collection, at its place in
    /// `seen`, has the id of the element at `elementAt` already.
    void CheckId(SeenIds& seen, const std::string& id, const JsonPointer& elementAt, const JsonPointer& problemAt,
                 const char* what)
    {
        const auto [found, inserted] = seen.emplace(id, elementAt);
        if (!inserted)
            Add(problemAt, std::string(what) + " " + Quoted(id) + " occurs again (first at " + found->second.Text() + ")");
    }

    void CheckTracks(const AssetContext& context, const JsonPointer& at)
    {
        SeenIds seen;
        size_t index = 0;
        for (const auto& track : context.asset.Tracks()) {
            const JsonPointer trackAt = at / index++;
            CheckId(seen, track->Id().Value(), trackAt, trackAt / Members::kId, "track id");
            size_t channelIndex = 0;
            for (const auto& channel : track->Channels()) {
                const JsonPointer streamAt = trackAt / Members::kChannels / channelIndex++ / Members::kStream / Members::kId;
                const std::string& streamId = channel->Stream().Id().Value();
                if (streamId.empty())
                    Add(streamAt, "the channel names no stream");
                else if (context.streamIds && context.streamIds->count(streamId) == 0)
                    Add(streamAt, "stream " + Quoted(streamId) + " is not a stream of the asset's media resources");
            }
        }
    }

    void CheckLayouts(const AssetContext& context, const JsonPointer& at)
    {
        SeenIds seenLayouts;
        size_t index = 0;
        for (const auto& layout : context.asset.TrackLayouts()) {
            const JsonPointer layoutAt = at / index++;
            CheckId(seenLayouts, layout->Id().Value(), layoutAt, layoutAt / Members::kId, "layout id");
            SeenIds seenItems;
            size_t itemIndex = 0;
            for (const TrackLayoutItem& item : layout->TrackLayoutItems()) {
                const JsonPointer itemAt = layoutAt / Members::kTrackLayoutItems / itemIndex++;
                CheckId(seenItems, item.Id().Value(), itemAt, itemAt / Members::kId, "item id");
                CheckItemTracks(item, context, itemAt / Members::kTracks);
            }
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
        size_t index = 0;
        for (const StreamReference& stream : resource.Streams()) {
            // A stream that two resources share is written, and checked, once.
            if (stream.Pointer() && checkedStreams.insert(stream.Pointer().get()).second)
                CheckStream(*stream.Pointer(), context, at / Members::kStreams / index / Members::kPointer);
            ++index;
        }
        CheckTimeBounds(resource.Timebounds(), at / Members::kTimebounds);
        CheckMetadata(resource.Metadata(), at / Members::kMetadata);
    }

    void CheckStream(const Stream& stream, const AssetContext& context, const JsonPointer& at)
    {
        CheckTimeBounds(stream.Timebounds(), at / Members::kTimebounds);
        CheckMetadata(stream.Metadata(), at / Members::kMetadata);
        size_t index = 0;
        for (const auto& essence : stream.Essences())
            CheckEssence(*essence, context, at / Members::kEssences / index++);
        index = 0;
        for (const auto& location : stream.Locations()) {
            if (location->GetType() == Location::ZanLocation)
                CheckSerialNumber(static_cast<const ZanLocation&>(*location).ServerId(),
                                  at / Members::kLocations / index / Members::kServerId);
            ++index;
        }
    }

    void CheckEssence(const Essence& essence, const AssetContext& context, const JsonPointer& at)
    {
        CheckMetadata(essence.Metadata(), at / Members::kMetadata);
        size_t index = 0;
        for (const auto& channel : essence.TrackChannels()) {
            const std::string& trackId = channel->TrackId().Value();
            if (context.trackIds.count(trackId) == 0)
                Add(at / Members::kTrackChannels / index / Members::kTrackId,
                    "track " + Quoted(trackId) + " is not a track of the asset");
            ++index;
        }
        SeenIds seenTables;
        index = 0;
        for (const auto& table : essence.Timecodes()) {
            // A table that essences share is written where it first occurs, and a pointer to it
            // elsewhere: a repeated name is reported at the element, its contents once.
            const JsonPointer tableAt = at / Members::kTimecodes / index++;
            CheckId(seenTables, table->FullyQualifiedName().Value(), tableAt, tableAt, "timecode table name");
            if (!checkedTables.insert(table.get()).second)
                continue;
            size_t jumpIndex = 0;
            for (const auto& jump : table->TimeCodeJumpItems()) {
                if (jump->TimeCode().IsEmpty())
                    Add(tableAt / Members::kTimeCodeJumpItems / jumpIndex / Members::kTimeCode,
                        "the timecode jump has no timecode text");
                ++jumpIndex;
            }
        }
    }

    std::vector<Problem> problems;
    std::set<const Stream*> checkedStreams;
    std::set<const TimeCodeTable*> checkedTables;
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
