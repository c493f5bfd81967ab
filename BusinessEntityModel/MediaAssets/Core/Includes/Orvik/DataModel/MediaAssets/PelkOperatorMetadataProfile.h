#pragma once

#include <Orvik/DataModel/MediaAssets/ArchiveStatus.h>
#include <Orvik/DataModel/MediaAssets/BaseTypes.h>
#include <Orvik/DataModel/MediaAssets/Color.h>
#include <Orvik/DataModel/MediaAssets/FillAndKeyType.h>
#include <Orvik/DataModel/MediaAssets/TimecodePrimary.h>
#include <Orvik/DataModel/MediaAssets/UserTimecodeType.h>
#include <Orvik/DataModel/MediaAssets/Utils/PelkId.h>
#include <Orvik/DataModel/MediaAssets/Utils/ZanServerId.h>

#include <array>
#include <cstddef>
#include <cstdint>
#include <list>
#include <memory>
#include <string>
#include <vector>

namespace Orvik::DataModel::MediaAssets {

namespace detail {
struct ComparisonOrder;
}  // namespace detail

/// What the slow-motion controller's operators attach to a clip: its place on the video server
/// (server, page, bank, clip, camera), its identifiers in the operator's system, rating, archive
/// state, timecodes, icon, colour, keywords, fill-and-key pairing and protection flags. Filed in
/// a media asset's metadata under "orvik.pelkoperator".
///
/// Equals() compares every field but objectId and the two protection flags, in declaration
/// order, keywords by count and then one by one; it answers false for a profile of another name
/// or another class. Clone() copies every field, objectId included. A default profile has
/// page, bank and clip 0, no camera, no server, empty texts and keywords, zero timecodes, colour
/// Color::NotSet and every enumeration at its value 0.
///
/// Keywords sit in slots by index; slots that were never set hold empty texts. The setter takes
/// any index below 2^31 and any length; the server's own limits (Zan3MaxKeyword slots of at most
/// Zan3MaxKeywordLength characters) are applied only by Zan3Keywords().
///
/// Failure guarantee: Clone(), the keyword setters (including the split of a text) and the other
/// setters are strong; copy assignment is member-wise and basic.
class PelkOperatorMetadataProfile : public PersistentObject, public MetadataProfile {
public:
    static constexpr int32_t Zan3MaxKeyword = 5;
    static constexpr int32_t Zan3MaxKeywordLength = 12;

    using StringVector = std::vector<Utf8String>;
    using StringArray = std::array<Utf8String, Zan3MaxKeyword>;
    using StringList = std::list<Utf8String>;

    PelkOperatorMetadataProfile() = default;
    /// Server, page, bank, row (as the clip number) and camera taken from `id`.
    /// Explicit: a clip code is not a profile.
    explicit PelkOperatorMetadataProfile(const MediaAssets::PelkId& id);
    PelkOperatorMetadataProfile(PelkOperatorMetadataProfile&& other) noexcept = default;
    PelkOperatorMetadataProfile& operator=(const PelkOperatorMetadataProfile& other) = default;
    PelkOperatorMetadataProfile& operator=(PelkOperatorMetadataProfile&& other) noexcept = default;
    ~PelkOperatorMetadataProfile() override = default;

    /// "orvik.pelkoperator".
    static MediaAssets::FullyQualifiedName StaticFullyQualifiedName();
    MediaAssets::FullyQualifiedName FullyQualifiedName() const override;
    /// The names of the profile's fields in declaration order ("serverId", "page", ... "pelkUIProtected"),
    /// as a store keys them.
    static const std::vector<std::string>& StaticKeys();
    /// A default profile, shared and never changed.
    static const PelkOperatorMetadataProfile& Empty();

    std::shared_ptr<MetadataProfile> Clone() const override;
    bool Equals(const MetadataProfile& other) const override;
    bool operator==(const PelkOperatorMetadataProfile& other) const { return Equals(other); }
    bool operator!=(const PelkOperatorMetadataProfile& other) const { return !Equals(other); }

    const ZanServerId& ServerId() const { return serverId; }
    void ServerId(const ZanServerId& value) { serverId = value; }
    int32_t Page() const { return page; }
    void Page(int32_t value) { page = value; }
    int32_t Bank() const { return bank; }
    void Bank(int32_t value) { bank = value; }
    int32_t Clip() const { return clip; }
    void Clip(int32_t value) { clip = value; }
    /// The clip number under the name a clip identifier gives it.
    int32_t Row() const { return clip; }
    void Row(int32_t value) { clip = value; }
    char Camera() const { return camera; }
    void Camera(char value) { camera = value; }
    /// True when the camera is not the NUL character.
    bool HasCamera() const { return camera != '\0'; }
    /// Server, page, bank, clip (as the row) and camera as a clip identifier; values outside a
    /// clip identifier's 8-bit fields keep their low 8 bits.
    MediaAssets::PelkId PelkId() const;
    const std::string& UmId() const { return umId; }
    void UmId(const std::string& value) { umId = value; }
    const std::string& VarId() const { return varId; }
    void VarId(const std::string& value) { varId = value; }
    int32_t Rating() const { return rating; }
    void Rating(int32_t value) { rating = value; }
    MediaAssets::ArchiveStatus ArchiveStatus() const { return archiveStatus; }
    void ArchiveStatus(MediaAssets::ArchiveStatus value) { archiveStatus = value; }
    MediaAssets::UserTimecodeType UserTimecodeType() const { return userTimecodeType; }
    void UserTimecodeType(MediaAssets::UserTimecodeType value) { userTimecodeType = value; }
    TimecodePrimary PrimaryTimecode() const { return primaryTimecode; }
    void PrimaryTimecode(TimecodePrimary value) { primaryTimecode = value; }
    const Timecode& UserTimecode() const { return userTimecode; }
    void UserTimecode(const Timecode& value) { userTimecode = value; }
    const Timecode& TodTimecode() const { return todTimecode; }
    void TodTimecode(const Timecode& value) { todTimecode = value; }
    const std::string& Icon() const { return icon; }
    void Icon(const std::string& value) { icon = value; }
    /// Packed as 0xAARRGGBB (see Color).
    uint32_t Color() const { return color; }
    void Color(uint32_t value) { color = value; }
    MediaAssets::FillAndKeyType FillAndKeyType() const { return fillAndKeyType; }
    void FillAndKeyType(MediaAssets::FillAndKeyType value) { fillAndKeyType = value; }
    const Identifier& FillAndKeyMediaAssetId() const { return fillAndKeyMediaAssetId; }
    void FillAndKeyMediaAssetId(const Identifier& value) { fillAndKeyMediaAssetId = value; }
    bool IsUserProtected() const { return userProtected; }
    void UserProtected(bool value) { userProtected = value; }
    bool IsPelkUiProtected() const { return pelkUIProtected; }
    void PelkUIProtected(bool value) { pelkUIProtected = value; }

    /// Stores `keyword` whole in slot `index`, adding empty slots up to it. An index of 2^31 or
    /// more throws std::invalid_argument "Negative keyword index " + the index + "."; the
    /// keywords are then unchanged, as they are when growing them fails.
    void Keyword(size_t index, const Utf8String& keyword);
    /// The keyword in slot `index`, or an empty text beyond the last slot.
    Utf8String Keyword(size_t index) const;
    StringVector Keywords() const { return keywords; }
    StringList KeywordsList() const { return StringList(keywords.begin(), keywords.end()); }
    /// The first Zan3MaxKeyword slots as the video server keeps them: each cut to its first
    /// Zan3MaxKeywordLength code points, missing slots empty.
    StringArray Zan3Keywords() const;
    /// Replaces the keywords by the pieces of `text` between occurrences of `separator`; an empty
    /// text gives no keywords, an empty separator one keyword holding the whole text.
    void Keywords(const Utf8String& text, const Utf8String& separator);
    /// The number of slots, empty ones included.
    int32_t KeywordsCount() const { return static_cast<int32_t>(keywords.size()); }
    /// True when some slot holds a non-empty keyword.
    bool AnyKeyword() const;
    /// True when some slot holds exactly `keyword`.
    bool AnyKeyword(const Utf8String& keyword) const;
    void ClearKeywords() { keywords.clear(); }

protected:
    PelkOperatorMetadataProfile(const PelkOperatorMetadataProfile& other) = default;

private:
    friend struct detail::ComparisonOrder;  // the comparison reads the fields without copies

    ZanServerId serverId;
    int32_t page = 0;
    int32_t bank = 0;
    int32_t clip = 0;
    char camera = '\0';
    std::string umId;
    std::string varId;
    int32_t rating = 0;
    MediaAssets::ArchiveStatus archiveStatus = MediaAssets::ArchiveStatus::None;
    MediaAssets::UserTimecodeType userTimecodeType = MediaAssets::UserTimecodeType::HancVitc;
    TimecodePrimary primaryTimecode = TimecodePrimary::NotSet;
    Timecode userTimecode;
    Timecode todTimecode;
    std::string icon;
    uint32_t color = MediaAssets::Color::NotSet;
    MediaAssets::FillAndKeyType fillAndKeyType = MediaAssets::FillAndKeyType::unknown;
    Identifier fillAndKeyMediaAssetId;
    StringVector keywords;
    bool userProtected = false;
    bool pelkUIProtected = false;
};

}  // namespace Orvik::DataModel::MediaAssets
