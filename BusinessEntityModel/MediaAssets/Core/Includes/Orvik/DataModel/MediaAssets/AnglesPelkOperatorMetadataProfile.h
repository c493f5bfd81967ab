#pragma once

#include <Orvik/DataModel/MediaAssets/BaseTypes.h>
#include <Orvik/DataModel/MediaAssets/Utils/PelkId.h>
#include <Orvik/DataModel/MediaAssets/Utils/ZanServerId.h>

#include <cstdint>
#include <memory>

namespace Orvik::DataModel::MediaAssets {

/// The clip on the video server that a multi-angle group stands for: server, page, bank and clip.
///
/// It is filed under "orvik.pelkoperator", the same name as PelkOperatorMetadataProfile, so the
/// two classes share one dictionary key and lookups tell them apart by run-time type. Equals()
/// compares server serial number, page, bank and clip, and answers false for a profile of another
/// name or another class; objectId is not compared. Clone() copies every field, objectId
/// included. A default profile has page, bank and clip 0 and no server.
///
/// Failure guarantee: Clone() and setters are strong; copy assignment is member-wise and basic.
class AnglesPelkOperatorMetadataProfile : public PersistentObject, public MetadataProfile {
public:
    AnglesPelkOperatorMetadataProfile() = default;
    /// Server, page, bank and row (as the clip number) taken from `id`.
    /// Explicit: a clip code is not a profile.
    explicit AnglesPelkOperatorMetadataProfile(const MediaAssets::PelkId& id);
    AnglesPelkOperatorMetadataProfile(AnglesPelkOperatorMetadataProfile&& other) noexcept = default;
    AnglesPelkOperatorMetadataProfile& operator=(const AnglesPelkOperatorMetadataProfile& other) = default;
    AnglesPelkOperatorMetadataProfile& operator=(AnglesPelkOperatorMetadataProfile&& other) noexcept = default;
    ~AnglesPelkOperatorMetadataProfile() override = default;

    /// "orvik.pelkoperator".
    static MediaAssets::FullyQualifiedName StaticFullyQualifiedName();
    MediaAssets::FullyQualifiedName FullyQualifiedName() const override;
    /// A default profile, shared and never changed.
    static const AnglesPelkOperatorMetadataProfile& Empty();

    std::shared_ptr<MetadataProfile> Clone() const override;
    bool Equals(const MetadataProfile& other) const override;

    const ZanServerId& ServerId() const { return serverId; }
    void ServerId(const ZanServerId& value) { serverId = value; }
    int32_t Page() const { return page; }
    void Page(int32_t value) { page = value; }
    int32_t Bank() const { return bank; }
    void Bank(int32_t value) { bank = value; }
    int32_t Clip() const { return clip; }
    void Clip(int32_t value) { clip = value; }
    /// Server, page, bank and clip (as the row) as a clip identifier without camera; values outside
    /// a clip identifier's 8-bit fields keep their low 8 bits.
    MediaAssets::PelkId PelkId() const;

protected:
    AnglesPelkOperatorMetadataProfile(const AnglesPelkOperatorMetadataProfile& other) = default;

private:
    ZanServerId serverId;
    int32_t page = 0;
    int32_t bank = 0;
    int32_t clip = 0;
};

}  // namespace Orvik::DataModel::MediaAssets
