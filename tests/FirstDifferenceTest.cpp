// FirstDifference: examples of the paths and values it writes; then, against operator== over
// generated objects, that for every pair a difference is reported exactly when the objects are
// unequal, and that when a copy or a clone differs from its source in one field only, the
// difference names that very field. Last, the generator's own promises: that the same seed gives
// equal objects of every kind is checked by the properties.

#include <Orvik/DataModel/MediaAssets.h>
#include <Orvik/DataModel/MediaAssets/FirstDifference.h>

#include "ArbitraryObjects.h"
#include "TestProfiles.h"

#include <gmock/gmock.h>

#include <cstdint>
#include <functional>
#include <iterator>
#include <memory>
#include <optional>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

using namespace Orvik::DataModel::MediaAssets;
using Any = Orvik::Testing::ArbitraryObjects;
using ::testing::StrEq;
using ::testing::ThrowsMessage;

namespace {

constexpr char kExpired[] = "Orvik::DataModel::MediaAssets::CompareEqualWeakPointer: weak pointer object is expired";

struct Expected {
    const char* path;
    const char* left;
    const char* right;
};

void ExpectDifference(const std::optional<Difference>& difference, const Expected& expected)
{
    ASSERT_TRUE(difference.has_value()) << expected.path;
    EXPECT_EQ(difference->Path(), expected.path);
    EXPECT_EQ(difference->Left(), expected.left);
    EXPECT_EQ(difference->Right(), expected.right);
}

constexpr uint64_t kSeeds = 400;
constexpr int kMutationsPerTarget = 3;

/// The path of the one field a mutation changed, or nothing when equality ignores the change or
/// the target has no such field (an empty collection, another kind).
using Path = std::optional<std::string>;
template <typename T>
using Mutation = std::function<Path(T& target, Any& any)>;

std::string At(const std::string& path, size_t index) { return path + "[" + std::to_string(index) + "]"; }

template <typename E>
E Other(E value, E first, E second)
{
    return value == first ? second : first;
}

/// A change that needs no choice, reported at `path` (nullptr: a field that equality ignores).
template <typename T>
Mutation<T> Field(const char* path, void (*change)(T&))
{
    return [path, change](T& target, Any&) {
        change(target);
        return path == nullptr ? Path() : Path(path);
    };
}

/// A copy of `*pointer` in its place, so that a change to it leaves the source's object alone.
template <typename T>
T& Own(std::shared_ptr<T>& pointer)
{
    pointer = std::make_shared<T>(*pointer);
    return *pointer;
}

using Profile = PelkOperatorMetadataProfile;
// Changes of an operator profile, each with its path below the profile (nullptr: not compared).
const std::pair<const char*, void (*)(Profile&)> kProfileChanges[] = {
    {nullptr, [](Profile& p) { p.UserProtected(!p.IsUserProtected()); }},
    {nullptr, [](Profile& p) { p.PelkUIProtected(!p.IsPelkUiProtected()); }},
    {nullptr, [](Profile& p) { p.ObjectId(p.ObjectId() + 1); }},
    {".rating", [](Profile& p) { p.Rating(p.Rating() ^ 1); }},
    {".keywords[0]", [](Profile& p) { p.Keyword(0, p.Keyword(0) + "x"); }},
    {".todTimecode.totalSample", [](Profile& p) { p.TodTimecode(p.TodTimecode() + 1); }},
    {".color", [](Profile& p) { p.Color(p.Color() ^ 0x00FF0000); }},
    {".archiveStatus",
     [](Profile& p) { p.ArchiveStatus(Other(p.ArchiveStatus(), ArchiveStatus::None, ArchiveStatus::Archived)); }},
    {".fillAndKeyMediaAssetId",
     [](Profile& p) { p.FillAndKeyMediaAssetId(Identifier(p.FillAndKeyMediaAssetId().Value() + "x")); }},
};

// One change of a dictionary whose profiles are shared with the source's: a profile is replaced
// by a changed clone, never changed in place.
Path MutateMetadata(MetadataProfileDictionary& dictionary, Any& any, const std::string& path)
{
    const std::string entry = path + "[\"orvik.pelkoperator\"]";
    if (dictionary.Empty() || any.Below(4) == 0) {
        if (dictionary.Empty())
            dictionary.Set(std::make_shared<AnglesPelkOperatorMetadataProfile>());
        else
            dictionary.Clear();
        return entry;
    }
    const auto copy = dictionary.Values().front()->Clone();
    dictionary.Set(copy);
    if (auto* angles = dynamic_cast<AnglesPelkOperatorMetadataProfile*>(copy.get())) {
        angles->Clip(angles->Clip() ^ 1);
        return entry + ".clip";
    }
    const auto& [field, change] = kProfileChanges[any.Below(std::size(kProfileChanges))];
    change(dynamic_cast<Profile&>(*copy));
    return field == nullptr ? Path() : Path(entry + field);
}

// Technical metadata may be shared with the source (an essence's is, since Clone()): the change
// goes to a dictionary of the target's own.
template <typename T>
Path MutateOwnMetadata(T& owner, Any& any, const std::string& path)
{
    auto own = std::make_shared<MetadataProfileDictionary>(owner.Metadata().Clone());
    owner.Metadata(own);
    return MutateMetadata(*own, any, path);
}

Path MutateBounds(TimeBoundsArray& bounds, Any& any, const std::string& path)
{
    const TimeBoundary in = bounds.InBoundary();
    const TimeBoundary out = bounds.OutBoundary();
    switch (any.Below(3)) {
    case 0:
        bounds.InBoundary(TimeBoundary(in.TimePoint(), !in.IsMoving()));
        return path + ".inBoundary.isMoving";
    case 1:
        bounds.OutBoundary(TimeBoundary(TimePoint(out.TimePoint().ToNanoseconds() ^ 1), out.IsMoving()));
        return path + ".outBoundary.timePoint";
    default:
        if (bounds.Empty())
            return std::nullopt;
        bounds.Erase(bounds.end() - 1);
        return At(path, bounds.Size());
    }
}

Path MutateEssence(Essence& essence, Any& any, const std::string& path)
{
    switch (any.Below(7)) {
    case 0:
        essence.ChannelCount(essence.ChannelCount() ^ 1);
        return path + ".channelCount";
    case 1: {
        // A negative number matches any number: that change is no difference.
        const bool wildcard = essence.Nr() < 0;
        essence.Nr(wildcard ? 7 : essence.Nr() + 1);
        return wildcard ? std::nullopt : Path(path + ".nr");
    }
    case 2:
        return MutateOwnMetadata(essence, any, path + ".metadata");
    case 3: {
        if (essence.TrackChannels().Empty())
            return std::nullopt;
        const size_t index = any.Below(essence.TrackChannels().Size());
        auto& channel = essence.TrackChannels()[index];
        channel = std::make_shared<TrackChannel>(Identifier(channel->TrackId().Value() + "x"), channel->ChannelNr());
        return At(path + ".trackChannels", index) + ".trackId";
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
            return tablePath + ".type";
        }
        const size_t jump = any.Below(table.TimeCodeJumpItems().Size());
        Own(table.TimeCodeJumpItems()[jump]).Duration(table.TimeCodeJumpItems()[jump]->Duration() + 1);
        return At(tablePath + ".timeCodeJumpItems", jump) + ".duration";
    }
    default:
        if (auto* audio = dynamic_cast<AudioEssence*>(&essence)) {
            const Rate rate = audio->SampleRate();
            audio->SampleRate(Rate(rate.Numerator(), rate.Denominator() ^ 2));
            return path + ".(AudioEssence).sampleRate.denominator";
        }
        if (auto* video = dynamic_cast<VideoEssence*>(&essence)) {
            if (any.Flip()) {
                video->AspectRatio(AspectRatio(video->AspectRatio().WidthFactor(), video->AspectRatio().HeightFactor() ^ 4));
                return path + ".(VideoEssence).aspectRatio.heightFactor";
            }
            video->FourCC(video->FourCC() + "X");
            return path + ".(VideoEssence).fourCC";
        }
        return std::nullopt;
    }
}

Path MutateLocation(Location& location, const std::string& path)
{
    if (auto* file = dynamic_cast<FileLocation*>(&location)) {
        file->LastAccessDate(file->LastAccessDate() + 1);
        return path + ".(FileLocation).lastAccessDate";
    }
    if (auto* zan = dynamic_cast<ZanLocation*>(&location)) {
        zan->SequenceId(zan->SequenceId() + "/");
        return path + ".(ZanLocation).sequenceId";
    }
    if (auto* contentTrack = dynamic_cast<DaxContentTrackLocation*>(&location)) {
        contentTrack->PartitionId(Identifier(contentTrack->PartitionId().Value() + "p"));
        return path + ".(DaxContentTrackLocation).daxPartitionId";
    }
    auto& protect = dynamic_cast<DaxProtectLocation&>(location);
    protect.Uri(URI(protect.Uri().Value() + "u"));
    return path + ".(DaxProtectLocation).daxUri";
}

const std::vector<Mutation<Stream>> kStreamMutations = {
    Field<Stream>("streamId", [](Stream& s) { s.Id(Identifier(s.Id().Value() + "x")); }),
    Field<Stream>("format", [](Stream& s) { s.Format(Other(s.Format(), WrapperFormat::MXFOP1a, WrapperFormat::MP4)); }),
    [](Stream& s, Any& any) { return MutateBounds(s.Timebounds(), any, "timebounds"); },
    [](Stream& s, Any& any) { return MutateOwnMetadata(s, any, "metadata"); },
    [](Stream& s, Any& any) {
        if (s.Essences().Empty() || any.Below(4) == 0) {
            s.Essences().Add(any.Essence());
            return Path(At("essences", static_cast<size_t>(s.Essences().Size() - 1)));
        }
        const size_t index = any.Below(static_cast<uint64_t>(s.Essences().Size()));
        return MutateEssence(s.Essences()[static_cast<int>(index)], any, At("essences", index));
    },
    [](Stream& s, Any& any) -> Path {
        if (s.Locations().Empty())
            return std::nullopt;
        if (any.Below(4) == 0) {
            s.Locations().Erase(s.Locations().Size() - 1);
            return At("locations", static_cast<size_t>(s.Locations().Size()));
        }
        const size_t index = any.Below(static_cast<uint64_t>(s.Locations().Size()));
        return MutateLocation(s.Locations()[static_cast<int>(index)], At("locations", index));
    },
};

const std::vector<Mutation<MediaResource>> kResourceMutations = {
    Field<MediaResource>("name", [](MediaResource& r) { r.Name(r.Name() + "x"); }),
    Field<MediaResource>("generalFormat",
                         [](MediaResource& r) {
                             r.GeneralFormat(Other(r.GeneralFormat(), ResourceFormat::unknown, ResourceFormat::ToBeDefined));
                         }),
    Field<MediaResource>("modificationDate", [](MediaResource& r) { r.ModificationDate(r.ModificationDate() + 1); }),
    [](MediaResource& r, Any& any) { return MutateBounds(r.Timebounds(), any, "timebounds"); },
    [](MediaResource& r, Any& any) { return MutateOwnMetadata(r, any, "metadata"); },
    [](MediaResource& r, Any&) -> Path {
        // Streams are compared by id alone: a change inside a loaded stream is no difference.
        if (r.Streams().empty())
            return std::nullopt;
        StreamReference& last = r.Streams().back();
        if (last.Pointer()) {
            auto stream = std::make_shared<Stream>(last->Clone());
            stream->Format(Other(stream->Format(), WrapperFormat::MP4, WrapperFormat::AVI));
            last = StreamReference(stream);
            return std::nullopt;
        }
        last = StreamReference(Identifier(last.Id().Value() + "x"));
        return At("streams", r.Streams().size() - 1) + ".id";
    },
};

const std::vector<Mutation<MediaAsset>> kAssetMutations = {
    Field<MediaAsset>(nullptr, [](MediaAsset& a) { a.ObjectId(a.ObjectId() + 1); }),
    Field<MediaAsset>("assetType",
                      [](MediaAsset& a) { a.AssetType(Other(a.AssetType(), AssetType::media, AssetType::train)); }),
    // The lineage is compared by id: another asset object with the same id is no difference.
    Field<MediaAsset>(nullptr,
                      [](MediaAsset& a) { a.Parent(MediaAssetReference(std::make_shared<MediaAsset>(a.Parent().Id()))); }),
    Field<MediaAsset>("ancestor.id",
                      [](MediaAsset& a) { a.Ancestor(MediaAssetReference(Identifier(a.Ancestor().Id().Value() + "x"))); }),
    Field<MediaAsset>("description", [](MediaAsset& a) { a.Description(a.Description() + "\""); }),
    Field<MediaAsset>("creationDate", [](MediaAsset& a) { a.CreationDate(a.CreationDate() + 1); }),
    [](MediaAsset& a, Any& any) { return MutateBounds(a.PhysicalTimebounds(), any, "physicalTimebounds"); },
    // Editorial metadata is the copy's own dictionary, holding the source's profiles.
    [](MediaAsset& a, Any& any) { return MutateMetadata(a.Metadata(), any, "metadata"); },
    [](MediaAsset& a, Any& any) -> Path {
        if (a.Tracks().Empty())
            return std::nullopt;
        if (any.Below(3) == 0) {
            a.Tracks().Erase(a.Tracks().end() - 1);
            return At("tracks", a.Tracks().Size());
        }
        // Channels are not compared.
        const size_t index = any.Below(a.Tracks().Size());
        Track& track = Own(a.Tracks()[index]);
        if (any.Flip()) {
            track.Channels().clear();
            return std::nullopt;
        }
        track.Name(track.Name() + "x");
        return At("tracks", index) + ".name";
    },
    [](MediaAsset& a, Any& any) -> Path {
        if (a.TrackLayouts().Empty())
            return std::nullopt;
        const size_t index = any.Below(a.TrackLayouts().Size());
        TrackLayout& layout = Own(a.TrackLayouts()[index]);
        const std::string path = At("trackLayouts", index);
        if (layout.TrackLayoutItems().Empty() || any.Flip()) {
            layout.Name(layout.Name() + "x");
            return path + ".name";
        }
        const size_t itemIndex = any.Below(layout.TrackLayoutItems().Size());
        TrackLayoutItem& item = layout.TrackLayoutItems()[itemIndex];
        const std::string itemPath = At(path + ".trackLayoutItems", itemIndex);
        if (item.Tracks().Empty() || any.Flip()) {
            item.Name(item.Name() + "x");
            return itemPath + ".name";
        }
        item.Tracks().Erase(item.Tracks().end() - 1);
        return At(itemPath + ".tracks", item.Tracks().Size());
    },
    [](MediaAsset& a, Any&) -> Path {
        if (a.MediaResources().Empty())
            return std::nullopt;
        const size_t index = a.MediaResources().Size() - 1;
        a.MediaResources()[index] = MediaResourceReference(Identifier(a.MediaResources()[index].Id().Value() + "x"));
        return At("mediaResources", index) + ".id";
    },
    [](MediaAsset& a, Any& any) {
        if (a.Annotations().empty() || any.Below(4) == 0) {
            a.Annotations().push_back(std::make_shared<Annotation>(any.Annotation()));
            return At("annotations", a.Annotations().size() - 1);
        }
        const size_t index = any.Below(a.Annotations().size());
        if (any.Below(4) == 0) {
            a.Annotations()[index] = nullptr;
            return At("annotations", index);
        }
        Annotation& annotation = Own(a.Annotations()[index]);
        const TimeBounds bounds = annotation.TimeBounds();
        const TimeBoundary out = bounds.OutBoundary();
        annotation.TimeBounds(TimeBounds(bounds.InBoundary(), TimeBoundary(out.TimePoint(), !out.IsMoving())));
        return At("annotations", index) + ".timeBounds.outBoundary.isMoving";
    },
};

const std::vector<Mutation<MediaAssetGroup>> kGroupMutations = {
    Field<MediaAssetGroup>("type", [](MediaAssetGroup& g) { g.Type(g.Type() + "x"); }),
    [](MediaAssetGroup& g, Any& any) { return MutateMetadata(g.Metadata(), any, "metadata"); },
    [](MediaAssetGroup& g, Any& any) -> Path {
        if (g.Items().empty())
            return std::nullopt;
        const size_t index = any.Below(g.Items().size());
        auto& item = g.Items()[index];
        if (any.Below(4) == 0) {
            item = nullptr;
            return At("items", index);
        }
        if (const auto* angles = dynamic_cast<const AnglesMediaAssetGroupItem*>(item.get())) {
            item = std::make_shared<AnglesMediaAssetGroupItem>(angles->Name() + "x", angles->MediaAsset());
            return At("items", index) + ".(AnglesMediaAssetGroupItem).name";
        }
        item = std::make_shared<MediaAssetGroupItem>(MediaAssetReference(Identifier(item->MediaAsset().Id().Value() + "x")));
        return At("items", index) + ".mediaAsset.id";
    },
};

/// Checks one pair both ways; `expected` is the path of the one changed field, if any.
template <typename T>
void ExpectDifferenceAt(const T& source, const T& changed, const Path& expected)
{
    for (const bool forward : {true, false}) {
        const T& left = forward ? source : changed;
        const T& right = forward ? changed : source;
        const auto difference = FirstDifference(left, right);
        ASSERT_EQ(difference.has_value(), left != right);
        // A change that is not seen means that the target shares what it should own.
        ASSERT_EQ(difference.has_value(), expected.has_value()) << (difference ? difference->Path() : *expected);
        if (!difference)
            continue;
        EXPECT_EQ(difference->Path(), *expected);
        EXPECT_NE(difference->Left(), difference->Right()) << difference->Path();
    }
}

/// For each seed: a generated object, copies and clones of it (`copy(source, clone)`), each
/// changed a few times in one field; every pair checked both ways. Returns the number of pairs.
template <typename T, typename Make, typename Copy>
int CheckMutatedCopies(Make make, Copy copy, const std::vector<Mutation<T>>& mutations)
{
    int pairs = 0;
    for (uint64_t seed = 0; seed < kSeeds; ++seed) {
        SCOPED_TRACE("seed " + std::to_string(seed));
        Any any(seed);
        const auto source = make(any);
        for (const bool clone : {false, true}) {
            for (int i = 0; i < kMutationsPerTarget; ++i) {
                auto target = copy(*source, clone);
                const Path expected = mutations[any.Below(mutations.size())](*target, any);
                ExpectDifferenceAt<T>(*source, *target, expected);
                pairs += 2;
            }
        }
    }
    return pairs;
}

template <typename T>
std::shared_ptr<T> Held(T value)
{
    return std::make_shared<T>(std::move(value));
}

const auto kCopyOrClone = [](const auto& source, bool clone) { return Held(clone ? source.Clone() : source); };

}  // namespace

TEST(FirstDifference, ValuesAreWrittenByKind)
{
    AudioEssence audio;
    AudioEssence other;
    other.BitRateMode(BitRateMode::vbr);
    ExpectDifference(FirstDifference(audio, other), {"(AudioEssence).bitRateMode", "unknown", "vbr"});
    ExpectDifference(FirstDifference(Stream(StreamId("r2")), Stream(StreamId("r9"))), {"streamId", "\"r2\"", "\"r9\""});

    Annotation left(AnnotationType::CuePoint, "say \"go\"\\\n\x01");
    Annotation right(AnnotationType::CuePoint, "say \xE2\x82\xAC");
    ExpectDifference(FirstDifference(left, right), {"data", R"("say \"go\"\\\n\x01")", "\"say \xE2\x82\xAC\""});

    right = left;
    right.TimeBounds(TimeBounds(TimeBoundary(TimePoint(-40), true), TimeBoundary::Empty()));
    ExpectDifference(FirstDifference(left, right), {"timeBounds.inBoundary.timePoint", "-9223372036854775807", "-40"});

    PelkOperatorMetadataProfile profile;
    PelkOperatorMetadataProfile coloured;
    coloured.Color(Color::Red);
    ExpectDifference(FirstDifference(profile, coloured), {"color", "0x00000000", "0xFFFF0000"});
    coloured = profile;
    coloured.Camera('B');
    ExpectDifference(FirstDifference(profile, coloured), {"camera", R"("\x00")", "\"B\""});
}

TEST(FirstDifference, KindComesBeforeFields)
{
    AudioEssence audio;
    VideoEssence video;
    ExpectDifference(FirstDifference(audio, video), {"type", "Audio", "Video"});

    // The same URI text: equality, too, compares the kind first.
    ZanLocation zan(ZanServerId(120), "A7F3");
    FileLocation file;
    file.Uri(URI("120/A7F3"));
    ASSERT_EQ(zan.Uri(), file.Uri());
    ExpectDifference(FirstDifference(zan, file), {"type", "ZanLocation", "FileLocation"});
    EXPECT_NE(zan, file);
    EXPECT_NE(file, zan);

    MetadataProfileDictionary operatorProfile;
    operatorProfile.Set(std::make_shared<PelkOperatorMetadataProfile>());
    MetadataProfileDictionary otherClass;
    otherClass.Set(std::make_shared<OtherProfile>());
    ExpectDifference(FirstDifference(operatorProfile, otherClass),
                     {"[\"orvik.pelkoperator\"]", "PelkOperatorMetadataProfile", "profile \"orvik.pelkoperator\""});
}

// A plain item compares the asset ids alone, an angles item first checks the other's class: the
// difference follows the left item, as operator== does.
TEST(FirstDifference, GroupItemsFollowTheLeftItemsClass)
{
    const MediaAssetReference asset(MediaAssetId("a1"));
    const MediaAssetGroupItem plain(asset);
    const AnglesMediaAssetGroupItem angles("cam 1", asset);
    const MediaAssetGroupItem& anglesAsBase = angles;
    EXPECT_FALSE(FirstDifference(plain, angles).has_value());
    EXPECT_TRUE(plain == anglesAsBase);
    ExpectDifference(FirstDifference(angles, plain),
                     {"", "AnglesMediaAssetGroupItem for \"a1\"", "MediaAssetGroupItem for \"a1\""});
    EXPECT_FALSE(anglesAsBase == plain);
    EXPECT_TRUE(anglesAsBase != plain);

    AnglesMediaAssetGroup left(MediaAssetGroupId("g"));
    left.Items().push_back(std::make_shared<AnglesMediaAssetGroupItem>(angles));
    AnglesMediaAssetGroup right(MediaAssetGroupId("g"));
    right.Items().push_back(std::make_shared<AnglesMediaAssetGroupItem>("cam 2", asset));
    ExpectDifference(FirstDifference(left, right), {"items[0].(AnglesMediaAssetGroupItem).name", "\"cam 1\"", "\"cam 2\""});
    right.Items()[0] = nullptr;
    ExpectDifference(FirstDifference(left, right), {"items[0]", "AnglesMediaAssetGroupItem for \"a1\"", "null"});
}

TEST(FirstDifference, CountsDifferAtTheFirstPositionOneSideLacks)
{
    Stream left(StreamId("s"));
    left.Essences().Add(DataEssence());
    Stream right(StreamId("s"));
    right.Essences().Add(DataEssence());
    right.Essences().Add(AudioEssence());
    ExpectDifference(FirstDifference(left, right), {"essences[1]", "missing", "AudioEssence"});

    MediaAsset withNull(MediaAssetId("a"));
    withNull.Annotations().push_back(nullptr);
    ExpectDifference(FirstDifference(withNull, withNull), {"annotations[0]", "null", "null"});

    MetadataProfileDictionary one;
    one.Set(std::make_shared<TestProfile>(1));
    MetadataProfileDictionary two;
    two.Set(std::make_shared<TestProfile>(2));
    two.Set(std::make_shared<PelkOperatorMetadataProfile>());
    ExpectDifference(FirstDifference(one, two), {"[\"orvik.pelkoperator\"]", "missing", "PelkOperatorMetadataProfile"});
    ExpectDifference(FirstDifference(one, MetadataProfileDictionary()),
                     {"[\"test.profile\"]", "profile \"test.profile\"", "missing"});
}

TEST(FirstDifference, ExpiredLayoutTrackThrowsWhereEqualityThrows)
{
    auto track = std::make_shared<Track>(TrackId("t"), "Program");
    TrackLayoutItem item(Identifier("i"));
    item.Tracks().Insert(track);
    TrackLayoutItem renamed = item;
    renamed.Name("other");
    track.reset();
    // The names differ before the tracks are reached; then the expired track throws.
    ExpectDifference(FirstDifference(item, renamed), {"name", "\"\"", "\"other\""});
    EXPECT_THAT([&] { return FirstDifference(item, item); }, ThrowsMessage<std::runtime_error>(StrEq(kExpired)));
}

TEST(FirstDifferenceProperty, NamesTheOneChangedFieldOfCopiesAndClones)
{
    int pairs = CheckMutatedCopies([](Any& any) { return Held(any.MediaAsset()); }, kCopyOrClone, kAssetMutations);
    pairs += CheckMutatedCopies([](Any& any) { return Held(any.MediaResource()); }, kCopyOrClone, kResourceMutations);
    pairs += CheckMutatedCopies([](Any& any) { return Held(any.Stream()); }, kCopyOrClone, kStreamMutations);
    // Groups have no Clone(); a copy shares the items, which the changes replace.
    pairs += CheckMutatedCopies(
        [](Any& any) { return any.Flip() ? any.MediaAssetGroup() : any.AnglesMediaAssetGroup(); },
        [](const MediaAssetGroup& source, bool) { return std::make_shared<MediaAssetGroup>(source); }, kGroupMutations);
    RecordProperty("pairs", pairs);
    EXPECT_GT(pairs, 0);
}

// Independently generated objects of every comparable class: mostly unequal (other seeds give
// other assets), sometimes equal (few choices), and always equal from the same seed; a difference
// exactly when operator== says so.
TEST(FirstDifferenceProperty, ReportsADifferenceExactlyWhenUnequal)
{
    int unequal = 0;
    int unequalAssets = 0;
    for (uint64_t seed = 0; seed < kSeeds; ++seed) {
        SCOPED_TRACE("seed " + std::to_string(seed));
        const bool sameSeed = seed % 3 == 0;
        Any left(seed);
        Any right(sameSeed ? seed : seed + kSeeds);
        // `alike`: both drawn by the same call, so equal when drawn from the same seed.
        const auto check = [&unequal, sameSeed](const auto& a, const auto& b, bool alike = true) {
            const auto difference = FirstDifference(a, b);
            ASSERT_EQ(difference.has_value(), !(a == b));
            ASSERT_FALSE(alike && sameSeed && difference) << difference->Path();
            unequal += difference ? 1 : 0;
        };
        const int before = unequal;
        check(left.MediaAsset(), right.MediaAsset());
        unequalAssets += unequal - before;
        check(left.MediaResource(), right.MediaResource());
        check(left.Stream(), right.Stream());
        check(*left.Essence(), *right.Essence());
        check(*left.Location(), *right.Location());
        check(left.Track(), right.Track());
        check(left.TrackLayout(), right.TrackLayout());
        check(left.Annotation(), right.Annotation());
        check(left.TimeBoundsArray(), right.TimeBoundsArray());
        check(left.MetadataDictionary(), right.MetadataDictionary());
        check(left.PelkOperatorProfile(), right.PelkOperatorProfile());
        check(left.AnglesPelkOperatorProfile(), right.AnglesPelkOperatorProfile());
        check(left.TimeCodeTable(), right.TimeCodeTable());
        check(*left.MediaAssetGroup(), *right.AnglesMediaAssetGroup(), false);
        const auto leftGroup = left.AnglesMediaAssetGroup();
        const auto rightGroup = right.MediaAssetGroup();
        if (!leftGroup->Items().empty() && !rightGroup->Items().empty() && leftGroup->Items()[0] && rightGroup->Items()[0])
            check(*leftGroup->Items()[0], *rightGroup->Items()[0], false);
    }
    EXPECT_GT(unequal, 0);
    EXPECT_GE(unequalAssets, 240) << "nine in ten of the 266 pairs from other seeds";
}

TEST(ArbitraryObjects, SameBytesGiveEqualObjects)
{
    std::vector<uint8_t> bytes(4096);
    for (size_t i = 0; i < bytes.size(); ++i)
        bytes[i] = static_cast<uint8_t>(i * 131 + 7);
    Any left(bytes.data(), bytes.size());
    Any right(bytes.data(), bytes.size());
    EXPECT_TRUE(left.MediaAsset() == right.MediaAsset());
    EXPECT_TRUE(*left.AnglesMediaAssetGroup() == *right.AnglesMediaAssetGroup());
}
