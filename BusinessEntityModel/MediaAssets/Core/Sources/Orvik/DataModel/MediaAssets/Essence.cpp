#include <Orvik/DataModel/MediaAssets/Essence.h>

#include "EqualityVisitor.h"

#include <Orvik/BusinessEntityModel/BaseTypes/StringAssociation.h>

namespace Orvik::DataModel::MediaAssets {
namespace {

using BusinessEntityModel::BaseTypes::StringAssociation;

const StringAssociation<Essence::Type>& GetConverter()
{
    static const StringAssociation<Essence::Type> converter(
        {
            {Essence::Audio, "Audio"},
            {Essence::Data, "Data"},
            {Essence::Video, "Video"},
        },
        Essence::Audio);
    return converter;
}

}  // namespace

const std::string& Essence::ToString(Essence::Type type) { return GetConverter().ToString(type); }
Essence::Type Essence::ToType(const std::string& text) { return GetConverter().ToEnum(text); }
Essence::Type Essence::ToType(const std::string& text, bool& failed) { return GetConverter().ToEnum(text, failed); }

Essence::Essence(Essence::Type type) : type(type), metadata(std::make_shared<MetadataProfileDictionary>()) {}

bool Essence::operator==(const Essence& other) const
{
    detail::EqualityVisitor visitor;
    return detail::ComparisonOrder::CompareEssenceFields(visitor, *this, other);
}

void Essence::CloneContentsFrom(const Essence& source)
{
    metadata->DeepCopy(*source.metadata);
    trackChannels.Clear();
    for (const auto& channel : source.trackChannels)
        trackChannels.Insert(std::make_shared<TrackChannel>(channel->Clone()));
}

}  // namespace Orvik::DataModel::MediaAssets
