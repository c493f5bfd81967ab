#include "PlainBaseline.h"

#include <Orvik/DataModel/MediaAssets.h>

#include <stdexcept>
#include <utility>

namespace OrvikBenchmarks::Plain {
namespace {

namespace Model = Orvik::DataModel::MediaAssets;

// Copying and comparing.

template <typename T, typename Copy>
std::vector<std::unique_ptr<T>> CopyAll(const std::vector<std::unique_ptr<T>>& items, Copy copy)
{
    std::vector<std::unique_ptr<T>> copies;
    copies.reserve(items.size());
    for (const auto& item : items)
        copies.push_back(copy(*item));
    return copies;
}

template <typename T>
std::vector<std::unique_ptr<T>> CopyAll(const std::vector<std::unique_ptr<T>>& items)
{
    return CopyAll(items, [](const T& item) { return std::make_unique<T>(item); });
}

template <typename A, typename B, typename Equal>
bool EqualAll(const std::vector<A>& a, const std::vector<B>& b, Equal equal)
{
    if (a.size() != b.size())
        return false;
    for (size_t i = 0; i < a.size(); ++i)
        if (!equal(a[i], b[i]))
            return false;
    return true;
}

bool Equal(const Boundary& a, const Boundary& b) { return a.at == b.at && a.moving == b.moving; }

bool Equal(const Bounds& a, const Bounds& b) { return Equal(a.in, b.in) && Equal(a.out, b.out); }

bool Equal(const BoundsList& a, const BoundsList& b)
{
    return Equal(a.in, b.in) && Equal(a.out, b.out)
        && EqualAll(a.spans, b.spans, [](const Bounds& x, const Bounds& y) { return Equal(x, y); });
}

bool Equal(const Timecode& a, const Timecode& b)
{
    return a.rateNumerator == b.rateNumerator && a.rateDenominator == b.rateDenominator && a.totalSample == b.totalSample
        && a.isDrop == b.isDrop && a.hasDate == b.hasDate;
}

bool Equal(const Profile& a, const Profile& b)
{
    return a.serverId == b.serverId && a.page == b.page && a.bank == b.bank && a.clip == b.clip && a.camera == b.camera
        && a.umId == b.umId && a.varId == b.varId && a.rating == b.rating && a.archiveStatus == b.archiveStatus
        && a.userTimecodeType == b.userTimecodeType && a.primaryTimecode == b.primaryTimecode
        && Equal(a.userTimecode, b.userTimecode) && Equal(a.todTimecode, b.todTimecode) && a.icon == b.icon
        && a.color == b.color && a.keywords == b.keywords && a.fillAndKeyType == b.fillAndKeyType
        && a.fillAndKeyAssetId == b.fillAndKeyAssetId;
}

Metadata Copy(const Metadata& metadata)
{
    Metadata copy;
    for (const auto& [name, profile] : metadata)
        copy.emplace(name, std::make_unique<Profile>(*profile));
    return copy;
}

bool Equal(const Metadata& a, const Metadata& b)
{
    if (a.size() != b.size())
        return false;
    for (auto x = a.begin(), y = b.begin(); x != a.end(); ++x, ++y)
        if (x->first != y->first || !Equal(*x->second, *y->second))
            return false;
    return true;
}

bool Equal(const TimecodeTable& a, const TimecodeTable& b)
{
    return a.name == b.name && a.standard == b.standard && a.type == b.type
        && EqualAll(a.jumps, b.jumps, [](const auto& x, const auto& y) {
               return x->at == y->at && x->timecode == y->timecode && x->duration == y->duration;
           });
}

std::unique_ptr<Essence> Copy(const Essence& essence)
{
    auto copy = std::make_unique<Essence>();
    copy->kind = essence.kind;
    copy->channelCount = essence.channelCount;
    copy->nr = essence.nr;
    copy->metadata = Copy(essence.metadata);
    copy->channels = CopyAll(essence.channels);
    copy->timecodes = essence.timecodes;
    copy->codec = essence.codec;
    copy->bitRate = essence.bitRate;
    copy->bitRateMode = essence.bitRateMode;
    copy->bitDepth = essence.bitDepth;
    copy->rateNumerator = essence.rateNumerator;
    copy->rateDenominator = essence.rateDenominator;
    copy->height = essence.height;
    copy->width = essence.width;
    copy->chromaSubSampling = essence.chromaSubSampling;
    copy->colorSpace = essence.colorSpace;
    copy->scanMode = essence.scanMode;
    copy->fourCC = essence.fourCC;
    copy->aspectWidth = essence.aspectWidth;
    copy->aspectHeight = essence.aspectHeight;
    copy->boxing = essence.boxing;
    return copy;
}

bool Equal(const Essence& a, const Essence& b)
{
    return a.kind == b.kind && a.channelCount == b.channelCount && (a.nr == b.nr || a.nr < 0 || b.nr < 0)
        && Equal(a.metadata, b.metadata)
        && EqualAll(a.channels, b.channels,
                    [](const auto& x, const auto& y) { return x->trackId == y->trackId && x->channelNr == y->channelNr; })
        && EqualAll(a.timecodes, b.timecodes, [](const auto& x, const auto& y) { return Equal(*x, *y); })
        && a.codec == b.codec && a.bitRate == b.bitRate && a.bitRateMode == b.bitRateMode && a.bitDepth == b.bitDepth
        && a.rateNumerator == b.rateNumerator && a.rateDenominator == b.rateDenominator && a.height == b.height
        && a.width == b.width && a.chromaSubSampling == b.chromaSubSampling && a.colorSpace == b.colorSpace
        && a.scanMode == b.scanMode && a.fourCC == b.fourCC && a.aspectWidth == b.aspectWidth
        && a.aspectHeight == b.aspectHeight && a.boxing == b.boxing;
}

bool Equal(const Location& a, const Location& b)
{
    return a.kind == b.kind && a.name == b.name && a.size == b.size && a.isReadOnly == b.isReadOnly && a.uri == b.uri
        && a.creationDate == b.creationDate && a.modificationDate == b.modificationDate
        && a.lastAccessDate == b.lastAccessDate && a.serverId == b.serverId && a.sequenceId == b.sequenceId;
}

StreamReference Copy(const StreamReference& reference)
{
    return StreamReference{reference.id, reference.stream ? DeepCopy(*reference.stream) : nullptr};
}

std::unique_ptr<Resource> Copy(const Resource& resource)
{
    auto copy = std::make_unique<Resource>();
    copy->id = resource.id;
    copy->name = resource.name;
    copy->generalFormat = resource.generalFormat;
    copy->timebounds = resource.timebounds;
    copy->creationDate = resource.creationDate;
    copy->modificationDate = resource.modificationDate;
    copy->metadata = Copy(resource.metadata);
    copy->streams.reserve(resource.streams.size());
    for (const auto& stream : resource.streams)
        copy->streams.push_back(Copy(stream));
    return copy;
}

std::unique_ptr<Track> Copy(const Track& track)
{
    auto copy = std::make_unique<Track>();
    copy->id = track.id;
    copy->name = track.name;
    copy->channels = CopyAll(track.channels, [](const TrackChannel& channel) {
        return std::make_unique<TrackChannel>(TrackChannel{Copy(channel.stream), channel.essenceNr, channel.channelNr});
    });
    return copy;
}

std::unique_ptr<Annotation> Copy(const Annotation& annotation)
{
    return std::make_unique<Annotation>(
        Annotation{annotation.type, annotation.data, annotation.bounds, Copy(annotation.metadata)});
}

bool SameTrack(const Track& a, const Track& b) { return a.id == b.id && a.name == b.name; }

bool Equal(const Layout& a, const Layout& b)
{
    return a.id == b.id && a.name == b.name && EqualAll(a.items, b.items, [](const LayoutItem& x, const LayoutItem& y) {
               return x.id == y.id && x.name == y.name
                   && EqualAll(x.tracks, y.tracks, [](const Track* s, const Track* t) { return SameTrack(*s, *t); });
           });
}

bool Equal(const Annotation& a, const Annotation& b)
{
    return a.type == b.type && a.data == b.data && Equal(a.bounds, b.bounds) && Equal(a.metadata, b.metadata);
}

// Reading the model.

Boundary FromModel(const Model::TimeBoundary& boundary)
{
    return Boundary{boundary.TimePoint().ToNanoseconds(), boundary.IsMoving()};
}

Bounds FromModel(const Model::TimeBounds& bounds)
{
    return Bounds{FromModel(bounds.InBoundary()), FromModel(bounds.OutBoundary())};
}

BoundsList FromModel(const Model::TimeBoundsArray& bounds)
{
    BoundsList list{{}, FromModel(bounds.InBoundary()), FromModel(bounds.OutBoundary())};
    for (const auto& span : bounds)
        list.spans.push_back(FromModel(span));
    return list;
}

Timecode FromModel(const Model::Timecode& timecode)
{
    return Timecode{timecode.Rate().Numerator(), timecode.Rate().Denominator(), timecode.TotalSample(), timecode.IsDrop(),
                    timecode.HasDate()};
}

Metadata FromModel(const Model::MetadataProfileDictionary& dictionary)
{
    Metadata metadata;
    if (dictionary.Empty())
        return metadata;
    const auto model = dictionary.Get<Model::PelkOperatorMetadataProfile>();
    if (dictionary.Size() != 1 || !model)
        throw std::invalid_argument("the plain baseline knows only the operator profile");
    auto profile = std::make_unique<Profile>();
    profile->serverId = model->ServerId().SerialNumber();
    profile->page = model->Page();
    profile->bank = model->Bank();
    profile->clip = model->Clip();
    profile->camera = model->Camera();
    profile->umId = model->UmId();
    profile->varId = model->VarId();
    profile->rating = model->Rating();
    profile->archiveStatus = static_cast<int32_t>(model->ArchiveStatus());
    profile->userTimecodeType = static_cast<int32_t>(model->UserTimecodeType());
    profile->primaryTimecode = static_cast<int32_t>(model->PrimaryTimecode());
    profile->userTimecode = FromModel(model->UserTimecode());
    profile->todTimecode = FromModel(model->TodTimecode());
    profile->icon = model->Icon();
    profile->color = model->Color();
    profile->fillAndKeyType = static_cast<int32_t>(model->FillAndKeyType());
    profile->fillAndKeyAssetId = model->FillAndKeyMediaAssetId().Value();
    const auto keywords = model->Keywords();
    profile->keywords.assign(keywords.begin(), keywords.end());
    profile->userProtected = model->IsUserProtected();
    profile->pelkUIProtected = model->IsPelkUiProtected();
    metadata.emplace(Model::PelkOperatorMetadataProfile::StaticFullyQualifiedName().Value(), std::move(profile));
    return metadata;
}

/// Timecode tables that several essences share stay shared.
using TableCache = std::map<const Model::TimeCodeTable*, std::shared_ptr<const TimecodeTable>>;

std::shared_ptr<const TimecodeTable> FromModel(const Model::TimeCodeTable& model, TableCache& cache)
{
    auto& table = cache[&model];
    if (!table) {
        auto made = std::make_shared<TimecodeTable>();
        made->name = model.FullyQualifiedName().Value();
        made->standard = static_cast<int32_t>(model.Standard());
        made->type = model.Type();
        for (const auto& jump : model.TimeCodeJumpItems())
            made->jumps.push_back(
                std::make_unique<Jump>(Jump{jump->TimePoint().ToNanoseconds(), jump->TimeCode().Value(), jump->Duration()}));
        table = std::move(made);
    }
    return table;
}

std::unique_ptr<Essence> FromModel(const Model::Essence& model, TableCache& cache)
{
    auto essence = std::make_unique<Essence>();
    essence->kind = model.GetType();
    essence->channelCount = model.ChannelCount();
    essence->nr = model.Nr();
    essence->metadata = FromModel(model.Metadata());
    for (const auto& channel : model.TrackChannels())
        essence->channels.push_back(std::make_unique<Channel>(Channel{channel->TrackId().Value(), channel->ChannelNr()}));
    for (const auto& table : model.Timecodes())
        essence->timecodes.push_back(FromModel(*table, cache));
    if (const auto* audio = dynamic_cast<const Model::AudioEssence*>(&model)) {
        essence->codec = static_cast<int32_t>(audio->AudioCodec());
        essence->bitRate = audio->BitRate();
        essence->bitRateMode = static_cast<int32_t>(audio->BitRateMode());
        essence->bitDepth = audio->BitDepth();
        essence->rateNumerator = audio->SampleRate().Numerator();
        essence->rateDenominator = audio->SampleRate().Denominator();
        essence->fourCC = audio->FourCC();
    } else if (const auto* video = dynamic_cast<const Model::VideoEssence*>(&model)) {
        essence->codec = static_cast<int32_t>(video->VideoCodec());
        essence->bitRate = video->BitRate();
        essence->bitRateMode = static_cast<int32_t>(video->BitRateMode());
        essence->bitDepth = video->BitDepth();
        essence->rateNumerator = video->FrameRate().Numerator();
        essence->rateDenominator = video->FrameRate().Denominator();
        essence->height = video->Height();
        essence->width = video->Width();
        essence->chromaSubSampling = static_cast<int32_t>(video->ChromaSubSampling());
        essence->colorSpace = static_cast<int32_t>(video->ColorSpace());
        essence->scanMode = static_cast<int32_t>(video->ScanMode());
        essence->fourCC = video->FourCC();
        essence->aspectWidth = video->AspectRatio().WidthFactor();
        essence->aspectHeight = video->AspectRatio().HeightFactor();
        essence->boxing = static_cast<int32_t>(video->Boxing());
    }
    return essence;
}

std::unique_ptr<Location> FromModel(const Model::Location& model)
{
    auto location = std::make_unique<Location>();
    location->kind = model.GetType();
    if (const auto* file = dynamic_cast<const Model::FileLocation*>(&model)) {
        location->name = file->Name();
        location->size = file->Size();
        location->isReadOnly = file->IsReadOnly();
        location->creationDate = file->CreationDate();
        location->modificationDate = file->ModificationDate();
        location->lastAccessDate = file->LastAccessDate();
        location->uri = file->Uri().Value();
    } else if (const auto* zan = dynamic_cast<const Model::ZanLocation*>(&model)) {
        location->serverId = zan->ServerId().SerialNumber();
        location->sequenceId = zan->SequenceId();
    } else {
        throw std::invalid_argument("the plain baseline knows only file and video-server locations");
    }
    return location;
}

std::unique_ptr<Stream> FromModel(const Model::Stream& model)
{
    auto stream = std::make_unique<Stream>();
    stream->id = model.Id().Value();
    stream->format = static_cast<int32_t>(model.Format());
    stream->timebounds = FromModel(model.Timebounds());
    stream->metadata = FromModel(model.Metadata());
    TableCache cache;
    for (const auto& essence : model.Essences())
        stream->essences.push_back(FromModel(*essence, cache));
    for (const auto& location : model.Locations())
        stream->locations.push_back(FromModel(*location));
    return stream;
}

StreamReference FromModel(const Model::StreamReference& reference)
{
    const auto stream = reference.Pointer();
    return StreamReference{reference.Id().Value(), stream ? FromModel(*stream) : nullptr};
}

std::unique_ptr<Resource> FromModel(const Model::MediaResource& model)
{
    auto resource = std::make_unique<Resource>();
    resource->id = model.Id().Value();
    resource->name = model.Name();
    resource->generalFormat = static_cast<int32_t>(model.GeneralFormat());
    for (const auto& stream : model.Streams())
        resource->streams.push_back(FromModel(stream));
    resource->timebounds = FromModel(model.Timebounds());
    resource->creationDate = model.CreationDate();
    resource->modificationDate = model.ModificationDate();
    resource->metadata = FromModel(model.Metadata());
    return resource;
}

}  // namespace

std::unique_ptr<Stream> DeepCopy(const Stream& stream)
{
    auto copy = std::make_unique<Stream>();
    copy->id = stream.id;
    copy->format = stream.format;
    copy->timebounds = stream.timebounds;
    copy->metadata = Copy(stream.metadata);
    copy->essences = CopyAll(stream.essences, [](const Essence& essence) { return Copy(essence); });
    copy->locations = CopyAll(stream.locations);
    return copy;
}

bool Equal(const Stream& a, const Stream& b)
{
    return a.id == b.id && a.format == b.format && Equal(a.timebounds, b.timebounds) && Equal(a.metadata, b.metadata)
        && EqualAll(a.essences, b.essences, [](const auto& x, const auto& y) { return Equal(*x, *y); })
        && EqualAll(a.locations, b.locations, [](const auto& x, const auto& y) { return Equal(*x, *y); });
}

Asset FromModel(const Model::MediaAsset& model)
{
    Asset asset;
    asset.id = model.Id().Value();
    asset.type = static_cast<int32_t>(model.AssetType());
    asset.ancestorId = model.Ancestor().Id().Value();
    asset.parentId = model.Parent().Id().Value();
    asset.name = model.Name();
    asset.description = model.Description();
    asset.physicalTimebounds = FromModel(model.PhysicalTimebounds());
    asset.creationDate = model.CreationDate();
    asset.modificationDate = model.ModificationDate();
    asset.metadata = FromModel(model.Metadata());
    std::map<const Model::Track*, const Track*> tracks;
    for (const auto& modelTrack : model.Tracks()) {
        auto track = std::make_unique<Track>();
        track->id = modelTrack->Id().Value();
        track->name = modelTrack->Name();
        for (const auto& channel : modelTrack->Channels())
            track->channels.push_back(std::make_unique<TrackChannel>(
                TrackChannel{FromModel(channel->Stream()), channel->EssenceNr(), channel->ChannelNr()}));
        tracks[modelTrack.get()] = track.get();
        asset.tracks.push_back(std::move(track));
    }
    for (const auto& modelLayout : model.TrackLayouts()) {
        auto layout = std::make_unique<Layout>();
        layout->id = modelLayout->Id().Value();
        layout->name = modelLayout->Name();
        for (const auto& modelItem : modelLayout->TrackLayoutItems()) {
            LayoutItem item{modelItem.Id().Value(), modelItem.Name(), {}};
            for (const auto& track : modelItem.Tracks())
                item.tracks.push_back(tracks.at(track.lock().get()));
            layout->items.push_back(std::move(item));
        }
        asset.layouts.push_back(std::move(layout));
    }
    for (const auto& reference : model.MediaResources()) {
        const auto resource = reference.Pointer();
        asset.resources.push_back(ResourceReference{reference.Id().Value(), resource ? FromModel(*resource) : nullptr});
    }
    for (const auto& annotation : model.Annotations())
        asset.annotations.push_back(std::make_unique<Annotation>(
            Annotation{static_cast<int32_t>(annotation->Type()), annotation->Data(), FromModel(annotation->TimeBounds()),
                       FromModel(annotation->Metadata())}));
    return asset;
}

Asset DeepCopy(const Asset& asset)
{
    Asset copy;
    copy.id = asset.id;
    copy.type = asset.type;
    copy.ancestorId = asset.ancestorId;
    copy.parentId = asset.parentId;
    copy.name = asset.name;
    copy.description = asset.description;
    copy.physicalTimebounds = asset.physicalTimebounds;
    copy.creationDate = asset.creationDate;
    copy.modificationDate = asset.modificationDate;
    copy.metadata = Copy(asset.metadata);
    copy.tracks = CopyAll(asset.tracks, [](const Track& track) { return Copy(track); });
    copy.layouts = CopyAll(asset.layouts);
    copy.resources.reserve(asset.resources.size());
    for (const auto& reference : asset.resources)
        copy.resources.push_back(ResourceReference{reference.id, reference.resource ? Copy(*reference.resource) : nullptr});
    copy.annotations = CopyAll(asset.annotations, [](const Annotation& annotation) { return Copy(annotation); });
    return copy;
}

bool Equal(const Asset& a, const Asset& b)
{
    return a.id == b.id && a.type == b.type && a.ancestorId == b.ancestorId && a.parentId == b.parentId && a.name == b.name
        && a.description == b.description && Equal(a.physicalTimebounds, b.physicalTimebounds)
        && a.creationDate == b.creationDate && a.modificationDate == b.modificationDate && Equal(a.metadata, b.metadata)
        && EqualAll(a.tracks, b.tracks, [](const auto& x, const auto& y) { return SameTrack(*x, *y); })
        && EqualAll(a.layouts, b.layouts, [](const auto& x, const auto& y) { return Equal(*x, *y); })
        && EqualAll(a.resources, b.resources, [](const auto& x, const auto& y) { return x.id == y.id; })
        && EqualAll(a.annotations, b.annotations, [](const auto& x, const auto& y) { return Equal(*x, *y); });
}

}  // namespace OrvikBenchmarks::Plain
