#include "ArbitraryObjects.h"

#include <Orvik/DataModel/MediaAssets/AnglesMediaAssetGroup.h>
#include <Orvik/DataModel/MediaAssets/AnglesMediaAssetGroupItem.h>
#include <Orvik/DataModel/MediaAssets/AudioEssence.h>
#include <Orvik/DataModel/MediaAssets/DataEssence.h>
#include <Orvik/DataModel/MediaAssets/DaxContentTrackLocation.h>
#include <Orvik/DataModel/MediaAssets/DaxProtectLocation.h>
#include <Orvik/DataModel/MediaAssets/FileLocation.h>
#include <Orvik/DataModel/MediaAssets/MediaAssetGroupItem.h>
#include <Orvik/DataModel/MediaAssets/TrackChannel.h>
#include <Orvik/DataModel/MediaAssets/TrackChannelToRemove.h>
#include <Orvik/DataModel/MediaAssets/VideoEssence.h>
#include <Orvik/DataModel/MediaAssets/ZanLocation.h>

#include <algorithm>
#include <iterator>
#include <limits>
#include <utility>

namespace Orvik::Testing {

namespace Model = DataModel::MediaAssets;

namespace {

// Characters that texts are made of: plain ones, the ones a printer must escape, a two-byte and a
// three-byte UTF-8 sequence.
const char* const kPieces[] = {"a", "B", "z", "0", "7", " ", "-", "/", ".", "\"", "\\", "\n", "\xC3\xA9", "\xE2\x82\xAC"};

// Any value of E. Its numbers run from 0, and the first number past the end reads as value 0's
// text, so the library's own table gives the count.
template <typename E>
E Pick(ArbitraryObjects& any)
{
    static const uint64_t count = [] {
        uint64_t values = 1;
        while (ToString(static_cast<E>(values)) != ToString(static_cast<E>(0)))
            ++values;
        return values;
    }();
    return static_cast<E>(any.Below(count));
}

// Calls `add(i)` for each i below a number below `limit`.
template <typename Add>
void Repeat(ArbitraryObjects& any, uint64_t limit, Add add)
{
    const uint64_t count = any.Below(limit);
    for (uint64_t i = 0; i < count; ++i)
        add(i);
}

int32_t SmallInt(ArbitraryObjects& any)
{
    static const int32_t values[] = {
        0, 1, -1, 2, 25, 1000, std::numeric_limits<int32_t>::max(), std::numeric_limits<int32_t>::min()};
    return any.Flip() ? values[any.Below(std::size(values))] : static_cast<int32_t>(any.Between(-5, 100000));
}

// Unique within its collection through the index; the text in front varies the order.
Model::Identifier Id(ArbitraryObjects& any, const char* prefix, size_t index)
{
    return Model::Identifier(any.Text() + prefix + std::to_string(index));
}

// Empty, anywhere, or (mostly) a whole millisecond within a day or so.
Model::TimePoint Point(ArbitraryObjects& any)
{
    const uint64_t choice = any.Below(4);
    if (choice == 0)
        return Model::TimePoint::Empty();
    if (choice == 1)
        return Model::TimePoint(any.Between(std::numeric_limits<int64_t>::min(), std::numeric_limits<int64_t>::max()));
    return Model::TimePoint(any.Between(-1000, 100000) * 1000000);
}

Model::TimeBoundary Boundary(ArbitraryObjects& any)
{
    return any.Below(3) == 0 ? Model::TimeBoundary::Empty() : Model::TimeBoundary(Point(any), any.Flip());
}

Model::TimeBounds Bounds(ArbitraryObjects& any) { return Model::TimeBounds(Boundary(any), Boundary(any)); }

Model::Timecode Timecode(ArbitraryObjects& any)
{
    static const TimePoints::Rate rates[] = {{25, 1}, {30000, 1001}, {50, 1}, {60000, 1001}, {0, 1}};
    return Model::Timecode(rates[any.Below(std::size(rates))], any.Between(-10, 10000000), any.Flip(), any.Flip());
}

std::string TimeCodeText(ArbitraryObjects& any)
{
    auto twoDigits = [](int64_t value) { return (value < 10 ? "0" : "") + std::to_string(value); };
    const int64_t hours = any.Between(0, 24);
    std::string text = hours < 10 && any.Flip() ? std::to_string(hours) : twoDigits(hours);
    text += ":" + twoDigits(any.Between(0, 59)) + ":" + twoDigits(any.Between(0, 59));
    text += any.Flip() ? ";" : ":";
    return text + twoDigits(any.Between(0, 29));
}

// The fields that both operator profiles have: the object id, the server and the clip.
template <typename Profile>
Profile ClipProfile(ArbitraryObjects& any)
{
    Profile profile;
    profile.ObjectId(any.Between(-1, 1000));
    profile.ServerId(Model::ZanServerId(static_cast<int>(any.Between(0, 3) * 10)));
    profile.Page(SmallInt(any));
    profile.Bank(SmallInt(any));
    profile.Clip(SmallInt(any));
    return profile;
}

// Nothing, or one of the two operator profiles.
void FillMetadata(ArbitraryObjects& any, Model::MetadataProfileDictionary& dictionary)
{
    const uint64_t choice = any.Below(3);
    if (choice == 1)
        dictionary.Set(std::make_shared<Model::PelkOperatorMetadataProfile>(any.PelkOperatorProfile()));
    else if (choice == 2)
        dictionary.Set(std::make_shared<Model::AnglesPelkOperatorMetadataProfile>(any.AnglesPelkOperatorProfile()));
}

// Timecode tables for the essences of one stream to share.
std::vector<std::shared_ptr<Model::TimeCodeTable>> SharedTimeCodeTables(ArbitraryObjects& any)
{
    std::vector<std::shared_ptr<Model::TimeCodeTable>> tables;
    Repeat(any, 3, [&](uint64_t) { tables.push_back(std::make_shared<Model::TimeCodeTable>(any.TimeCodeTable())); });
    return tables;
}

std::unique_ptr<Model::Essence> MakeEssence(ArbitraryObjects& any,
                                            const std::vector<std::shared_ptr<Model::TimeCodeTable>>& tables)
{
    std::unique_ptr<Model::Essence> essence;
    const uint64_t kind = any.Below(3);
    if (kind == 0) {
        auto audio = std::make_unique<Model::AudioEssence>();
        audio->AudioCodec(Pick<Model::AudioCodingFormat>(any));
        audio->BitRate(SmallInt(any));
        audio->BitRateMode(Pick<Model::BitRateMode>(any));
        audio->SampleRate(Model::Rate(SmallInt(any), SmallInt(any)));
        audio->BitDepth(SmallInt(any));
        audio->FourCC(any.Text());
        essence = std::move(audio);
    } else if (kind == 1) {
        essence = std::make_unique<Model::DataEssence>();
    } else {
        auto video = std::make_unique<Model::VideoEssence>();
        video->VideoCodec(Pick<Model::VideoCodingFormat>(any));
        video->BitRate(SmallInt(any));
        video->BitRateMode(Pick<Model::BitRateMode>(any));
        video->BitDepth(SmallInt(any));
        video->FrameRate(Model::Rate(SmallInt(any), SmallInt(any)));
        video->Height(SmallInt(any));
        video->Width(SmallInt(any));
        video->ChromaSubSampling(Pick<Model::ChromaSubSampling>(any));
        video->ColorSpace(Pick<Model::ColorSpace>(any));
        video->ScanMode(Pick<Model::ScanMode>(any));
        video->FourCC(any.Text());
        video->AspectRatio(Model::AspectRatio(SmallInt(any), SmallInt(any)));
        video->Boxing(Pick<Model::Boxing>(any));
        essence = std::move(video);
    }
    essence->ObjectId(any.Between(-1, 1000));
    essence->ChannelCount(SmallInt(any));
    essence->Nr(static_cast<int32_t>(any.Between(-2, 4)));
    FillMetadata(any, essence->Metadata());
    Repeat(any, 4, [&](uint64_t i) {  // distinct numbers: no refused duplicate
        essence->TrackChannels().Insert(
            std::make_shared<Model::TrackChannel>(Model::Identifier(any.Text()), static_cast<int32_t>(i) * 3 - 1));
    });
    for (const auto& table : tables)  // a table equal to one already there would be refused
        if (any.Flip() && essence->Timecodes().ConstFind(table) == essence->Timecodes().end())
            essence->Timecodes().Insert(table);
    return essence;
}

Model::Stream MakeStream(ArbitraryObjects& any, size_t index)
{
    Model::Stream stream(Id(any, "stream-", index));
    stream.ObjectId(any.Between(-1, 1000));
    stream.Format(Pick<Model::WrapperFormat>(any));
    stream.Timebounds(any.TimeBoundsArray());
    FillMetadata(any, stream.Metadata());
    const auto tables = SharedTimeCodeTables(any);  // shared by the stream's essences
    Repeat(any, 4, [&](uint64_t) { stream.Essences().Add(MakeEssence(any, tables)); });
    Repeat(any, 3, [&](uint64_t) { stream.Locations().Add(any.Location()); });
    return stream;
}

Model::MediaResource MakeResource(ArbitraryObjects& any, size_t index, size_t firstStream)
{
    Model::MediaResource resource(Id(any, "resource-", index));
    resource.ObjectId(any.Between(-1, 1000));
    resource.Name(any.Text());
    resource.GeneralFormat(Pick<Model::ResourceFormat>(any));
    Repeat(any, 4, [&](uint64_t i) {
        if (any.Below(4) == 0)
            resource.Add(Id(any, "stream-", firstStream + i));
        else
            resource.Adopt(std::make_unique<Model::Stream>(MakeStream(any, firstStream + i)));
    });
    resource.Timebounds(any.TimeBoundsArray());
    resource.CreationDate(any.Between(0, 2000000000));
    resource.ModificationDate(any.Between(0, 2000000000));
    FillMetadata(any, resource.Metadata());
    return resource;
}

// A track whose channels point at some of `streams` or hold a stream id only.
Model::Track MakeTrack(ArbitraryObjects& any, size_t index, const std::vector<std::shared_ptr<Model::Stream>>& streams)
{
    Model::Track track(Id(any, "track-", index), any.Text());
    track.ObjectId(any.Between(-1, 1000));
    Repeat(any, 4, [&](uint64_t i) {
        auto channel = std::make_shared<Model::TrackChannelToRemove>();
        const uint64_t choice = any.Below(streams.size() + 2);
        if (choice < streams.size())
            channel->Stream(Model::StreamReference(streams[choice]));
        else if (choice == streams.size())
            channel->Stream(Model::StreamReference(Id(any, "stream-", 100 + i)));
        channel->EssenceNr(static_cast<int32_t>(any.Between(-1, 3)));
        channel->ChannelNr(static_cast<int32_t>(any.Between(-1, 8)));
        track.Channels().push_back(std::move(channel));
    });
    return track;
}

Model::TrackLayout MakeLayout(ArbitraryObjects& any, size_t index, const std::vector<std::shared_ptr<Model::Track>>& tracks)
{
    Model::TrackLayout layout(Id(any, "layout-", index), any.Text());
    layout.ObjectId(any.Between(-1, 1000));
    Repeat(any, 3, [&](uint64_t i) {
        Model::TrackLayoutItem item(Id(any, "item-", i));
        item.ObjectId(any.Between(-1, 1000));
        item.Name(any.Text());
        for (const auto& track : tracks)
            if (any.Flip())
                item.Tracks().Insert(track);
        layout.TrackLayoutItems().Insert(item);
    });
    return layout;
}

// Empty, an id only, or a loaded asset.
Model::MediaAssetReference AssetReference(ArbitraryObjects& any)
{
    const uint64_t choice = any.Below(3);
    if (choice == 0)
        return Model::MediaAssetReference();
    if (choice == 1)
        return Model::MediaAssetReference(Model::MediaAssetId(any.Text()));
    return Model::MediaAssetReference(std::make_shared<Model::MediaAsset>(Model::MediaAssetId(any.Text())));
}

std::shared_ptr<Model::MediaAssetGroup> MakeGroup(ArbitraryObjects& any, bool angles)
{
    const auto group = angles ? std::make_shared<Model::AnglesMediaAssetGroup>(Model::MediaAssetGroupId(any.Text()))
                              : std::make_shared<Model::MediaAssetGroup>(Model::MediaAssetGroupId(any.Text()), any.Text());
    group->ObjectId(any.Between(-1, 1000));
    group->Name(any.Text());
    FillMetadata(any, group->Metadata());
    Repeat(any, 4, [&](uint64_t) {
        std::shared_ptr<Model::MediaAssetGroupItem> item;
        if (angles ? any.Below(4) != 0 : any.Flip())
            item = std::make_shared<Model::AnglesMediaAssetGroupItem>(any.Text(), AssetReference(any));
        else
            item = std::make_shared<Model::MediaAssetGroupItem>(AssetReference(any));
        item->ObjectId(any.Between(-1, 1000));
        group->Items().push_back(std::move(item));
    });
    return group;
}

}  // namespace

ArbitraryObjects::ArbitraryObjects(uint64_t seed) : engine(seed) {}

ArbitraryObjects::ArbitraryObjects(const uint8_t* data, size_t size) : fromBytes(true), data(data), size(size) {}

uint64_t ArbitraryObjects::Draw(size_t bytes)
{
    if (!fromBytes)
        return engine();
    uint64_t value = 0;
    for (size_t i = 0; i < bytes; ++i) {
        const uint8_t byte = position < size ? data[position] : 0;
        ++position;
        value = (value << 8) | byte;
    }
    return value;
}

uint64_t ArbitraryObjects::Below(uint64_t count)
{
    if (count <= 1)
        return 0;
    size_t bytes = 1;
    while (bytes < 8 && (count - 1) >> (8 * bytes) != 0)
        ++bytes;
    return Draw(bytes) % count;
}

int64_t ArbitraryObjects::Between(int64_t min, int64_t max)
{
    const uint64_t span = static_cast<uint64_t>(max) - static_cast<uint64_t>(min) + 1;
    const uint64_t offset = span == 0 ? Draw(8) : Below(span);
    return static_cast<int64_t>(static_cast<uint64_t>(min) + offset);
}

std::string ArbitraryObjects::Text()
{
    std::string text;
    const uint64_t length = Below(7);
    for (uint64_t i = 0; i < length; ++i)
        text += kPieces[Below(std::size(kPieces))];
    return text;
}

Model::TimeBoundsArray ArbitraryObjects::TimeBoundsArray()
{
    Model::TimeBoundsArray array;
    array.InBoundary(Boundary(*this));
    array.OutBoundary(Boundary(*this));
    Repeat(*this, 4, [&](uint64_t) {
        const Model::TimeBounds bounds = Bounds(*this);
        if (std::find(array.begin(), array.end(), bounds) == array.end())
            array.Insert(bounds);
    });
    return array;
}

Model::PelkOperatorMetadataProfile ArbitraryObjects::PelkOperatorProfile()
{
    auto profile = ClipProfile<Model::PelkOperatorMetadataProfile>(*this);
    profile.Camera(Flip() ? '\0' : static_cast<char>('A' + Below(12)));
    profile.UmId(Text());
    profile.VarId(Text());
    profile.Rating(SmallInt(*this));
    profile.ArchiveStatus(Pick<Model::ArchiveStatus>(*this));
    profile.UserTimecodeType(Pick<Model::UserTimecodeType>(*this));
    profile.PrimaryTimecode(Pick<Model::TimecodePrimary>(*this));
    profile.UserTimecode(Timecode(*this));
    profile.TodTimecode(Timecode(*this));
    profile.Icon(Text());
    profile.Color(static_cast<uint32_t>(Draw(4)));
    profile.FillAndKeyType(Pick<Model::FillAndKeyType>(*this));
    profile.FillAndKeyMediaAssetId(Model::Identifier(Text()));
    Repeat(*this, 7, [&](uint64_t i) { profile.Keyword(i, Text()); });
    profile.UserProtected(Flip());
    profile.PelkUIProtected(Flip());
    return profile;
}

Model::AnglesPelkOperatorMetadataProfile ArbitraryObjects::AnglesPelkOperatorProfile()
{
    return ClipProfile<Model::AnglesPelkOperatorMetadataProfile>(*this);
}

Model::MetadataProfileDictionary ArbitraryObjects::MetadataDictionary()
{
    Model::MetadataProfileDictionary dictionary;
    FillMetadata(*this, dictionary);
    return dictionary;
}

Model::TimeCodeTable ArbitraryObjects::TimeCodeTable()
{
    Model::TimeCodeTable table;
    table.FullyQualifiedName(Model::FullyQualifiedName(Text()));
    table.Standard(Pick<Model::TimeCodeStandard>(*this));
    table.Type(Text());
    Repeat(*this, 4, [&](uint64_t i) {
        // Distinct time points: a jump equal to the one at its place would be refused.
        const Model::TimePoint point(static_cast<int64_t>(i) * 40000000 + Between(0, 39999999));
        table.TimeCodeJumpItems().Insert(
            std::make_shared<Model::TimeCodeJump>(point, Model::TimeCodeString(TimeCodeText(*this)), Between(-1, 100000)));
    });
    return table;
}

std::unique_ptr<Model::Essence> ArbitraryObjects::Essence() { return MakeEssence(*this, SharedTimeCodeTables(*this)); }

std::unique_ptr<Model::Location> ArbitraryObjects::Location()
{
    const uint64_t kind = Below(4);
    if (kind == 0) {
        auto file = std::make_unique<Model::FileLocation>();
        file->Name(Text());
        file->Size(Between(-1, 1LL << 40));
        file->IsReadOnly(Flip());
        file->CreationDate(Between(0, 2000000000));
        file->ModificationDate(Between(0, 2000000000));
        file->LastAccessDate(Between(0, 2000000000));
        file->Uri(Model::URI(Text()));
        return file;
    }
    if (kind == 1) {
        auto contentTrack = std::make_unique<Model::DaxContentTrackLocation>();
        contentTrack->ServerId(Model::Identifier(Text()));
        contentTrack->PartitionId(Model::Identifier(Text()));
        contentTrack->ContentTrackId(Model::Identifier(Text()));
        return contentTrack;
    }
    if (kind == 2) {
        auto protect = std::make_unique<Model::DaxProtectLocation>();
        protect->ServerId(Model::Identifier(Text()));
        protect->Uri(Model::URI(Text()));
        return protect;
    }
    return std::make_unique<Model::ZanLocation>(Model::ZanServerId(static_cast<int>(Between(-1, 3) * 10)), Text());
}

Model::Stream ArbitraryObjects::Stream() { return MakeStream(*this, 0); }

Model::MediaResource ArbitraryObjects::MediaResource() { return MakeResource(*this, 0, 0); }

Model::Track ArbitraryObjects::Track()
{
    std::vector<std::shared_ptr<Model::Stream>> streams;
    if (Flip())
        streams.push_back(std::make_shared<Model::Stream>(MakeStream(*this, 0)));
    return MakeTrack(*this, 0, streams);
}

Model::TrackLayout ArbitraryObjects::TrackLayout()
{
    std::vector<std::shared_ptr<Model::Track>> tracks;
    Repeat(*this, 3, [&](uint64_t i) { tracks.push_back(std::make_shared<Model::Track>(MakeTrack(*this, i, {}))); });
    keptTracks.insert(keptTracks.end(), tracks.begin(), tracks.end());
    return MakeLayout(*this, 0, tracks);
}

Model::Annotation ArbitraryObjects::Annotation()
{
    Model::Annotation annotation(Pick<Model::AnnotationType>(*this), Text());
    annotation.ObjectId(Between(-1, 1000));
    annotation.TimeBounds(Bounds(*this));
    FillMetadata(*this, annotation.Metadata());
    return annotation;
}

Model::MediaAsset ArbitraryObjects::MediaAsset()
{
    Model::MediaAsset asset{Model::MediaAssetId(Text())};
    asset.ObjectId(Between(-1, 1000));
    asset.AssetType(Pick<Model::AssetType>(*this));
    asset.Ancestor(AssetReference(*this));
    asset.Parent(AssetReference(*this));
    asset.Name(Text());
    asset.Description(Text());
    asset.PhysicalTimebounds(TimeBoundsArray());
    asset.CreationDate(Between(0, 2000000000));
    asset.ModificationDate(Between(0, 2000000000));
    FillMetadata(*this, asset.Metadata());

    std::vector<std::shared_ptr<Model::Stream>> streams;
    Repeat(*this, 3, [&](uint64_t r) {
        if (Below(4) == 0) {
            asset.MediaResources().Insert(Model::MediaResourceReference(Id(*this, "resource-", r)));
            return;
        }
        auto resource = std::make_shared<Model::MediaResource>(MakeResource(*this, r, r * 10));
        for (auto& stream : resource->Streams())
            if (stream.Pointer())
                streams.push_back(stream.Pointer());
        asset.MediaResources().Insert(Model::MediaResourceReference(resource));
    });
    std::vector<std::shared_ptr<Model::Track>> tracks;
    Repeat(*this, 4, [&](uint64_t t) { tracks.push_back(std::make_shared<Model::Track>(MakeTrack(*this, t, streams))); });
    for (const auto& track : tracks)
        asset.Tracks().Insert(track);
    Repeat(*this, 3, [&](uint64_t l) {
        asset.TrackLayouts().Insert(std::make_shared<Model::TrackLayout>(MakeLayout(*this, l, tracks)));
    });
    Repeat(*this, 3, [&](uint64_t) { asset.Annotations().push_back(std::make_shared<Model::Annotation>(Annotation())); });
    return asset;
}

std::shared_ptr<Model::MediaAssetGroup> ArbitraryObjects::MediaAssetGroup() { return MakeGroup(*this, false); }

std::shared_ptr<Model::MediaAssetGroup> ArbitraryObjects::AnglesMediaAssetGroup() { return MakeGroup(*this, true); }

}  // namespace Orvik::Testing
