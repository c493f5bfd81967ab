#pragma once

// Metadata profiles for tests: TestProfile carries one number; OtherProfile shares the operator
// profile's name but is of another class.

#include <Orvik/BusinessEntityModel/BaseTypes/MetadataProfile.h>

#include <memory>
#include <string>

namespace {

using ProfileName = Orvik::BusinessEntityModel::BaseTypes::FullyQualifiedName;
using Orvik::BusinessEntityModel::BaseTypes::MetadataProfile;

class TestProfile : public MetadataProfile {
public:
    static ProfileName StaticFullyQualifiedName() { return ProfileName("test.profile"); }
    explicit TestProfile(int value) : value(value) {}
    ProfileName FullyQualifiedName() const override { return StaticFullyQualifiedName(); }
    bool Equals(const MetadataProfile& other) const override
    {
        const auto* rhs = dynamic_cast<const TestProfile*>(&other);
        return rhs != nullptr && value == rhs->value;
    }
    std::shared_ptr<MetadataProfile> Clone() const override { return std::make_shared<TestProfile>(*this); }
    int value;
};

class OtherProfile : public MetadataProfile {
public:
    ProfileName FullyQualifiedName() const override { return ProfileName("orvik.pelkoperator"); }
    bool Equals(const MetadataProfile& other) const override { return dynamic_cast<const OtherProfile*>(&other) != nullptr; }
    std::shared_ptr<MetadataProfile> Clone() const override { return std::make_shared<OtherProfile>(*this); }
};

}  // namespace
