#pragma once

#include <string>

namespace Orvik::DataModel::MediaAssets {

/// The identity of a video server: its serial number. 0 means no server (Empty(), the default).
///
/// A serial number is valid when it is greater than 0 and a multiple of 10. The text form is the
/// number in decimal ("%d"); TryParse, Parse, FromUri and the constructor from text accept only a
/// valid serial number written as decimal digits, with nothing before or after it. Parse, FromUri
/// and the text constructor throw std::invalid_argument "Invalid server serial number '" + text +
/// "'." for anything else; TryParse answers false and leaves its argument unchanged.
class ZanServerId {
public:
    constexpr ZanServerId() = default;
    /// Implicit, so that a serial number goes where a server is expected (`ZanLocation(120, "A7F3")`,
    /// `PelkId(120, 1, 2, 3, 'B')`). PelkId's overloads stay unambiguous for the calls that name
    /// the camera as a character; a call with an int where a camera could stand, which could mean
    /// page/bank/row or server/position, does not compile: name the server as ZanServerId(n).
    constexpr ZanServerId(int serialNumber) : serialNumber(serialNumber) {}
    /// Explicit: reading a text may throw, which should not happen behind an implicit conversion.
    explicit ZanServerId(const std::string& text) : ZanServerId(Parse(text)) {}

    static constexpr const ZanServerId& Empty();
    static constexpr bool IsValid(int serialNumber) { return serialNumber > 0 && serialNumber % 10 == 0; }

    constexpr int SerialNumber() const { return serialNumber; }
    constexpr void SerialNumber(int value) { serialNumber = value; }

    std::string ToString() const { return std::to_string(serialNumber); }
    static bool TryParse(const std::string& text, ZanServerId& serverId);
    static ZanServerId Parse(const std::string& text);
    static ZanServerId FromUri(const std::string& text) { return Parse(text); }

    constexpr bool operator==(const ZanServerId& other) const { return serialNumber == other.serialNumber; }
    constexpr bool operator!=(const ZanServerId& other) const { return serialNumber != other.serialNumber; }

private:
    int serialNumber = 0;
};

namespace detail {
inline constexpr ZanServerId kEmptyZanServerId{};
}  // namespace detail

constexpr const ZanServerId& ZanServerId::Empty() { return detail::kEmptyZanServerId; }

}  // namespace Orvik::DataModel::MediaAssets
