#pragma once

// The walker of the comparison order that FirstDifference is made of: it follows the order as
// operator== does, keeps the path of the field it stands at, and records the first difference
// with both values as text. For the sources of the library only.

#include <Orvik/DataModel/MediaAssets/AspectRatio.h>
#include <Orvik/DataModel/MediaAssets/Difference.h>
#include <Orvik/DataModel/MediaAssets/Rate.h>
#include <Orvik/DataModel/MediaAssets/TimeCodeJump.h>
#include <Orvik/DataModel/MediaAssets/TimeCodeString.h>
#include <Orvik/DataModel/MediaAssets/TrackChannel.h>

#include "ComparisonOrder.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <type_traits>

namespace Orvik::DataModel::MediaAssets::detail {

// The texts of values.
std::string Text(const std::string& text);
std::string Text(const Identifier& id);
std::string Text(const FullyQualifiedName& name);
std::string Text(int32_t number);
std::string Text(int64_t number);
std::string Text(uint32_t color);
std::string Text(bool flag);
std::string Text(char character);
std::string Text(const TimePoint& point);
std::string Text(const TimeCodeString& timeCode);
std::string Text(Essence::Type type);
std::string Text(Location::Type type);
template <typename E, typename = std::enable_if_t<std::is_enum_v<E>>>
std::string Text(E value)
{
    return ToString(value);
}

// What an element or object is, for the side that has it where the other has none or another
// kind.
std::string Describe(const std::string& text);
std::string Describe(const TimeBounds& bounds);
std::string Describe(const TrackChannel& channel);
std::string Describe(const TimeCodeJump& jump);
std::string Describe(const TimeCodeTable& table);
std::string Describe(const Track& track);
std::string Describe(const TrackLayout& layout);
std::string Describe(const TrackLayoutItem& item);
std::string Describe(const Annotation& annotation);
std::string Describe(const Essence& essence);
std::string Describe(const Location& location);
std::string Describe(const MetadataProfile& profile);
std::string Describe(const MediaAssetGroupItem& item);
template <typename T>
std::string Describe(const SharedReference<T>& reference)
{
    return Text(reference.Id());
}
template <typename T>
std::string Describe(const std::shared_ptr<T>& pointer)
{
    return pointer ? Describe(*pointer) : "null";
}
template <typename T>
std::string Describe(const std::weak_ptr<T>& pointer)
{
    const auto locked = pointer.lock();
    return locked ? Describe(*locked) : "expired";
}

class DifferenceVisitor {
public:
    /// The difference recorded, if any; call once, after the walk.
    std::optional<Difference> Result() { return std::move(difference); }

    template <typename T>
    bool Value(const char* name, const T& a, const T& b)
    {
        const Scope scope = Field(name);
        return Value(a, b);
    }
    template <typename T>
    bool Value(const T& a, const T& b)
    {
        return a == b || Record(Text(a), Text(b));
    }
    // Values compared whole, whose first differing part is named.
    bool Value(const Rate& a, const Rate& b);
    bool Value(const AspectRatio& a, const AspectRatio& b);
    bool Value(const TimeBoundary& a, const TimeBoundary& b);
    bool Value(const TimeBounds& a, const TimeBounds& b);
    bool Value(const Timecode& a, const Timecode& b);
    bool Value(const TimeCodeJump& a, const TimeCodeJump& b);
    bool Value(const TrackChannel& a, const TrackChannel& b);
    bool Value(const MetadataProfileDictionary& a, const MetadataProfileDictionary& b);

    template <typename T>
    bool Matches(const char* name, bool same, const T& a, const T& b)
    {
        const Scope scope = Field(name);
        return same || Record(Text(a), Text(b));
    }

    template <typename T>
    bool Object(const char* name, const T& a, const T& b)
    {
        const Scope scope = Field(name);
        return Object(a, b);
    }
    template <typename T>
    bool Object(const T& a, const T& b)
    {
        return ComparisonOrder::Compare(*this, a, b);
    }

    template <typename Container, typename Element>
    bool Sequence(const char* name, const Container& a, const Container& b, Element element)
    {
        const Scope scope = Field(name);
        return Elements(a, b, element);
    }
    template <typename Container, typename Element>
    bool Elements(const Container& a, const Container& b, Element element)
    {
        const size_t left = Length(a);
        const size_t right = Length(b);
        if (left != right) {
            const size_t first = std::min(left, right);
            const Scope scope = Index(first);
            return Record(left > first ? Describe(a[first]) : kMissing, right > first ? Describe(b[first]) : kMissing);
        }
        for (size_t i = 0; i < left; ++i) {
            const Scope scope = Index(i);
            if (!element(*this, a[i], b[i]))
                return false;
        }
        return true;
    }

    template <typename T>
    bool NotNull(const T* a, const T* b)
    {
        return (a != nullptr && b != nullptr)
            || Record(a != nullptr ? Describe(*a) : kNull, b != nullptr ? Describe(*b) : kNull);
    }

    template <typename A, typename B>
    bool Same(bool same, const A& a, const B& b)
    {
        return same || Record(Describe(a), Describe(b));
    }

    template <typename Fields>
    bool Within(const char* kind, Fields fields)
    {
        const Scope scope = Kind(kind);
        return fields();
    }

private:
    static constexpr char kMissing[] = "missing";
    static constexpr char kNull[] = "null";

    /// Takes the path back to where it was when the scope began.
    class Scope {
    public:
        Scope(std::string& path, size_t length) : path(path), length(length) {}
        Scope(const Scope&) = delete;
        Scope& operator=(const Scope&) = delete;
        ~Scope() { path.resize(length); }

    private:
        std::string& path;
        size_t length;
    };

    Scope Field(const char* name);
    Scope Index(size_t index);
    Scope Key(const std::string& name);
    Scope Kind(const char* kind);

    /// Keeps the first difference only; false, so that a comparison can end with it.
    bool Record(std::string left, std::string right);

    std::string path;
    std::optional<Difference> difference;
};

}  // namespace Orvik::DataModel::MediaAssets::detail
