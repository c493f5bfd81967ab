#include <Orvik/DataModel/MediaAssets/AnglesPelkOperatorMetadataProfile.h>

#include "EqualityVisitor.h"

namespace Orvik::DataModel::MediaAssets {

AnglesPelkOperatorMetadataProfile::AnglesPelkOperatorMetadataProfile(const MediaAssets::PelkId& id)
    : serverId(id.ServerId()), page(id.Page()), bank(id.Bank()), clip(id.Row())
{}

MediaAssets::FullyQualifiedName AnglesPelkOperatorMetadataProfile::StaticFullyQualifiedName()
{
    static const MediaAssets::FullyQualifiedName name("orvik.pelkoperator");
    return name;
}

MediaAssets::FullyQualifiedName AnglesPelkOperatorMetadataProfile::FullyQualifiedName() const
{
    return StaticFullyQualifiedName();
}

const AnglesPelkOperatorMetadataProfile& AnglesPelkOperatorMetadataProfile::Empty()
{
    static const AnglesPelkOperatorMetadataProfile empty;
    return empty;
}

std::shared_ptr<MetadataProfile> AnglesPelkOperatorMetadataProfile::Clone() const
{
    return std::shared_ptr<MetadataProfile>(new AnglesPelkOperatorMetadataProfile(*this));
}

bool AnglesPelkOperatorMetadataProfile::Equals(const MetadataProfile& other) const
{
    return detail::EqualInOrder(*this, other);
}

MediaAssets::PelkId AnglesPelkOperatorMetadataProfile::PelkId() const
{
    return MediaAssets::PelkId(serverId, page, bank, clip);
}

}  // namespace Orvik::DataModel::MediaAssets
