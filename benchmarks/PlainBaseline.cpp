#include "PlainBaseline.h"

#include <Orvik/DataModel/MediaAssets.h>

namespace OrvikBenchmarks::Plain {
namespace {

namespace Model = Orvik::DataModel::MediaAssets;

template <typename T>
std::vector<std::unique_ptr<T>> CopyAll(const std::vector<std::unique_ptr<T>>& items)
{
    std::vector<std::unique_ptr<T>> copies;
    copies.reserve(items.size());
    for (const auto& item : items)
        copies.push_back(std::make_unique<T>(*item));
    return copies;
}

template <typename T, typename Compare>
bool EqualAll(const std::vector<std::unique_ptr<T>>& a, const std::vector<std::unique_ptr<T>>& b, Compare equal)
{
    if (a.size() != b.size())
        return false;
    for (size_t i = 0; i < a.size(); ++i)
        if (!equal(*a[i], *b[i]))
            return false;
    return true;
}

std::unique_ptr<Stream> FromModel(const Model::Stream& model)
{
    auto stream = std::make_unique<Stream>();
    stream->id = model.Id().Value();
    stream->format = static_cast<int32_t>(model.Format());
    std::shared_ptr<TimecodeTable> shared;
    for (const auto& modelEssence : model.Essences()) {
        auto essence = std::make_unique<Essence>();
        essence->kind = modelEssence->GetType();
        essence->nr = modelEssence->Nr();
        essence->channelCount = modelEssence->ChannelCount();
        for (const auto& channel : modelEssence->TrackChannels())
            essence->channels.push_back(std::make_unique<Channel>(Channel{channel->TrackId().Value(), channel->ChannelNr()}));
        if (!shared && !modelEssence->Timecodes().Empty()) {
            const auto& table = *modelEssence->Timecodes().Front();
            shared = std::make_shared<TimecodeTable>();
            shared->name = table.FullyQualifiedName().Value();
            shared->type = table.Type();
            for (const auto& jump : table.TimeCodeJumpItems())
                shared->jumps.push_back(std::make_unique<Jump>(
                    Jump{jump->TimePoint().ToNanoseconds(), jump->TimeCode().Value(), jump->Duration()}));
        }
        essence->timecodes = shared;
        stream->essences.push_back(std::move(essence));
    }
    for (const auto& location : model.Locations())
        stream->locations.push_back(std::make_unique<Location>(Location{location->GetType(), location->Uri().Value(), ""}));
    return stream;
}

Essence CopyEssence(const Essence& essence)
{
    Essence copy{essence.kind, essence.nr, essence.channelCount, essence.codec, essence.fourCC, CopyAll(essence.channels),
                 essence.timecodes};
    return copy;
}

bool EqualStreamImpl(const Stream& a, const Stream& b)
{
    return a.id == b.id && a.format == b.format
        && EqualAll(a.essences, b.essences, [](const Essence& x, const Essence& y) {
               return x.kind == y.kind && x.nr == y.nr && x.channelCount == y.channelCount && x.codec == y.codec
                   && x.fourCC == y.fourCC
                   && EqualAll(x.channels, y.channels, [](const Channel& c, const Channel& d) {
                          return c.trackId == d.trackId && c.number == d.number;
                      });
           })
        && EqualAll(a.locations, b.locations, [](const Location& x, const Location& y) {
               return x.kind == y.kind && x.uri == y.uri && x.name == y.name;
           });
}

}  // namespace

bool Equal(const Stream& a, const Stream& b)
{
    return EqualStreamImpl(a, b);
}

std::unique_ptr<Stream> DeepCopy(const Stream& stream)
{
    auto copy = std::make_unique<Stream>();
    copy->id = stream.id;
    copy->format = stream.format;
    copy->essences.reserve(stream.essences.size());
    for (const auto& essence : stream.essences)
        copy->essences.push_back(std::make_unique<Essence>(CopyEssence(*essence)));
    copy->locations = CopyAll(stream.locations);
    return copy;
}

Asset FromModel(const Model::MediaAsset& model)
{
    Asset asset;
    asset.id = model.Id().Value();
    asset.name = model.Name();
    for (const auto& modelTrack : model.Tracks()) {
        auto track = std::make_unique<Track>();
        track->id = modelTrack->Id().Value();
        track->name = modelTrack->Name();
        for (const auto& channel : modelTrack->Channels())
            track->channels.push_back(std::make_unique<TrackChannel>(
                TrackChannel{FromModel(channel->Stream().Value()), channel->ChannelNr()}));
        asset.tracks.push_back(std::move(track));
    }
    for (const auto& modelLayout : model.TrackLayouts()) {
        auto layout = std::make_unique<Layout>();
        layout->id = modelLayout->Id().Value();
        for (const auto& item : modelLayout->TrackLayoutItems())
            for (const auto& track : item.Tracks())
                layout->trackIds.push_back(track.lock()->Id().Value());
        asset.layouts.push_back(std::move(layout));
    }
    for (const auto& reference : model.MediaResources()) {
        auto resource = std::make_unique<Resource>();
        resource->id = reference.Id().Value();
        resource->name = reference->Name();
        for (const auto& stream : reference->Streams())
            resource->streams.push_back(FromModel(stream.Value()));
        asset.resources.push_back(std::move(resource));
    }
    for (const auto& annotation : model.Annotations())
        asset.annotations.push_back(std::make_unique<Annotation>(
            Annotation{static_cast<int32_t>(annotation->Type()), annotation->Data(),
                       annotation->TimeBounds().InBoundary().TimePoint().ToNanoseconds(),
                       annotation->TimeBounds().OutBoundary().TimePoint().ToNanoseconds()}));
    const auto& profile = model.PelkOperatorMetadata();
    const auto keywords = profile.Keywords();
    asset.profile = std::make_unique<Profile>(
        Profile{profile.Page(), profile.Bank(), profile.Clip(), std::vector<std::string>(keywords.begin(), keywords.end())});
    return asset;
}

Asset DeepCopy(const Asset& asset)
{
    Asset copy;
    copy.id = asset.id;
    copy.name = asset.name;
    copy.tracks.reserve(asset.tracks.size());
    for (const auto& track : asset.tracks) {
        auto trackCopy = std::make_unique<Track>();
        trackCopy->id = track->id;
        trackCopy->name = track->name;
        for (const auto& channel : track->channels)
            trackCopy->channels.push_back(std::make_unique<TrackChannel>(TrackChannel{DeepCopy(*channel->stream), channel->channelNr}));
        copy.tracks.push_back(std::move(trackCopy));
    }
    copy.layouts = CopyAll(asset.layouts);
    copy.resources.reserve(asset.resources.size());
    for (const auto& resource : asset.resources) {
        auto resourceCopy = std::make_unique<Resource>();
        resourceCopy->id = resource->id;
        resourceCopy->name = resource->name;
        for (const auto& stream : resource->streams)
            resourceCopy->streams.push_back(DeepCopy(*stream));
        copy.resources.push_back(std::move(resourceCopy));
    }
    copy.annotations = CopyAll(asset.annotations);
    copy.profile = std::make_unique<Profile>(*asset.profile);
    return copy;
}

bool Equal(const Asset& a, const Asset& b)
{
    return a.id == b.id && a.name == b.name
        && EqualAll(a.tracks, b.tracks, [](const Track& x, const Track& y) { return x.id == y.id && x.name == y.name; })
        && EqualAll(a.layouts, b.layouts, [](const Layout& x, const Layout& y) { return x.id == y.id && x.trackIds == y.trackIds; })
        && EqualAll(a.resources, b.resources, [](const Resource& x, const Resource& y) { return x.id == y.id; })
        && EqualAll(a.annotations, b.annotations, [](const Annotation& x, const Annotation& y) {
               return x.type == y.type && x.data == y.data && x.in == y.in && x.out == y.out;
           })
        && a.profile->keywords == b.profile->keywords && a.profile->page == b.profile->page;
}

}  // namespace OrvikBenchmarks::Plain
