#pragma once

#include <Orvik/BusinessEntityModel/BaseTypes/StringAssociation.h>
#include <Orvik/DataModel/MediaAssets/BaseTypes.h>

#include <cstdint>
#include <memory>
#include <string>

namespace Orvik::DataModel::MediaAssets {

/// A place where a stream's content is stored: a file, a clip on a video server, a content track
/// of the storage system, or an item under protection there.
///
/// Owned singly (by a stream's LocationArray or by the pointer Clone() returns) and copied
/// through Clone(). The kind is fixed by the concrete class. Equality compares the kind first, so
/// locations of different kinds are never equal, then the Uri() texts, then the concrete fields.
///
/// The type converts to the texts "FileLocation", "DaxContentTrackLocation", "DaxProtectLocation"
/// and "ZanLocation"; an unknown text or number gives FileLocation (with `failed` set by the
/// two-argument form).
///
/// Failure guarantee: Clone() and every setter are strong.
class Location {
public:
    enum Type : int32_t { FileLocation = 0, DaxContentTrackLocation = 1, DaxProtectLocation = 2, ZanLocation = 3 };
    using LocationTypeEnumConverter = BusinessEntityModel::BaseTypes::StringAssociation<Location::Type>;

    static const LocationTypeEnumConverter& TypeConverter();
    static std::string ToString(Location::Type type);
    static Location::Type ToType(const std::string& text);
    static Location::Type ToType(const std::string& text, bool& failed);

    Location(const Location& other) = default;
    virtual ~Location() = default;

    virtual bool operator==(const Location& other) const;
    bool operator!=(const Location& other) const { return !(*this == other); }
    virtual std::unique_ptr<Location> Clone() const = 0;
    /// The location as text, in its kind's own form; equality compares it after the kind.
    virtual URI Uri() const = 0;
    virtual Location::Type GetType() const { return type; }

protected:
    explicit Location(Location::Type type) : type(type) {}
    Location(Location&& other) noexcept = default;
    Location& operator=(const Location& other) = default;
    Location& operator=(Location&& other) noexcept = default;

private:
    Location::Type type;
};

}  // namespace Orvik::DataModel::MediaAssets
