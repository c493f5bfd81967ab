#pragma once

// Typed access to a profile of a metadata dictionary, for the sources of the library only.

#include <Orvik/BusinessEntityModel/BaseTypes/MetadataProfileDictionary.h>

#include <stdexcept>

namespace Orvik::DataModel::MediaAssets::detail {

/// The profile filed in `metadata` under `Profile::StaticFullyQualifiedName()` when it is of class
/// `Profile` (const when `metadata` is); otherwise throws std::runtime_error with `message`.
template <typename Profile, typename Dictionary>
auto& ProfileOfClassOrThrow(Dictionary& metadata, const char* message)
{
    const auto profile = metadata.template Get<Profile>();
    if (!profile)
        throw std::runtime_error(message);
    return *profile;
}

}  // namespace Orvik::DataModel::MediaAssets::detail
