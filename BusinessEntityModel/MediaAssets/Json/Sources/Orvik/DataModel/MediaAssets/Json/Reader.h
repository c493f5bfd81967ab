#pragma once

// Reads one document with simdjson's On-Demand parser, in one pass: each codec asks for the
// members of its object by a fixed set of names, and every failure becomes a JsonError naming
// the JSON pointer of the value and what was expected.

#include "EnumerationTexts.h"
#include "MalformedJson.h"
#include "MemberKey.h"
#include "Path.h"
#include "SharedPlaces.h"

#include <Orvik/DataModel/MediaAssets/Json/Members.h>

#include <simdjson.h>

#include <array>
#include <cstddef>
#include <cstdint>
#include <initializer_list>
#include <limits>
#include <memory>
#include <string>
#include <string_view>
#include <typeinfo>
#include <utility>

namespace Orvik::DataModel::MediaAssets::Json::detail {

using simdjson::ondemand::value;

/// The names as a message lists them: "\"A\"", "\"A\" or \"B\"", "\"A\", \"B\" or \"C\"".
std::string Alternatives(const std::string_view* names, size_t count);
inline std::string Alternatives(std::initializer_list<std::string_view> names)
{
    return Alternatives(names.begin(), names.size());
}

/// The member names of one kind of object, in document order, with their keys; members whose
/// bit is set in `optional` may be absent.
template <size_t N>
struct MemberSet {
    static_assert(N <= 64, "one bit per member");
    static constexpr size_t kSize = N;
    std::array<std::string_view, N> names;
    std::array<MemberKey, N> keys;
    uint64_t optional;

    constexpr explicit MemberSet(const std::array<std::string_view, N>& names, uint64_t optional = 0)
        : names(names), keys(KeysOf(names)), optional(optional)
    {}
};

class Reader {
public:
    /// What a thread keeps between documents, grown to the largest one read: the parser with its
    /// buffers, the padded copy of the text that simdjson reads, and the index of the shared
    /// objects (emptied when the workspace is given back).
    struct Workspace {
        simdjson::ondemand::parser parser;
        std::unique_ptr<char[]> text;
        size_t capacity = 0;
        SharedPlaces places;
    };
    /// Gives a workspace back to the thread's spare when there is none; a reader that fails
    /// anywhere, even while it is being built, gives its workspace back too. (simdjson 3.0 does
    /// not check the allocation of the string buffer when a parser grows: a parser kept grown
    /// meets that allocation only for a larger document.)
    struct GiveBack {
        void operator()(Workspace* workspace) const noexcept;
    };
    using LentWorkspace = std::unique_ptr<Workspace, GiveBack>;

    /// Parses `text`, with the thread's workspace.
    explicit Reader(std::string_view text);
    ~Reader();
    Reader(const Reader&) = delete;
    Reader& operator=(const Reader&) = delete;

    /// The members of an object that are still to be read.
    struct Rest {
        simdjson::ondemand::object_iterator it;
        simdjson::ondemand::object_iterator end;
    };

    /// Checks that the top-level object opens with a "schema" member naming one of `kinds` and
    /// the version this library reads, calls `read(kind, rest)` with the index of that name for
    /// the object's other members, then checks that nothing follows the object.
    template <size_t N, typename Read>
    void Document(const std::array<std::string_view, N>& kinds, Read&& read)
    {
        Rest rest = OpenRoot();
        size_t kind = 0;
        First(rest, Members::kSchema, [&](value& schema) { kind = CheckSchema(schema, kinds.data(), N); });
        ++rest.it;
        read(kind, rest);
        const char* after = nullptr;
        if (document.current_location().get(after) == simdjson::SUCCESS)
            Fail("expected the end of the document, found more text");
    }

    /// The name in the top-level object's "schema" member, whatever it is.
    std::string SchemaName();

    /// The members of the object `v`, to be read with ReadRest().
    Rest Open(value& v)
    {
        auto object = Take(v.get_object(), "an object", &v);
        return Rest{Take(object.begin(), "an object"), Take(object.end(), "an object")};
    }

    /// Reads the members of the object `v` by `members`, as ReadRest() does.
    template <size_t N, typename Read>
    void Object(value& v, const MemberSet<N>& members, Read&& read)
    {
        Rest rest = Open(v);
        ReadRest(rest, members, read);
    }

    /// For an object whose class is named by its first member `tag`: reads that member's text
    /// and calls `choose(text, rest)`, which reads the other members with ReadRest().
    template <typename Choose>
    void Polymorphic(value& v, std::string_view tag, Choose&& choose)
    {
        Rest rest = Open(v);
        const std::string text = Tag(rest, tag);
        choose(std::string_view(text), rest);
    }

    /// The text of the first of `rest`'s members, which must be named `tag`.
    std::string Tag(Rest& rest, std::string_view tag)
    {
        const PathSegment segment(path, tag);
        std::string text;
        First(rest, tag, [&](value& v) { text = String(v); });
        ++rest.it;
        return text;
    }

    /// Reads the remaining members by `members`, calling `read(index, value)` for each with the
    /// path extended by the member's name. Refuses unknown and repeated members and reports the
    /// first missing one.
    template <size_t N, typename Read>
    void ReadRest(Rest& rest, const MemberSet<N>& members, Read&& read)
    {
        uint64_t seen = 0;
        size_t next = 0;
        for (; rest.it != rest.end; ++rest.it) {
            auto result = *rest.it;
            simdjson::ondemand::field& field = Checked(result, "a member");
            // Members come in the order written, so the one after the last is tried first.
            const size_t index = next < N && members.keys[next].Matches(field.key().raw())
                ? next
                : Find(field, members.names.data(), members.keys.data(), N);
            const uint64_t bit = uint64_t{1} << index;
            if ((seen & bit) != 0)
                Duplicate(members.names[index]);
            seen |= bit;
            next = index + 1;
            const PathSegment segment(path, members.names[index]);
            read(index, field.value());
        }
        const uint64_t all = N == 64 ? ~uint64_t{0} : (uint64_t{1} << N) - 1;
        const uint64_t missing = all & ~members.optional & ~seen;
        if (missing != 0)
            Missing(members.names[static_cast<size_t>(__builtin_ctzll(missing))]);
    }

    /// Calls `read(element)` for each element of the array `v`, with the path extended by its
    /// index.
    template <typename Read>
    void Array(value& v, Read&& read)
    {
        auto array = Take(v.get_array(), "an array", &v);
        size_t index = 0;
        for (auto element : array) {
            const PathSegment segment(path, index++);
            read(Checked(element, "an array element"));
        }
    }

    /// Calls `read(name, value)` for each member of the object `v`, whatever its name, with the
    /// path extended by the name.
    template <typename Read>
    void Dictionary(value& v, Read&& read)
    {
        auto object = Take(v.get_object(), "an object", &v);
        for (auto member : object) {
            simdjson::ondemand::field& field = Checked(member, "a member");
            const std::string name(Take(field.unescaped_key(), "a member name"));
            const PathSegment segment(path, name);
            read(name, field.value());
        }
    }

    int64_t Int64(value& v) { return Take(v.get_int64(), "an integer", &v); }
    int32_t Int32(value& v)
    {
        const int64_t number = Int64(v);
        if (number < std::numeric_limits<int32_t>::min() || number > std::numeric_limits<int32_t>::max())
            OutOfInt32(number);
        return static_cast<int32_t>(number);
    }
    bool Bool(value& v) { return Take(v.get_bool(), "true or false", &v); }
    /// Valid until the next string is read.
    std::string_view String(value& v) { return Take(v.get_string(), "a string", &v); }
    std::string Text(value& v) { return std::string(String(v)); }
    /// The text of the object `v` exactly as the document holds it.
    std::string_view RawObject(value& v);
    bool IsString(value& v);

    /// Converts the text of `v` with `convert`, refusing a text it does not know.
    template <typename E>
    E Enumeration(value& v, E (*convert)(const std::string&, bool&), std::string_view name)
    {
        const std::string_view text = String(v);
        E result{};
        if (!ConvertText(text, convert, result))
            Fail("expected a " + std::string(name) + " text, found \"" + std::string(text) + "\"");
        return result;
    }

    /// Remembers `object` as written at the current path, for JSON pointers met later.
    template <typename T>
    void Register(const std::shared_ptr<T>& object)
    {
        workspace->places.Add(path, typeid(T), object);
    }
    /// The object of class T written at the JSON pointer that `v` holds; refuses a pointer to
    /// anything else, described to the reader as `what`.
    template <typename T>
    std::shared_ptr<T> Referenced(value& v, std::string_view what)
    {
        const std::string_view pointer = String(v);
        const SharedPlaces::Entry* const found = workspace->places.Find(pointer);
        if (found == nullptr || *found->type != typeid(T))
            Fail("expected a JSON pointer to " + std::string(what) + " written earlier in the document, found \""
                 + std::string(pointer) + "\"");
        return std::static_pointer_cast<T>(found->object);
    }

    [[noreturn]] void Fail(const std::string& expected) const;
    /// Refuses the text `found` of the tag member `tag` (a "type" or "kind"), which is none of
    /// `alternatives` (as Alternatives() lists them).
    [[noreturn]] void FailTag(std::string_view tag, const std::string& alternatives, std::string_view found);

    Path& CurrentPath() { return path; }

    /// The value of `result`, a scalar or an iterator; otherwise fails with what was `expected`
    /// and, for a value of another type, with what `v` holds.
    template <typename T>
    T Take(simdjson::simdjson_result<T>&& result, std::string_view expected, value* v = nullptr)
    {
        if (result.error() != simdjson::SUCCESS)
            Fail(result.error(), expected, v);
        return std::move(result).value_unsafe();
    }

    /// The value that `result` holds, in place. A value of simdjson is written part by part and
    /// then read whole when it is copied, which stalls the processor until the parts are stored;
    /// the readers therefore pass values by reference, from where simdjson put them.
    template <typename T>
    T& Checked(simdjson::simdjson_result<T>& result, std::string_view expected)
    {
        if (result.error() != simdjson::SUCCESS)
            Fail(result.error(), expected, nullptr);
        return result.value_unsafe();
    }

private:
    [[noreturn]] void Fail(simdjson::error_code error, std::string_view expected, value* v) const;
    [[noreturn]] void OutOfInt32(int64_t number) const;
    /// The index among the `count` names at `kinds` of the name in the "schema" object `v`.
    size_t CheckSchema(value& v, const std::string_view* kinds, size_t count);
    /// The members of the top-level object.
    Rest OpenRoot();
    /// Calls `read(value)` with the value of the first member of `rest`, which must be named
    /// `name`; the caller moves past it.
    template <typename Read>
    void First(Rest& rest, std::string_view name, Read&& read)
    {
        if (!(rest.it != rest.end))
            NotFirst(name, "an empty object");
        auto result = *rest.it;
        simdjson::ondemand::field& field = Checked(result, "a member");
        const std::string_view key = Take(field.unescaped_key(), "a member name");
        if (key != name)
            NotFirst(name, "\"" + std::string(key) + "\"");
        read(field.value());
    }
    /// Refuses an object whose first member is not `name`, describing what it has as `found`.
    [[noreturn]] void NotFirst(std::string_view name, const std::string& found) const;
    /// The index among `names` (whose keys are `keys`) of the member `field`; refuses a name that
    /// is not among them.
    size_t Find(simdjson::ondemand::field& field, const std::string_view* names, const MemberKey* keys, size_t count);
    [[noreturn]] void Unexpected(std::string_view key);
    /// Refuses the member `key` of the current object as met a second time.
    [[noreturn]] void Duplicate(std::string_view key);
    [[noreturn]] void Missing(std::string_view key) const;

    LentWorkspace workspace;
    simdjson::ondemand::document document;
    Path path;
};

}  // namespace Orvik::DataModel::MediaAssets::Json::detail
