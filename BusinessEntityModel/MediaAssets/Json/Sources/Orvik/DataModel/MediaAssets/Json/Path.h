#pragma once

// The JSON pointer of the value being written or read, kept as a stack of member names and
// array indices and turned into text only when an error or a reference needs it.

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace Orvik::DataModel::MediaAssets::Json::detail {

class Path {
public:
    Path() : segments(16) {}

    /// The name must outlive its segment.
    void PushName(std::string_view name) { Push({name, 0, false}); }
    void PushIndex(size_t index) { Push({{}, index, true}); }
    void Pop() { --depth; }
    /// Replaces the last segment: the next member of an object, the next element of an array.
    void Rename(std::string_view name) { segments[depth - 1] = {name, 0, false}; }
    void Renumber(size_t index) { segments[depth - 1] = {{}, index, true}; }

    /// "/mediaResources/2/pointer"; "" for the whole document. "~" and "/" in names are escaped.
    std::string ToString() const;
    /// Appends ToString() to `text`.
    void AppendTo(std::string& text) const;

private:
    struct Segment {
        std::string_view name;
        size_t index;
        bool isIndex;
    };
    // Pushed and popped once per value read or written: the segments are kept, and only the
    // depth moves.
    void Push(const Segment& segment)
    {
        if (depth == segments.size())
            segments.resize(2 * depth);
        segments[depth++] = segment;
    }

    std::vector<Segment> segments;
    size_t depth = 0;
};

/// Pushes a segment for the lifetime of the scope.
class PathSegment {
public:
    PathSegment(Path& path, std::string_view name) : path(path) { path.PushName(name); }
    PathSegment(Path& path, size_t index) : path(path) { path.PushIndex(index); }
    PathSegment(const PathSegment&) = delete;
    PathSegment& operator=(const PathSegment&) = delete;
    ~PathSegment() { path.Pop(); }

private:
    Path& path;
};

}  // namespace Orvik::DataModel::MediaAssets::Json::detail
