#pragma once

#include <Orvik/BusinessEntityModel/BaseTypes/FullyQualifiedName.h>

#include <memory>
#include <string>

namespace Orvik::BusinessEntityModel::BaseTypes {

/// Base of every metadata profile: a typed set of values filed in a MetadataProfileDictionary
/// under the profile's fixed, dotted name (each concrete class also has a static
/// StaticFullyQualifiedName() returning the same name).
///
/// Profiles compare by value through Equals(), which each concrete class implements, checking
/// the other profile's kind itself; operator== and operator!= forward to it. Clone() is the deep
/// copy of the dynamic type.
class MetadataProfile {
public:
    virtual ~MetadataProfile() = default;

    virtual BaseTypes::FullyQualifiedName FullyQualifiedName() const = 0;
    virtual bool Equals(const MetadataProfile& other) const = 0;
    virtual std::shared_ptr<MetadataProfile> Clone() const = 0;
    /// The profile's name, unless a concrete class says more.
    virtual std::string ToString() const { return FullyQualifiedName().Value(); }

    bool operator==(const MetadataProfile& other) const { return Equals(other); }
    bool operator!=(const MetadataProfile& other) const { return !Equals(other); }

    MetadataProfile(const MetadataProfile&) = default;
    MetadataProfile& operator=(const MetadataProfile&) = default;

protected:
    MetadataProfile() = default;
};

}  // namespace Orvik::BusinessEntityModel::BaseTypes
