#pragma once

// The order in which each class of the model is compared, written once: operator== walks it with
// the EqualityVisitor, FirstDifference with the DifferenceVisitor. For the sources of the library
// only.
//
// A visitor `V` offers, each returning false at the first difference so that the walk stops there:
// - Value(name, a, b): a field compared with its own operator== (numbers, texts, enumerations,
//   identifiers, rates, time bounds, dictionaries, ...);
// - Object(name, a, b): a child compared in its own order below (a polymorphic child through its
//   virtual comparison);
// - Matches(name, same, a, b): a field compared by a rule of the caller (`same`);
// - Sequence(name, a, b, element): the sizes, then element(v, a[i], b[i]) position by position;
// - Value(a, b), Object(a, b), Elements(a, b, element): the same for the current element;
// - NotNull(a, b): both pointers are set (a null pointer is never equal);
// - Same(same, a, b): the two objects are alike (of one kind) by a rule of the caller;
// - Within(kind, fields): fields() compares the fields that a derived class adds.

#include <Orvik/DataModel/MediaAssets/AnglesMediaAssetGroupItem.h>
#include <Orvik/DataModel/MediaAssets/AnglesPelkOperatorMetadataProfile.h>
#include <Orvik/DataModel/MediaAssets/Annotation.h>
#include <Orvik/DataModel/MediaAssets/AudioEssence.h>
#include <Orvik/DataModel/MediaAssets/DataEssence.h>
#include <Orvik/DataModel/MediaAssets/DaxContentTrackLocation.h>
#include <Orvik/DataModel/MediaAssets/DaxProtectLocation.h>
#include <Orvik/DataModel/MediaAssets/FileLocation.h>
#include <Orvik/DataModel/MediaAssets/MediaAsset.h>
#include <Orvik/DataModel/MediaAssets/MediaAssetGroup.h>
#include <Orvik/DataModel/MediaAssets/MediaResource.h>
#include <Orvik/DataModel/MediaAssets/PelkOperatorMetadataProfile.h>
#include <Orvik/DataModel/MediaAssets/Stream.h>
#include <Orvik/DataModel/MediaAssets/TimeBoundsArray.h>
#include <Orvik/DataModel/MediaAssets/TimeCodeTable.h>
#include <Orvik/DataModel/MediaAssets/Track.h>
#include <Orvik/DataModel/MediaAssets/TrackLayout.h>
#include <Orvik/DataModel/MediaAssets/TrackLayoutItem.h>
#include <Orvik/DataModel/MediaAssets/VideoEssence.h>
#include <Orvik/DataModel/MediaAssets/ZanLocation.h>

#include "PolymorphicComparison.h"

#include <cstddef>
#include <memory>
#include <typeinfo>
#include <vector>

namespace Orvik::DataModel::MediaAssets::detail {

template <typename T, typename Allocator>
size_t Length(const std::vector<T, Allocator>& elements)
{
    return elements.size();
}

template <typename T, typename Less, typename Equal, typename Allocator>
size_t Length(const SortedVectorBase<T, Less, Equal, Allocator>& elements)
{
    return elements.Size();
}

template <typename T>
size_t Length(const Array<T>& elements)
{
    return static_cast<size_t>(elements.Size());
}

/// Elements held by pointer, compared as the objects they point at, each in its own order.
inline constexpr auto kPointees = [](auto& visitor, const auto& a, const auto& b) { return visitor.Object(*a, *b); };
/// Elements held by pointer, compared as the values they point at.
inline constexpr auto kPointeeValues = [](auto& visitor, const auto& a, const auto& b) { return visitor.Value(*a, *b); };
/// Elements compared as objects, each in its own order.
inline constexpr auto kObjects = [](auto& visitor, const auto& a, const auto& b) { return visitor.Object(a, b); };
/// Elements compared as values.
inline constexpr auto kValues = [](auto& visitor, const auto& a, const auto& b) { return visitor.Value(a, b); };
/// References compared by the identifiers they hold; neither the pointers nor the entities.
inline constexpr auto kReferenceIds = [](auto& visitor, const auto& a, const auto& b) {
    return visitor.Value("id", a.Id(), b.Id());
};
/// Elements held by shared pointer that may be null: never equal then.
inline constexpr auto kNonNullPointees = [](auto& visitor, const auto& a, const auto& b) {
    return visitor.NotNull(a.get(), b.get()) && visitor.Object(*a, *b);
};

/// A negative number matches any number.
inline bool NumbersMatch(int32_t a, int32_t b)
{
    return a == b || a < 0 || b < 0;
}

struct ComparisonOrder {
    template <typename V>
    static bool Compare(V& v, const MediaAsset& a, const MediaAsset& b)
    {
        return v.Value("id", a.Id(), b.Id()) && v.Value("assetType", a.AssetType(), b.AssetType())
            && v.Value("ancestor.id", a.Ancestor().Id(), b.Ancestor().Id())
            && v.Value("parent.id", a.Parent().Id(), b.Parent().Id()) && v.Value("name", a.Name(), b.Name())
            && v.Value("description", a.Description(), b.Description())
            && v.Object("physicalTimebounds", a.PhysicalTimebounds(), b.PhysicalTimebounds())
            && v.Value("creationDate", a.CreationDate(), b.CreationDate())
            && v.Value("modificationDate", a.ModificationDate(), b.ModificationDate())
            && v.Value("metadata", a.Metadata(), b.Metadata()) && v.Sequence("tracks", a.Tracks(), b.Tracks(), kPointees)
            && v.Sequence("trackLayouts", a.TrackLayouts(), b.TrackLayouts(), kPointees)
            && v.Sequence("mediaResources", a.MediaResources(), b.MediaResources(), kReferenceIds)
            && v.Sequence("annotations", a.Annotations(), b.Annotations(), kNonNullPointees);
    }

    template <typename V>
    static bool Compare(V& v, const MediaResource& a, const MediaResource& b)
    {
        return v.Value("id", a.Id(), b.Id()) && v.Value("name", a.name, b.name)
            && v.Value("generalFormat", a.GeneralFormat(), b.GeneralFormat())
            && v.Sequence("streams", a.Streams(), b.Streams(), kReferenceIds)
            && v.Object("timebounds", a.Timebounds(), b.Timebounds())
            && v.Value("creationDate", a.CreationDate(), b.CreationDate())
            && v.Value("modificationDate", a.ModificationDate(), b.ModificationDate())
            && v.Value("metadata", a.Metadata(), b.Metadata());
    }

    template <typename V>
    static bool Compare(V& v, const Stream& a, const Stream& b)
    {
        return v.Value("streamId", a.Id(), b.Id()) && v.Value("format", a.Format(), b.Format())
            && v.Object("timebounds", a.Timebounds(), b.Timebounds()) && v.Value("metadata", a.Metadata(), b.Metadata())
            && v.Sequence("essences", a.Essences(), b.Essences(), kObjects)
            && v.Sequence("locations", a.Locations(), b.Locations(), kObjects);
    }

    /// The fields of every essence; the type first, so that the classes' own fields can then be
    /// read from `b` as from an object of the same class.
    template <typename V>
    static bool CompareEssenceFields(V& v, const Essence& a, const Essence& b)
    {
        return v.Value("type", a.GetType(), b.GetType()) && v.Value("channelCount", a.ChannelCount(), b.ChannelCount())
            && v.Matches("nr", NumbersMatch(a.Nr(), b.Nr()), a.Nr(), b.Nr())
            && v.Value("metadata", a.Metadata(), b.Metadata())
            && v.Sequence("trackChannels", a.TrackChannels(), b.TrackChannels(), kPointeeValues)
            && v.Sequence("timecodes", a.Timecodes(), b.Timecodes(), kPointees);
    }

    template <typename V>
    static bool Compare(V& v, const AudioEssence& a, const Essence& other)
    {
        if (!CompareEssenceFields(v, a, other))
            return false;
        const auto& b = static_cast<const AudioEssence&>(other);
        return v.Within("AudioEssence", [&] {
            return v.Value("audioCodec", a.audioCodec, b.audioCodec) && v.Value("bitRate", a.bitRate, b.bitRate)
                && v.Value("bitRateMode", a.bitRateMode, b.bitRateMode)
                && v.Value("sampleRate", a.sampleRate, b.sampleRate) && v.Value("bitDepth", a.bitDepth, b.bitDepth)
                && v.Value("fourCC", a.fourCC, b.fourCC);
        });
    }

    template <typename V>
    static bool Compare(V& v, const VideoEssence& a, const Essence& other)
    {
        if (!CompareEssenceFields(v, a, other))
            return false;
        const auto& b = static_cast<const VideoEssence&>(other);
        return v.Within("VideoEssence", [&] {
            return v.Value("videoCodec", a.videoCodec, b.videoCodec) && v.Value("bitRate", a.bitRate, b.bitRate)
                && v.Value("bitRateMode", a.bitRateMode, b.bitRateMode) && v.Value("bitDepth", a.bitDepth, b.bitDepth)
                && v.Value("frameRate", a.frameRate, b.frameRate) && v.Value("height", a.height, b.height)
                && v.Value("width", a.width, b.width)
                && v.Value("chromaSubSampling", a.chromaSubSampling, b.chromaSubSampling)
                && v.Value("colorSpace", a.colorSpace, b.colorSpace) && v.Value("scanMode", a.scanMode, b.scanMode)
                && v.Value("fourCC", a.fourCC, b.fourCC) && v.Value("aspectRatio", a.aspectRatio, b.aspectRatio)
                && v.Value("boxing", a.boxing, b.boxing);
        });
    }

    /// Any essence, by the class of `a`, as its virtual operator== does.
    template <typename V>
    static bool Compare(V& v, const Essence& a, const Essence& b)
    {
        if (const auto* audio = dynamic_cast<const AudioEssence*>(&a))
            return Compare(v, *audio, b);
        if (const auto* video = dynamic_cast<const VideoEssence*>(&a))
            return Compare(v, *video, b);
        return CompareEssenceFields(v, a, b) && v.Same(a == b, a, b);
    }

    /// The comparison of every location: the type, then the Uri() texts.
    template <typename V>
    static bool CompareLocationFields(V& v, const Location& a, const Location& b)
    {
        return v.Value("type", a.GetType(), b.GetType()) && v.Value("uri", a.Uri(), b.Uri());
    }

    /// What a concrete location `T` compares before its own fields. Its Uri() is made of those
    /// fields, so between two objects of exactly class `T` the location fields could only repeat
    /// what the fields decide and are skipped.
    template <typename T, typename V>
    static bool CompareAsLocation(V& v, const T& a, const Location& b)
    {
        return BothExactly<T, Location>(a, b) || CompareLocationFields(v, a, b);
    }

    template <typename V>
    static bool Compare(V& v, const FileLocation& a, const Location& other)
    {
        if (!CompareAsLocation(v, a, other))
            return false;
        const auto& b = static_cast<const FileLocation&>(other);
        return v.Within("FileLocation", [&] {
            return v.Value("name", a.Name(), b.Name()) && v.Value("size", a.Size(), b.Size())
                && v.Value("isReadOnly", a.IsReadOnly(), b.IsReadOnly()) && v.Value("uri", a.Uri(), b.Uri())
                && v.Value("creationDate", a.CreationDate(), b.CreationDate())
                && v.Value("modificationDate", a.ModificationDate(), b.ModificationDate())
                && v.Value("lastAccessDate", a.LastAccessDate(), b.LastAccessDate());
        });
    }

    template <typename V>
    static bool Compare(V& v, const ZanLocation& a, const Location& other)
    {
        if (!CompareAsLocation(v, a, other))
            return false;
        const auto& b = static_cast<const ZanLocation&>(other);
        return v.Within("ZanLocation", [&] {
            return v.Value("serverId", a.ServerId().SerialNumber(), b.ServerId().SerialNumber())
                && v.Value("sequenceId", a.SequenceId(), b.SequenceId());
        });
    }

    template <typename V>
    static bool Compare(V& v, const DaxContentTrackLocation& a, const Location& other)
    {
        if (!CompareAsLocation(v, a, other))
            return false;
        const auto& b = static_cast<const DaxContentTrackLocation&>(other);
        return v.Within("DaxContentTrackLocation", [&] {
            return v.Value("daxServerId", a.ServerId(), b.ServerId())
                && v.Value("daxPartitionId", a.PartitionId(), b.PartitionId())
                && v.Value("daxContentTrackId", a.ContentTrackId(), b.ContentTrackId());
        });
    }

    template <typename V>
    static bool Compare(V& v, const DaxProtectLocation& a, const Location& other)
    {
        if (!CompareAsLocation(v, a, other))
            return false;
        const auto& b = static_cast<const DaxProtectLocation&>(other);
        return v.Within("DaxProtectLocation", [&] {
            return v.Value("daxServerId", a.ServerId(), b.ServerId()) && v.Value("daxUri", a.Uri(), b.Uri());
        });
    }

    /// Any location, by the class of `a`, as its virtual operator== does.
    template <typename V>
    static bool Compare(V& v, const Location& a, const Location& b)
    {
        if (const auto* file = dynamic_cast<const FileLocation*>(&a))
            return Compare(v, *file, b);
        if (const auto* zan = dynamic_cast<const ZanLocation*>(&a))
            return Compare(v, *zan, b);
        if (const auto* contentTrack = dynamic_cast<const DaxContentTrackLocation*>(&a))
            return Compare(v, *contentTrack, b);
        if (const auto* protect = dynamic_cast<const DaxProtectLocation*>(&a))
            return Compare(v, *protect, b);
        return CompareLocationFields(v, a, b) && v.Same(a == b, a, b);
    }

    template <typename V>
    static bool Compare(V& v, const Track& a, const Track& b)
    {
        return v.Value("id", a.Id(), b.Id()) && v.Value("name", a.Name(), b.Name());
    }

    template <typename V>
    static bool Compare(V& v, const TrackLayoutItem& a, const TrackLayoutItem& b)
    {
        // Each pair of tracks is locked left first; an expired one throws.
        return v.Value("id", a.Id(), b.Id()) && v.Value("name", a.Name(), b.Name())
            && v.Sequence("tracks", a.Tracks(), b.Tracks(), [](V& visitor, const auto& left, const auto& right) {
                   const auto lockedLeft = BusinessEntityModel::BaseTypes::detail::LockOrThrow(left);
                   const auto lockedRight = BusinessEntityModel::BaseTypes::detail::LockOrThrow(right);
                   return visitor.Object(*lockedLeft, *lockedRight);
               });
    }

    template <typename V>
    static bool Compare(V& v, const TrackLayout& a, const TrackLayout& b)
    {
        return v.Value("id", a.Id(), b.Id()) && v.Value("name", a.Name(), b.Name())
            && v.Sequence("trackLayoutItems", a.TrackLayoutItems(), b.TrackLayoutItems(), kObjects);
    }

    template <typename V>
    static bool Compare(V& v, const Annotation& a, const Annotation& b)
    {
        return v.Value("type", a.Type(), b.Type()) && v.Value("data", a.Data(), b.Data())
            && v.Value("timeBounds", a.TimeBounds(), b.TimeBounds()) && v.Value("metadata", a.Metadata(), b.Metadata());
    }

    template <typename V>
    static bool Compare(V& v, const TimeBoundsArray& a, const TimeBoundsArray& b)
    {
        return v.Value("inBoundary", a.InBoundary(), b.InBoundary())
            && v.Value("outBoundary", a.OutBoundary(), b.OutBoundary()) && v.Elements(a, b, kValues);
    }

    template <typename V>
    static bool Compare(V& v, const TimeCodeTable& a, const TimeCodeTable& b)
    {
        return v.Value("fqn", a.FullyQualifiedName(), b.FullyQualifiedName())
            && v.Value("standard", a.Standard(), b.Standard()) && v.Value("type", a.Type(), b.Type())
            && v.Sequence("timeCodeJumpItems", a.TimeCodeJumpItems(), b.TimeCodeJumpItems(), kPointeeValues);
    }

    template <typename V>
    static bool Compare(V& v, const PelkOperatorMetadataProfile& a, const MetadataProfile& other)
    {
        // Another profile class may share the name; it is never equal.
        const auto* b = ComparableProfile(a, other);
        return v.Same(b != nullptr, a, other)
            && v.Value("serverId", a.ServerId().SerialNumber(), b->ServerId().SerialNumber())
            && v.Value("page", a.Page(), b->Page()) && v.Value("bank", a.Bank(), b->Bank())
            && v.Value("clip", a.Clip(), b->Clip()) && v.Value("camera", a.Camera(), b->Camera())
            && v.Value("umId", a.UmId(), b->UmId()) && v.Value("varId", a.VarId(), b->VarId())
            && v.Value("rating", a.Rating(), b->Rating())
            && v.Value("archiveStatus", a.ArchiveStatus(), b->ArchiveStatus())
            && v.Value("userTimecodeType", a.UserTimecodeType(), b->UserTimecodeType())
            && v.Value("primaryTimecode", a.PrimaryTimecode(), b->PrimaryTimecode())
            && v.Value("userTimecode", a.UserTimecode(), b->UserTimecode())
            && v.Value("todTimecode", a.TodTimecode(), b->TodTimecode()) && v.Value("icon", a.Icon(), b->Icon())
            && v.Value("color", a.Color(), b->Color()) && v.Sequence("keywords", a.keywords, b->keywords, kValues)
            && v.Value("fillAndKeyType", a.FillAndKeyType(), b->FillAndKeyType())
            && v.Value("fillAndKeyMediaAssetId", a.FillAndKeyMediaAssetId(), b->FillAndKeyMediaAssetId());
    }

    template <typename V>
    static bool Compare(V& v, const AnglesPelkOperatorMetadataProfile& a, const MetadataProfile& other)
    {
        const auto* b = ComparableProfile(a, other);
        return v.Same(b != nullptr, a, other)
            && v.Value("serverId", a.ServerId().SerialNumber(), b->ServerId().SerialNumber())
            && v.Value("page", a.Page(), b->Page()) && v.Value("bank", a.Bank(), b->Bank())
            && v.Value("clip", a.Clip(), b->Clip());
    }

    /// Any profile, by the class of `a`, as its virtual Equals() does.
    template <typename V>
    static bool Compare(V& v, const MetadataProfile& a, const MetadataProfile& b)
    {
        if (const auto* operatorProfile = dynamic_cast<const PelkOperatorMetadataProfile*>(&a))
            return Compare(v, *operatorProfile, b);
        if (const auto* anglesProfile = dynamic_cast<const AnglesPelkOperatorMetadataProfile*>(&a))
            return Compare(v, *anglesProfile, b);
        return v.Same(a.Equals(b), a, b);
    }

    /// The comparison of a plain item: the asset ids alone.
    template <typename V>
    static bool CompareItemFields(V& v, const MediaAssetGroupItem& a, const MediaAssetGroupItem& b)
    {
        return v.Value("mediaAsset.id", a.MediaAsset().Id(), b.MediaAsset().Id());
    }

    template <typename V>
    static bool Compare(V& v, const AnglesMediaAssetGroupItem& a, const AnglesMediaAssetGroupItem& b)
    {
        return CompareItemFields(v, a, b)
            && v.Within("AnglesMediaAssetGroupItem", [&] { return v.Value("name", a.Name(), b.Name()); });
    }

    /// An angles item is never equal to an item of another class.
    template <typename V>
    static bool Compare(V& v, const AnglesMediaAssetGroupItem& a, const MediaAssetGroupItem& other)
    {
        const auto* b = dynamic_cast<const AnglesMediaAssetGroupItem*>(&other);
        return v.Same(b != nullptr, a, other) && Compare(v, a, *b);
    }

    /// Any item, by the class of `a`, as its virtual operator== does: a plain item compares the
    /// asset ids alone, also with an angles item.
    template <typename V>
    static bool Compare(V& v, const MediaAssetGroupItem& a, const MediaAssetGroupItem& b)
    {
        if (const auto* angles = dynamic_cast<const AnglesMediaAssetGroupItem*>(&a))
            return Compare(v, *angles, b);
        if (typeid(a) == typeid(MediaAssetGroupItem))
            return CompareItemFields(v, a, b);
        return v.Same(a == b, a, b);
    }

    template <typename V>
    static bool CompareItems(V& v, const MediaAssetGroup& a, const MediaAssetGroup& b)
    {
        return v.Sequence("items", a.Items(), b.Items(), kNonNullPointees);
    }

    template <typename V>
    static bool Compare(V& v, const MediaAssetGroup& a, const MediaAssetGroup& b)
    {
        return v.Value("metadata", a.Metadata(), b.Metadata()) && v.Value("id", a.Id(), b.Id())
            && v.Value("type", a.Type(), b.Type()) && v.Value("name", a.Name(), b.Name()) && CompareItems(v, a, b);
    }
};

}  // namespace Orvik::DataModel::MediaAssets::detail
