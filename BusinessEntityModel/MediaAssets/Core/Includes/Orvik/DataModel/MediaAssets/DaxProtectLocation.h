#pragma once

#include <Orvik/DataModel/MediaAssets/BaseTypes.h>
#include <Orvik/DataModel/MediaAssets/Location.h>

#include <memory>

namespace Orvik::DataModel::MediaAssets {

/// An item held under protection by a storage server: the server and the item's URI as the
/// storage system gives it, stored as given and returned by Uri(). Equal to another protected
/// item when the URIs, then the servers and the URIs are equal. A new one has an empty server and
/// URI.
class DaxProtectLocation : public Location {
public:
    DaxProtectLocation() : Location(Location::DaxProtectLocation) {}
    DaxProtectLocation(const DaxProtectLocation& other) = default;
    DaxProtectLocation(DaxProtectLocation&& other) noexcept = default;
    DaxProtectLocation& operator=(const DaxProtectLocation& other) = default;
    DaxProtectLocation& operator=(DaxProtectLocation&& other) noexcept = default;

    const Identifier& ServerId() const { return daxServerId; }
    void ServerId(const Identifier& value) { daxServerId = value; }
    void Uri(const URI& value) { daxUri = value; }

    URI Uri() const override { return daxUri; }
    std::unique_ptr<Location> Clone() const override { return std::make_unique<DaxProtectLocation>(*this); }
    bool operator==(const Location& other) const override;

private:
    Identifier daxServerId;
    URI daxUri;
};

}  // namespace Orvik::DataModel::MediaAssets
