// FirstDifference against operator== over generated objects: for every pair, a difference is
// reported exactly when the objects are unequal; and when a copy or a clone differs from its
// source in one field only, the difference names that very field.

#include <Orvik/DataModel/MediaAssets.h>
#include <Orvik/DataModel/MediaAssets/FirstDifference.h>

#include "ArbitraryObjects.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

using namespace Orvik::DataModel::MediaAssets;
using Orvik::Testing::ArbitraryObjects;

namespace {

constexpr uint64_t kSeeds = 400;
constexpr int kMutationsPerTarget = 3;

/// Changes one field of `target` and says the path of that field, or nothing when `target` has
/// no such field (an empty collection, another kind).
template <typename T>
using Mutation = std::function<std::optional<std::string>(T& target, ArbitraryObjects& any)>;

std::string At(const std::string& path, size_t index)
{
    return path + "[" + std::to_string(index) + "]";
}

/// A copy of `*pointer` in its place, so that a change to it leaves the source's object alone.
template <typename T>
T& Own(std::shared_ptr<T>& pointer)
{
    pointer = std::make_shared<T>(*pointer);
    return *pointer;
}

// One change of a metadata dictionary whose profiles are shared with the source's.
std::optional<std::string> MutateMetadata(MetadataProfileDictionary& dictionary, ArbitraryObjects& any,
                                          const std::string& path)
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
        angles->Clip(angles->Clip() + 1);
        return entry + ".clip";
    }
    auto& profile = dynamic_cast<PelkOperatorMetadataProfile&>(*copy);
    switch (any.Below(7)) {
    case 0:
        profile.UserProtected(!profile.IsUserProtected());  // not compared
        profile.PelkUIProtected(!profile.IsPelkUiProtected());
        profile.ObjectId(profile.ObjectId() + 1);
        return std::nullopt;
    case 1:
        profile.Rating(profile.Rating() + 1);
        return entry + ".rating";
    case 2:
        profile.Keyword(static_cast<size_t>(profile.KeywordsCount()), "new");
        return entry + ".keywords[" + std::to_string(profile.KeywordsCount() - 1) + "]";
    case 3: {
        Timecode timecode = profile.TodTimecode();
        timecode.IsDrop(!timecode.IsDrop());
        profile.TodTimecode(timecode);
        return entry + ".todTimecode.isDrop";
    }
    case 4:
        profile.Color(profile.Color() ^ 0x00FF0000);
        return entry + ".color";
    case 5:
        profile.ArchiveStatus(profile.ArchiveStatus() == ArchiveStatus::None ? ArchiveStatus::Archived : ArchiveStatus::None);
        return entry + ".archiveStatus";
    default:
        profile.FillAndKeyMediaAssetId(Identifier(profile.FillAndKeyMediaAssetId().Value() + "x"));
        return entry + ".fillAndKeyMediaAssetId";
    }
}

std::optional<std::string> MutateBounds(TimeBoundsArray& bounds, ArbitraryObjects& any, const std::string& path)
{
    const std::string prefix = path.empty() ? "" : path + ".";
    switch (any.Below(3)) {
    case 0: {
        TimeBoundary in = bounds.InBoundary();
        in.IsMoving(!in.IsMoving());
        bounds.InBoundary(in);
        return prefix + "inBoundary.isMoving";
    }
    case 1: {
        TimeBoundary out = bounds.OutBoundary();
        out.TimePoint(TimePoint(out.TimePoint().ToNanoseconds() ^ 1));
        bounds.OutBoundary(out);
        return prefix + "outBoundary.timePoint";
    }
    default:
        if (bounds.Empty())
            return std::nullopt;
        bounds.Erase(bounds.end() - 1);
        return At(path, bounds.Size());
    }
}

std::optional<std::string> MutateEssence(Essence& essence, ArbitraryObjects& any, const std::string& path)
{
    switch (any.Below(7)) {
    case 0:
        essence.ChannelCount(essence.ChannelCount() ^ 1);
        return path + ".channelCount";
    case 1: {
        // A negative number matches any number: that change is no difference.
        const bool wildcard = essence.Nr() < 0;
        essence.Nr(wildcard ? 7 : essence.Nr() + 1);
        return wildcard ? std::nullopt : std::optional<std::string>(path + ".nr");
    }
    case 2: {
        // The dictionary is shared with the source since Clone(): take an own one.
        auto own = std::make_shared<MetadataProfileDictionary>(essence.Metadata().Clone());
        essence.Metadata(own);
        return MutateMetadata(*own, any, path + ".metadata");
    }
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

std::optional<std::string> MutateLocation(Location& location, const std::string& path)
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
    [](Stream& s, ArbitraryObjects&) -> std::optional<std::string> {
        s.Id(Identifier(s.Id().Value() + "x"));
        return "streamId";
    },
    [](Stream& s, ArbitraryObjects&) -> std::optional<std::string> {
        s.Format(s.Format() == WrapperFormat::MXFOP1a ? WrapperFormat::MP4 : WrapperFormat::MXFOP1a);
        return "format";
    },
    [](Stream& s, ArbitraryObjects& any) { return MutateBounds(s.Timebounds(), any, "timebounds"); },
    [](Stream& s, ArbitraryObjects& any) {
        auto own = std::make_shared<MetadataProfileDictionary>(s.Metadata().Clone());
        s.Metadata(own);
        return MutateMetadata(*own, any, "metadata");
    },
    [](Stream& s, ArbitraryObjects& any) -> std::optional<std::string> {
        if (s.Essences().Empty() || any.Below(4) == 0) {
            s.Essences().Add(any.Essence());
            return At("essences", static_cast<size_t>(s.Essences().Size() - 1));
        }
        const size_t index = any.Below(static_cast<uint64_t>(s.Essences().Size()));
        return MutateEssence(s.Essences()[static_cast<int>(index)], any, At("essences", index));
    },
    [](Stream& s, ArbitraryObjects& any) -> std::optional<std::string> {
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
    [](MediaResource& r, ArbitraryObjects&) -> std::optional<std::string> {
        r.Name(r.Name() + "x");
        return "name";
    },
    [](MediaResource& r, ArbitraryObjects&) -> std::optional<std::string> {
        r.GeneralFormat(r.GeneralFormat() == ResourceFormat::unknown ? ResourceFormat::ToBeDefined : ResourceFormat::unknown);
        return "generalFormat";
    },
    [](MediaResource& r, ArbitraryObjects&) -> std::optional<std::string> {
        // Streams are compared by id alone: a change inside a loaded stream is no difference.
        if (r.Streams().empty())
            return std::nullopt;
        const size_t index = r.Streams().size() - 1;
        if (r.Streams()[index].Pointer()) {
            auto stream = std::make_shared<Stream>(r.Streams()[index]->Clone());
            stream->Format(stream->Format() == WrapperFormat::MP4 ? WrapperFormat::AVI : WrapperFormat::MP4);
            r.Streams()[index] = StreamReference(stream);
            return std::nullopt;
        }
        r.Streams()[index] = StreamReference(Identifier(r.Streams()[index].Id().Value() + "x"));
        return At("streams", index) + ".id";
    },
    [](MediaResource& r, ArbitraryObjects&) -> std::optional<std::string> {
        r.ModificationDate(r.ModificationDate() + 1);
        return "modificationDate";
    },
    [](MediaResource& r, ArbitraryObjects& any) { return MutateBounds(r.Timebounds(), any, "timebounds"); },
    [](MediaResource& r, ArbitraryObjects& any) {
        auto own = std::make_shared<MetadataProfileDictionary>(r.Metadata().Clone());
        r.Metadata(own);
        return MutateMetadata(*own, any, "metadata");
    },
};

const std::vector<Mutation<MediaAsset>> kAssetMutations = {
    [](MediaAsset& a, ArbitraryObjects&) -> std::optional<std::string> {
        a.ObjectId(a.ObjectId() + 1);
        return std::nullopt;
    },
    [](MediaAsset& a, ArbitraryObjects&) -> std::optional<std::string> {
        a.AssetType(a.AssetType() == AssetType::media ? AssetType::train : AssetType::media);
        return "assetType";
    },
    [](MediaAsset& a, ArbitraryObjects& any) -> std::optional<std::string> {
        // The lineage is compared by id: another asset object with the same id is no difference.
        if (any.Flip()) {
            a.Parent(MediaAssetReference(std::make_shared<MediaAsset>(a.Parent().Id())));
            return std::nullopt;
        }
        a.Ancestor(MediaAssetReference(Identifier(a.Ancestor().Id().Value() + "x")));
        return "ancestor.id";
    },
    [](MediaAsset& a, ArbitraryObjects&) -> std::optional<std::string> {
        a.Description(a.Description() + "\"");
        return "description";
    },
    [](MediaAsset& a, ArbitraryObjects& any) { return MutateBounds(a.PhysicalTimebounds(), any, "physicalTimebounds"); },
    [](MediaAsset& a, ArbitraryObjects&) -> std::optional<std::string> {
        a.CreationDate(a.CreationDate() + 1);
        return "creationDate";
    },
    [](MediaAsset& a, ArbitraryObjects& any) {
        MetadataProfileDictionary own = a.Metadata();
        auto path = MutateMetadata(own, any, "metadata");
        a.Metadata(std::move(own));
        return path;
    },
    [](MediaAsset& a, ArbitraryObjects& any) -> std::optional<std::string> {
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
    [](MediaAsset& a, ArbitraryObjects& any) -> std::optional<std::string> {
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
    [](MediaAsset& a, ArbitraryObjects&) -> std::optional<std::string> {
        if (a.MediaResources().Empty())
            return std::nullopt;
        const size_t index = a.MediaResources().Size() - 1;
        a.MediaResources()[index] = MediaResourceReference(Identifier(a.MediaResources()[index].Id().Value() + "x"));
        return At("mediaResources", index) + ".id";
    },
    [](MediaAsset& a, ArbitraryObjects& any) -> std::optional<std::string> {
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
        TimeBounds bounds = annotation.TimeBounds();
        TimeBoundary out = bounds.OutBoundary();
        out.IsMoving(!out.IsMoving());
        bounds.OutBoundary(out);
        annotation.TimeBounds(bounds);
        return At("annotations", index) + ".timeBounds.outBoundary.isMoving";
    },
};

const std::vector<Mutation<std::shared_ptr<MediaAssetGroup>>> kGroupMutations = {
    [](std::shared_ptr<MediaAssetGroup>& g, ArbitraryObjects&) -> std::optional<std::string> {
        g->Type(g->Type() + "x");
        return "type";
    },
    [](std::shared_ptr<MediaAssetGroup>& g, ArbitraryObjects& any) {
        MetadataProfileDictionary own = g->Metadata();
        auto path = MutateMetadata(own, any, "metadata");
        g->Metadata(std::move(own));
        return path;
    },
    [](std::shared_ptr<MediaAssetGroup>& g, ArbitraryObjects& any) -> std::optional<std::string> {
        if (g->Items().empty())
            return std::nullopt;
        const size_t index = any.Below(g->Items().size());
        auto& item = g->Items()[index];
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

/// Checks one pair both ways; `expected` is the path of the one changed field.
template <typename T>
void ExpectDifferenceAt(const T& source, const T& changed, const std::optional<std::string>& expected)
{
    for (const bool forward : {true, false}) {
        const T& left = forward ? source : changed;
        const T& right = forward ? changed : source;
        const auto difference = FirstDifference(left, right);
        ASSERT_EQ(difference.has_value(), left != right);
        if (!difference)
            continue;
        ASSERT_TRUE(expected.has_value()) << "unexpected difference at " << difference->Path();
        EXPECT_EQ(difference->Path(), *expected);
        EXPECT_NE(difference->Left(), difference->Right()) << difference->Path();
    }
}

/// For each seed: a generated object, a copy and a clone of it, each changed a few times in one
/// field; every pair checked both ways. Returns the number of pairs.
template <typename T, typename Make, typename Compare>
int CheckMutatedCopies(Make make, const std::vector<Mutation<T>>& mutations, Compare expect)
{
    int pairs = 0;
    for (uint64_t seed = 0; seed < kSeeds; ++seed) {
        SCOPED_TRACE("seed " + std::to_string(seed));
        ArbitraryObjects any(seed);
        const auto source = make(any, false);
        for (const bool clone : {false, true}) {
            for (int i = 0; i < kMutationsPerTarget; ++i) {
                auto target = make(any, clone, &source);
                const auto& mutation = mutations[any.Below(mutations.size())];
                const auto expected = mutation(target, any);
                expect(source, target, expected);
                pairs += 2;
            }
        }
    }
    return pairs;
}

}  // namespace

TEST(FirstDifferenceProperty, NamesTheOneChangedFieldOfCopiesAndClones)
{
    int pairs = 0;
    pairs += CheckMutatedCopies<MediaAsset>(
        [](ArbitraryObjects& any, bool clone, const MediaAsset* source = nullptr) {
            return source == nullptr ? any.MediaAsset() : clone ? source->Clone() : *source;
        },
        kAssetMutations, ExpectDifferenceAt<MediaAsset>);
    pairs += CheckMutatedCopies<MediaResource>(
        [](ArbitraryObjects& any, bool clone, const MediaResource* source = nullptr) {
            return source == nullptr ? any.MediaResource() : clone ? source->Clone() : *source;
        },
        kResourceMutations, ExpectDifferenceAt<MediaResource>);
    pairs += CheckMutatedCopies<Stream>(
        [](ArbitraryObjects& any, bool clone, const Stream* source = nullptr) {
            return source == nullptr ? any.Stream() : clone ? source->Clone() : Stream(*source);
        },
        kStreamMutations, ExpectDifferenceAt<Stream>);
    pairs += CheckMutatedCopies<std::shared_ptr<MediaAssetGroup>>(
        [](ArbitraryObjects& any, bool, const std::shared_ptr<MediaAssetGroup>* source = nullptr) {
            // Groups have no Clone(); a copy shares the items, which the changes replace.
            return source == nullptr ? (any.Flip() ? any.MediaAssetGroup() : any.AnglesMediaAssetGroup())
                                     : std::make_shared<MediaAssetGroup>(**source);
        },
        kGroupMutations,
        [](const auto& source, const auto& changed, const std::optional<std::string>& expected) {
            ExpectDifferenceAt<MediaAssetGroup>(*source, *changed, expected);
        });
    RecordProperty("pairs", pairs);
    EXPECT_GT(pairs, 0);
}

// Independently generated objects of every comparable class: mostly unequal, sometimes equal
// (few choices, or the same seed); a difference exactly when operator== says so.
TEST(FirstDifferenceProperty, ReportsADifferenceExactlyWhenUnequal)
{
    int unequal = 0;
    for (uint64_t seed = 0; seed < kSeeds; ++seed) {
        SCOPED_TRACE("seed " + std::to_string(seed));
        ArbitraryObjects left(seed);
        ArbitraryObjects right(seed % 3 == 0 ? seed : seed + kSeeds);
        const auto check = [&unequal](const auto& a, const auto& b) {
            const auto difference = FirstDifference(a, b);
            ASSERT_EQ(difference.has_value(), !(a == b));
            unequal += difference ? 1 : 0;
        };
        check(left.MediaAsset(), right.MediaAsset());
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
        check(*left.MediaAssetGroup(), *right.AnglesMediaAssetGroup());
        const auto leftGroup = left.AnglesMediaAssetGroup();
        const auto rightGroup = right.MediaAssetGroup();
        if (!leftGroup->Items().empty() && !rightGroup->Items().empty() && leftGroup->Items()[0] && rightGroup->Items()[0])
            check(*leftGroup->Items()[0], *rightGroup->Items()[0]);
    }
    EXPECT_GT(unequal, 0);
}
