#pragma once

// Helpers of the comparisons of the polymorphic classes (profiles, locations), for the sources
// of the library only.

#include <Orvik/BusinessEntityModel/BaseTypes/MetadataProfile.h>

#include <typeinfo>

namespace Orvik::DataModel::MediaAssets::detail {

/// True when `a` and `b` are both objects of exactly class `T`, not of a class derived from it:
/// then `T`'s own rules decide what a comparison through the base would only repeat.
template <typename T, typename Base>
bool BothExactly(const Base& a, const Base& b)
{
    return typeid(a) == typeid(T) && typeid(b) == typeid(T);
}

/// For the Equals() of a profile class `T` with a fixed name: `other` as a `T` when its fields are
/// to be compared with `self`'s, that is when both report the same name and `other` is a `T`;
/// otherwise null. Two objects of exactly class `T` report `T`'s name, so the names (returned by
/// value) are only fetched when another class takes part.
template <typename T>
const T* ComparableProfile(const T& self, const BusinessEntityModel::BaseTypes::MetadataProfile& other)
{
    if (BothExactly<T, BusinessEntityModel::BaseTypes::MetadataProfile>(self, other))
        return static_cast<const T*>(&other);
    if (self.FullyQualifiedName() != other.FullyQualifiedName())
        return nullptr;
    return dynamic_cast<const T*>(&other);
}

}  // namespace Orvik::DataModel::MediaAssets::detail
