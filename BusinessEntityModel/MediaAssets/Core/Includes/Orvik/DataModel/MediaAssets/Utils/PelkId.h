#pragma once

#include <Orvik/DataModel/MediaAssets/Utils/ZanServerId.h>

#include <cstdint>
#include <string>

namespace Orvik::DataModel::MediaAssets {

/// The operators' code of a recorded clip: page, bank and row digits, a camera letter, and
/// optionally the video server that holds the clip ("123B", "023A/120").
///
/// A valid identifier has page 0 to 9, bank 1 to 9, row 0 to 9 and no camera (NUL) or a camera
/// 'A' to 'L'. The setters and constructors store the low 8 bits of what they are given and check
/// nothing; IsValid() tells. Empty() has no server, page, bank and row 255 and no camera.
///
/// Text forms: ToShortString() writes '0' + page, '0' + bank, '0' + row (each in 8 bits, so an
/// unset 255 prints "/") and the camera, ending at the first NUL; ToString() adds "/" and the
/// server's serial number, always ("123B/120", "123B/0", "////0" for Empty()).
///
/// Two parsers, deliberately different:
/// - FromUri is strict about the server and throws std::invalid_argument: "Invalid uri '" + text +
///   "'." for a text shorter than three characters or out-of-range fields, "Invalid server serial
///   number '" + the text after the slash + "'." for a serial number that does not read as a
///   positive multiple of 10 (checked first). It takes "123" without camera, and ignores what
///   follows the camera unless it starts with "/".
/// - TryParse never throws: it needs a camera, refuses anything after the camera but "/" and a
///   serial number starting with a digit, and takes any serial number that reads as a number,
///   keeping only a valid one in the identifier (the number read is reported through
///   `serialNumber`, 0 when reading failed). On false, `id` may already hold page, bank, row and
///   camera.
///
/// Failure guarantee: FromUri(), Parse-style constructors and ToString() are strong. TryParse() is
/// basic, like its refusal: a std::bad_alloc from reading the serial number may leave page, bank,
/// row and camera already set in `id`.
class PelkId {
public:
    static constexpr int MaxChannel = 12;
    static constexpr char MinCamera = 'A';
    static constexpr char MaxCamera = 'L';
    static constexpr int8_t MinPage = 0;
    static constexpr int8_t MaxPage = 9;
    static constexpr int8_t MinBank = 1;
    static constexpr int8_t MaxBank = 9;
    static constexpr int8_t MinRow = 0;
    static constexpr int8_t MaxRow = 9;

    /// The empty identifier: equal to Empty(), not valid, printed "////0".
    constexpr PelkId() = default;
    /// Explicit: a bare number is not a clip code (`id == 456` would compile).
    explicit PelkId(int position) { Position(position); }
    PelkId(int position, char camera) : camera(camera) { Position(position); }
    PelkId(int page, int bank, int row) : PelkId(ZanServerId(), page, bank, row, '\0') {}
    PelkId(int page, int bank, int row, char camera) : PelkId(ZanServerId(), page, bank, row, camera) {}
    PelkId(const ZanServerId& serverId, int position) : serverId(serverId) { Position(position); }
    PelkId(const ZanServerId& serverId, int position, char camera) : serverId(serverId), camera(camera)
    {
        Position(position);
    }
    PelkId(const ZanServerId& serverId, int page, int bank, int row) : PelkId(serverId, page, bank, row, '\0') {}
    constexpr PelkId(const ZanServerId& serverId, int page, int bank, int row, char camera)
        : serverId(serverId), page(static_cast<uint8_t>(page)), bank(static_cast<uint8_t>(bank)),
          row(static_cast<uint8_t>(row)), camera(camera)
    {}
    /// Parsed strictly, with FromUri's exceptions; use TryParse() for text that may be malformed.
    /// Explicit: it may throw, which should not happen behind a conversion.
    explicit PelkId(const std::string& text) : PelkId(FromUri(text)) {}

    static constexpr const PelkId& Empty();

    const ZanServerId& ServerId() const { return serverId; }
    int Page() const { return page; }
    void Page(int value) { page = static_cast<uint8_t>(value); }
    int Bank() const { return bank; }
    void Bank(int value) { bank = static_cast<uint8_t>(value); }
    int Row() const { return row; }
    void Row(int value) { row = static_cast<uint8_t>(value); }
    char Camera() const { return camera; }
    void Camera(char value) { camera = value; }
    /// True when the camera is not NUL.
    bool HasCamera() const { return camera != '\0'; }
    /// The clip within its bank: the row.
    int Clip() const { return row; }
    /// The camera as a channel number, 1 for 'A' to 12 for 'L'; 0 without camera.
    int Channel() const { return HasCamera() ? camera - MinCamera + 1 : 0; }
    /// page × 100 + bank × 10 + row.
    int Position() const { return page * 100 + bank * 10 + row; }
    /// Sets page = p / 100, bank = (p / 10) % 10, row = p % 10, each in 8 bits, unchecked.
    void Position(int p);
    /// A number for each clip and camera: Position() × MaxChannel + Channel() - 1; -1 without camera.
    int Index() const { return HasCamera() ? Position() * MaxChannel + Channel() - 1 : -1; }

    bool IsValid() const;
    bool IsEmpty() const { return *this == Empty(); }
    static bool IsValidPage(int page) { return IsInRange(page, MinPage, MaxPage); }
    static bool IsValidBank(int bank) { return IsInRange(bank, MinBank, MaxBank); }
    static bool IsValidRow(int row) { return IsInRange(row, MinRow, MaxRow); }
    static bool IsValidCamera(char camera) { return camera >= MinCamera && camera <= MaxCamera; }
    static bool IsInRange(int value, int8_t min, int8_t max) { return value >= min && value <= max; }

    std::string ToShortString() const;
    std::string ToString() const;

    static PelkId FromUri(const std::string& text);
    static bool TryParse(const std::string& text, PelkId& id, int& serialNumber);
    static bool TryParse(const std::string& text, PelkId& id);

    constexpr bool operator==(const PelkId& other) const
    {
        return serverId == other.serverId && page == other.page && bank == other.bank && row == other.row
            && camera == other.camera;
    }
    constexpr bool operator!=(const PelkId& other) const { return !(*this == other); }

private:
    ZanServerId serverId;
    uint8_t page = 255;
    uint8_t bank = 255;
    uint8_t row = 255;
    char camera = '\0';
};

namespace detail {
inline constexpr PelkId kEmptyPelkId{};
}  // namespace detail

constexpr const PelkId& PelkId::Empty() { return detail::kEmptyPelkId; }

}  // namespace Orvik::DataModel::MediaAssets
