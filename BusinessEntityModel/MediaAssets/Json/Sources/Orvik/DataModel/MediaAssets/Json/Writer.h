#pragma once

// Writes one document with RapidJSON's writer into a string buffer: members in the order the
// codecs call them, the "schema" member first in the top-level object, shared objects in full at
// their first place and as a JSON pointer to it everywhere else.

#include "Path.h"
#include "RunWriter.h"

#include <Orvik/DataModel/MediaAssets/Json/Layout.h>

#include <rapidjson/stringbuffer.h>

#include <cstdint>
#include <string>
#include <string_view>
#include <unordered_map>

namespace Orvik::DataModel::MediaAssets::Json::detail {

class Writer {
public:
    explicit Writer(std::string_view schemaName);
    Writer(const Writer&) = delete;
    Writer& operator=(const Writer&) = delete;

    /// Starts an object; the first one of the document opens with the "schema" member.
    void StartObject();
    void EndObject() { json.EndObject(); }

    /// A member name of the document (no quote, backslash, control character or non-ASCII byte).
    void Key(std::string_view name) { json.Plain(name); }
    /// A member name from the model; throws JsonError unless it is valid UTF-8.
    void CheckedKey(std::string_view name);
    /// Throws JsonError at the current path unless `text` is valid UTF-8.
    void String(std::string_view text);
    /// A JSON value that is written as it stands (checked by the caller).
    void Raw(std::string_view jsonText);

    void Int(int64_t value) { json.Int64(value); }
    void Bool(bool value) { json.Bool(value); }

    /// An array of `range`'s elements, each by `write(element)` with the path extended by its
    /// index.
    template <typename Range, typename Write>
    void Array(const Range& range, Write&& write)
    {
        json.StartArray();
        const PathSegment segment(path, size_t{0});
        size_t index = 0;
        for (const auto& element : range) {
            path.Renumber(index++);
            write(element);
        }
        json.EndArray();
    }

    /// The first time `object` is met, remembers the current path and calls `writeInFull()`;
    /// afterwards writes that path as a string.
    template <typename WriteInFull>
    void Shared(const void* object, WriteInFull&& writeInFull)
    {
        const auto found = written.find(object);
        if (found != written.end()) {
            String(found->second);
            return;
        }
        written.emplace(object, path.ToString());
        writeInFull();
    }
    /// Remembers the current path as the place of `object` (written in full by the caller).
    void Register(const void* object) { written.emplace(object, path.ToString()); }
    /// The path at which `object` was written, or nullptr.
    const std::string* PlaceOf(const void* object) const;

    [[noreturn]] void Fail(const std::string& expected) const;

    Path& CurrentPath() { return path; }

    /// The document, compact or indented.
    std::string Finish(Layout layout) const;

private:
    rapidjson::StringBuffer buffer;
    RunWriter json;
    std::string_view schemaName;
    bool schemaWritten = false;
    Path path;
    std::unordered_map<const void*, std::string> written;
};

}  // namespace Orvik::DataModel::MediaAssets::Json::detail
