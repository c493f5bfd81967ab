#pragma once

#include <Orvik/DataModel/MediaAssets/BaseTypes.h>
#include <Orvik/DataModel/MediaAssets/Location.h>

#include <memory>
#include <string>

namespace Orvik::DataModel::MediaAssets {

/// A content track of the storage system, named by server, partition and content track.
///
/// Its URI is "storage://" + server + "/" + partition + "/" + content track, each identifier as
/// given ("storage://S1/P2/T3", "storage:////" when all are empty). InitFromUri reads that form
/// back: exactly "storage:" and two slashes, then three fields without slashes (empty ones
/// allowed), case-sensitive, nothing else around. It answers false for any other text and then
/// leaves the location unchanged; an identifier holding "/" therefore writes a URI that does not
/// read back. Equal to another content-track location when the URIs, then server, partition and
/// content track are equal. A new one has three empty identifiers.
class DaxContentTrackLocation : public Location {
public:
    DaxContentTrackLocation() : Location(Location::DaxContentTrackLocation) {}
    DaxContentTrackLocation(const DaxContentTrackLocation& other) = default;
    DaxContentTrackLocation(DaxContentTrackLocation&& other) noexcept = default;
    DaxContentTrackLocation& operator=(const DaxContentTrackLocation& other) = default;
    DaxContentTrackLocation& operator=(DaxContentTrackLocation&& other) noexcept = default;

    const Identifier& ServerId() const { return daxServerId; }
    void ServerId(const Identifier& value) { daxServerId = value; }
    const Identifier& PartitionId() const { return daxPartitionId; }
    void PartitionId(const Identifier& value) { daxPartitionId = value; }
    const Identifier& ContentTrackId() const { return daxContentTrackId; }
    void ContentTrackId(const Identifier& value) { daxContentTrackId = value; }

    bool InitFromUri(const std::string& uri);

    URI Uri() const override;
    std::unique_ptr<Location> Clone() const override { return std::make_unique<DaxContentTrackLocation>(*this); }
    bool operator==(const Location& other) const override;

private:
    Identifier daxServerId;
    Identifier daxPartitionId;
    Identifier daxContentTrackId;
};

}  // namespace Orvik::DataModel::MediaAssets
