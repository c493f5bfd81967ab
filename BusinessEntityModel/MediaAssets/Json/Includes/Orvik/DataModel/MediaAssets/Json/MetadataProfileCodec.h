#pragma once

#include <Orvik/BusinessEntityModel/BaseTypes/FullyQualifiedName.h>
#include <Orvik/BusinessEntityModel/BaseTypes/MetadataProfile.h>

#include <memory>
#include <string>
#include <string_view>

namespace Orvik::DataModel::MediaAssets::Json {

/// The JSON form of the metadata profiles filed under one name, for callers' own profile classes.
/// The operator profiles ("orvik.pelkoperator") are built in.
///
/// Write() gives one JSON object, compact (no whitespace outside strings) so that documents stay
/// canonical. Read() gets the text of such an object as it stands in the document and returns the
/// profile, which must report the name it was registered under; any exception it throws is
/// reported as a JsonError at the profile's path, with the exception's message.
class MetadataProfileCodec {
public:
    virtual ~MetadataProfileCodec() = default;
    virtual std::string Write(const BusinessEntityModel::BaseTypes::MetadataProfile& profile) const = 0;
    virtual std::shared_ptr<BusinessEntityModel::BaseTypes::MetadataProfile> Read(std::string_view json) const = 0;
};

/// Files `codec` under `name` for every later ToJson and FromJson of this process, replacing a
/// codec registered before under that name. Registration takes a lock; register at start-up,
/// before documents are read or written on other threads. Throws std::invalid_argument for a null
/// codec and for the built-in name "orvik.pelkoperator".
void RegisterMetadataProfileCodec(const BusinessEntityModel::BaseTypes::FullyQualifiedName& name,
                                  std::shared_ptr<const MetadataProfileCodec> codec);

/// Removes the codec filed under `name`; true when there was one.
bool UnregisterMetadataProfileCodec(const BusinessEntityModel::BaseTypes::FullyQualifiedName& name);

}  // namespace Orvik::DataModel::MediaAssets::Json
