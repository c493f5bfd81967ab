#include <Orvik/DataModel/MediaAssets/MediaAsset.h>

#include "CloneTargetOrKeepId.h"
#include "EqualityVisitor.h"
#include "ProfileOfClassOrThrow.h"

#include <memory>
#include <stdexcept>

namespace Orvik::DataModel::MediaAssets {
namespace {

constexpr char kNoOperatorMetadata[] =
    "Orvik::DataModel::MediaAssets::MediaAsset::PelkOperatorMetadata: No orvik.pelkoperator metadata available";
constexpr char kNullAnnotation[] = "Orvik::DataModel::MediaAssets::MediaAsset::Clone: null annotation";

}  // namespace

bool MediaAsset::operator==(const MediaAsset& other) const { return detail::EqualInOrder(*this, other); }

bool MediaAsset::HasPelkOperatorMetadata() const { return metadata.Contains<PelkOperatorMetadataProfile>(); }

PelkOperatorMetadataProfile& MediaAsset::PelkOperatorMetadata()
{
    return detail::ProfileOfClassOrThrow<PelkOperatorMetadataProfile>(metadata, kNoOperatorMetadata);
}

const PelkOperatorMetadataProfile& MediaAsset::PelkOperatorMetadata() const
{
    return detail::ProfileOfClassOrThrow<PelkOperatorMetadataProfile>(metadata, kNoOperatorMetadata);
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
    for (const auto& resource : mediaResources)
        copy.mediaResources.Insert(detail::CloneTargetOrKeepId(resource));
    copy.annotations.reserve(annotations.size());
    for (const auto& annotation : annotations) {
        if (!annotation)
            throw std::invalid_argument(kNullAnnotation);
        copy.annotations.push_back(std::make_shared<Annotation>(annotation->Clone()));
    }
    return copy;
}

}  // namespace Orvik::DataModel::MediaAssets
