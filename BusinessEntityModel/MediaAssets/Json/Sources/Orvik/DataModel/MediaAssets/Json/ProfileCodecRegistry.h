#pragma once

// The codecs of metadata profiles that callers register by name, for the whole process.

#include <Orvik/DataModel/MediaAssets/Json/MetadataProfileCodec.h>

#include <memory>
#include <string>

namespace Orvik::DataModel::MediaAssets::Json::detail {

/// The codec registered under `name`, or null.
std::shared_ptr<const MetadataProfileCodec> FindCodec(const std::string& name);

/// Whether `name` is the operator profiles' name, whose codec is built in.
bool IsOperatorProfileName(const std::string& name);

}  // namespace Orvik::DataModel::MediaAssets::Json::detail
