#pragma once

// Metadata profiles for tests: TestProfile carries one number; OtherProfile is of another class
// and is filed under the name it is given, by default the operator profile's.

#include <Orvik/BusinessEntityModel/BaseTypes/MetadataProfile.h>

#include <memory>
#include <string>
#include <utility>

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
    explicit OtherProfile(std::string name = "orvik.pelkoperator") : name(std::move(name)) {}
    ProfileName FullyQualifiedName() const override { return ProfileName(name); }
    bool Equals(const MetadataProfile& other) const override { return dynamic_cast<const OtherProfile*>(&other) != nullptr; }
    std::shared_ptr<MetadataProfile> Clone() const override { return std::make_shared<OtherProfile>(*this); }
    std::string name;
};

}  // namespace
