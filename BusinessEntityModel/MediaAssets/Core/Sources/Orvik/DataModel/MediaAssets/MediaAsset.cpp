#include <Orvik/DataModel/MediaAssets/MediaAsset.h>

#include "EqualityVisitor.h"

#include <memory>
#include <stdexcept>

namespace Orvik::DataModel::MediaAssets {
namespace {

constexpr char kNoOperatorMetadata[] =
    "Orvik::DataModel::MediaAssets::MediaAsset::PelkOperatorMetadata: No orvik.pelkoperator metadata available";
constexpr char kNullAnnotation[] = "Orvik::DataModel::MediaAssets::MediaAsset::Clone: null annotation";

}  // namespace

bool MediaAsset::operator==(const MediaAsset& other) const
{
    return detail::EqualInOrder(*this, other);
}

bool MediaAsset::HasPelkOperatorMetadata() const
{
    return metadata.Contains<PelkOperatorMetadataProfile>();
}

PelkOperatorMetadataProfile& MediaAsset::PelkOperatorMetadata()
{
    const auto profile = metadata.Get<PelkOperatorMetadataProfile>();
    if (!profile)
        throw std::runtime_error(kNoOperatorMetadata);
    return *profile;
}

const PelkOperatorMetadataProfile& MediaAsset::PelkOperatorMetadata() const
{
    const auto profile = metadata.Get<PelkOperatorMetadataProfile>();
    if (!profile)
        throw std::runtime_error(kNoOperatorMetadata);
    return *profile;
}

MediaAssets::Duration MediaAsset::GetInOutDuration() const
{
    if (OutBoundary() == TimeBoundary::Empty())
        return MediaAssets::Duration();
    return OutBoundary().TimePoint() - InBoundary().TimePoint();
}

MediaAsset MediaAsset::Clone() const
{
    MediaAsset copy(id);
    copy.assetType = assetType;
    copy.ancestor.Id(ancestor.Id());
    copy.parent.Id(parent.Id());
    copy.name = name;
    copy.description = description;
    copy.physicalTimebounds = physicalTimebounds;
    copy.creationDate = creationDate;
    copy.modificationDate = modificationDate;
    copy.metadata.DeepCopy(metadata);
    for (const auto& track : tracks)
        copy.tracks.Insert(std::make_shared<Track>(track->Clone()));
    for (const auto& layout : trackLayouts)
        copy.trackLayouts.Insert(std::make_shared<TrackLayout>(*layout));
    for (const auto& resource : mediaResources) {
        if (resource.Pointer())
            copy.mediaResources.Insert(MediaResourceReference(std::make_shared<MediaResource>(resource->Clone())));
        else
            copy.mediaResources.Insert(MediaResourceReference(resource.Id()));
    }
    copy.annotations.reserve(annotations.size());
    for (const auto& annotation : annotations) {
        if (!annotation)
            throw std::invalid_argument(kNullAnnotation);
        copy.annotations.push_back(std::make_shared<Annotation>(annotation->Clone()));
    }
    return copy;
}

}  // namespace Orvik::DataModel::MediaAssets
