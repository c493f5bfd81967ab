#pragma once

#include <Orvik/DataModel/MediaAssets/BaseTypes.h>
#include <Orvik/DataModel/MediaAssets/Location.h>

#include <cstdint>
#include <memory>
#include <string>

namespace Orvik::DataModel::MediaAssets {

/// A file holding a stream: its name, size, read-only flag, dates and URI. The URI is stored as
/// given, never parsed or checked, and is what Uri() returns.
///
/// Equal to another file location when the URIs, then name, size, read-only flag, URI, creation,
/// modification and last access dates are equal. A new file location has empty texts, size 0,
/// dates 0 and is not read-only.
class FileLocation : public Location {
public:
    FileLocation() : Location(Location::FileLocation) {}
    FileLocation(const FileLocation& other) = default;
    FileLocation(FileLocation&& other) noexcept = default;
    FileLocation& operator=(const FileLocation& other) = default;
    FileLocation& operator=(FileLocation&& other) noexcept = default;

    const std::string& Name() const { return name; }
    void Name(const std::string& value) { name = value; }
    const int64_t& Size() const { return size; }
    void Size(const int64_t& value) { size = value; }
    const bool& IsReadOnly() const { return isReadOnly; }
    void IsReadOnly(const bool& value) { isReadOnly = value; }
    const DateTime& CreationDate() const { return creationDate; }
    void CreationDate(const DateTime& value) { creationDate = value; }
    const DateTime& ModificationDate() const { return modificationDate; }
    void ModificationDate(const DateTime& value) { modificationDate = value; }
    const DateTime& LastAccessDate() const { return lastAccessDate; }
    void LastAccessDate(const DateTime& value) { lastAccessDate = value; }
    void Uri(const URI& value) { uri = value; }

    URI Uri() const override { return uri; }
    std::unique_ptr<Location> Clone() const override { return std::make_unique<FileLocation>(*this); }
    bool operator==(const Location& other) const override;

private:
    std::string name;
    int64_t size = 0;
    bool isReadOnly = false;
    DateTime creationDate = 0;
    DateTime modificationDate = 0;
    DateTime lastAccessDate = 0;
    URI uri;
};

}  // namespace Orvik::DataModel::MediaAssets
