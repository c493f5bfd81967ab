#pragma once

// How Clone() copies a reference to another entity, for the sources of the library only.

#include <Orvik/BusinessEntityModel/BaseTypes/SharedReference.h>

#include <memory>

namespace Orvik::DataModel::MediaAssets::detail {

/// A reference to a new clone (`T::Clone()`) of the entity that `reference` points at, or, when it
/// holds only an identifier, a reference to that identifier alone. Whatever the clone throws
/// passes on.
template <typename T>
BusinessEntityModel::BaseTypes::SharedReference<T>
CloneTargetOrKeepId(const BusinessEntityModel::BaseTypes::SharedReference<T>& reference)
{
    if (const auto target = reference.Pointer())
        return std::make_shared<T>(target->Clone());
    return reference.Id();
}

}  // namespace Orvik::DataModel::MediaAssets::detail
