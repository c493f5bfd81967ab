#pragma once

#include <Orvik/DataModel/MediaAssets/BaseTypes.h>
#include <Orvik/DataModel/MediaAssets/Location.h>
#include <Orvik/DataModel/MediaAssets/Utils/ZanServerId.h>

#include <memory>
#include <string>

namespace Orvik::DataModel::MediaAssets {

/// A recorded sequence on a video server. Its URI is the server's serial number in decimal, "/"
/// and the sequence identifier as given ("120/A7F3", "0/" when both are unset, "-10/A"); it is
/// not meant to be parsed back.
///
/// Equal to another video-server location when the URIs, then the serial numbers and the
/// sequence identifiers are equal. A new one has no server and an empty sequence identifier.
class ZanLocation : public Location {
public:
    ZanLocation() : Location(Location::ZanLocation) {}
    ZanLocation(const ZanServerId& serverId, std::string sequenceId)
        : Location(Location::ZanLocation), serverId(serverId), sequenceId(std::move(sequenceId))
    {}
    ZanLocation(const ZanLocation& other) = default;
    ZanLocation(ZanLocation&& other) noexcept = default;
    ZanLocation& operator=(const ZanLocation& other) = default;
    ZanLocation& operator=(ZanLocation&& other) noexcept = default;

    const ZanServerId& ServerId() const { return serverId; }
    void ServerId(const ZanServerId& value) { serverId = value; }
    const std::string& SequenceId() const { return sequenceId; }
    void SequenceId(const std::string& value) { sequenceId = value; }

    URI Uri() const override { return URI(std::to_string(serverId.SerialNumber()) + "/" + sequenceId); }
    std::unique_ptr<Location> Clone() const override { return std::make_unique<ZanLocation>(*this); }
    bool operator==(const Location& other) const override;

private:
    ZanServerId serverId;
    std::string sequenceId;
};

}  // namespace Orvik::DataModel::MediaAssets
