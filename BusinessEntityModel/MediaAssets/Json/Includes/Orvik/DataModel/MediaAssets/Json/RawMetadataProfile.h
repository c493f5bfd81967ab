#pragma once

#include <Orvik/BusinessEntityModel/BaseTypes/FullyQualifiedName.h>
#include <Orvik/BusinessEntityModel/BaseTypes/MetadataProfile.h>

#include <memory>
#include <string>
#include <utility>

namespace Orvik::DataModel::MediaAssets::Json {

/// A metadata profile that FromJson met under a name without codec: the name and the profile's
/// JSON text exactly as the document held it. ToJson writes that text back byte for byte, so a
/// service passes on profiles it does not know. Equal to another raw profile with the same name
/// and the same text; ToString() gives the text.
class RawMetadataProfile : public BusinessEntityModel::BaseTypes::MetadataProfile {
public:
    RawMetadataProfile(BusinessEntityModel::BaseTypes::FullyQualifiedName name, std::string json)
        : name(std::move(name)), json(std::move(json))
    {}

    BusinessEntityModel::BaseTypes::FullyQualifiedName FullyQualifiedName() const override { return name; }
    const std::string& Json() const { return json; }

    bool Equals(const BusinessEntityModel::BaseTypes::MetadataProfile& other) const override
    {
        const auto* raw = dynamic_cast<const RawMetadataProfile*>(&other);
        return raw != nullptr && raw->name == name && raw->json == json;
    }
    std::shared_ptr<BusinessEntityModel::BaseTypes::MetadataProfile> Clone() const override
    {
        return std::make_shared<RawMetadataProfile>(*this);
    }
    std::string ToString() const override { return json; }

private:
    BusinessEntityModel::BaseTypes::FullyQualifiedName name;
    std::string json;
};

}  // namespace Orvik::DataModel::MediaAssets::Json
