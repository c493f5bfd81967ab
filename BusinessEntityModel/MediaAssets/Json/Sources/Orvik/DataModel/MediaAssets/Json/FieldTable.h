#pragma once

// One table of fields per class of the model: for each member of the class's JSON object, in
// document order, its name, how it is written and how it is read. The writer, the reader and the
// key matching all walk the same table, so a member is named once and is read by the entry that
// writes it. Members that several classes share (those of every essence, those of both operator
// profiles) are a list of their own, put in front of each class's own fields.
//
// A table is a tuple of fields, each holding its own lambdas, so that walking it is unrolled
// while compiling: a field's writer and reader are inlined where the walk reaches them, as a
// hand-written codec would be, and the reader picks a member's entry by its index.

#include "Reader.h"
#include "Writer.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>
#include <tuple>
#include <type_traits>
#include <utility>
#include <vector>

namespace Orvik::DataModel::MediaAssets::Json::detail {

/// One member: `write(w, object)` writes its value, `read(r, v, object)` reads it (into the
/// object itself, or into the parts an object is built from once all its members are read). A
/// member that may be absent has `isPresent(object)`, telling whether the object has it.
template <typename Write, typename Read, typename IsPresent = std::nullptr_t>
struct Field {
    std::string_view name;
    Write write;
    Read read;
    IsPresent isPresent = nullptr;

    constexpr Field(std::string_view name, Write write, Read read, IsPresent isPresent = nullptr)
        : name(name), write(write), read(read), isPresent(isPresent)
    {}
    static constexpr bool kOptional = !std::is_same_v<IsPresent, std::nullptr_t>;
};

/// A list of fields, in document order.
template <typename... F>
constexpr std::tuple<F...> Fields(F... fields)
{
    return {fields...};
}

template <typename... F>
struct FieldTable {
    std::tuple<F...> fields;
    MemberSet<sizeof...(F)> members;
};

namespace table_detail {

template <typename... F>
constexpr FieldTable<F...> Build(const std::tuple<F...>& fields)
{
    return std::apply(
        [&](const F&... field) {
            uint64_t optional = 0;
            size_t index = 0;
            ((optional |= F::kOptional ? uint64_t{1} << index : 0, ++index), ...);
            return FieldTable<F...>{fields, MemberSet<sizeof...(F)>({field.name...}, optional)};
        },
        fields);
}

template <typename Field, typename Out>
void WriteField(Writer& w, const Field& field, const Out& object)
{
    if constexpr (Field::kOptional) {
        if (!field.isPresent(object))
            return;
    }
    w.CurrentPath().Rename(field.name);
    w.Key(field.name);
    field.write(w, object);
}

template <size_t I = 0, typename Tuple, typename In>
void ReadField(const Tuple& fields, size_t index, Reader& r, value& v, In& object)
{
    if constexpr (I < std::tuple_size_v<Tuple>) {
        if (index == I)
            std::get<I>(fields).read(r, v, object);
        else
            ReadField<I + 1>(fields, index, r, v, object);
    }
}

}  // namespace table_detail

/// The table of the lists of fields `parts`, one after another.
template <typename... Parts>
constexpr auto MakeTable(const Parts&... parts)
{
    return table_detail::Build(std::tuple_cat(parts...));
}

/// The member names of `table`, in order.
template <typename... F>
std::vector<std::string_view> NamesOf(const FieldTable<F...>& table)
{
    return {table.members.names.begin(), table.members.names.end()};
}

/// Writes the members of `object` by `table`, each with the path extended by its name.
template <typename Out, typename... F>
void WriteFields(Writer& w, const FieldTable<F...>& table, const Out& object)
{
    const PathSegment segment(w.CurrentPath(), std::string_view());
    std::apply([&](const F&... field) { (table_detail::WriteField(w, field, object), ...); }, table.fields);
}

/// Writes `object` as a JSON object by `table`.
template <typename Out, typename... F>
void WriteObject(Writer& w, const FieldTable<F...>& table, const Out& object)
{
    w.StartObject();
    WriteFields(w, table, object);
    w.EndObject();
}

/// Writes `object` as a JSON object whose first member `tag` ("type" or "kind") names its class
/// as `kind`, then its members by `table`.
template <typename Out, typename... F>
void WriteTagged(Writer& w, std::string_view tag, std::string_view kind, const FieldTable<F...>& table, const Out& object)
{
    w.StartObject();
    w.Key(tag);
    w.String(kind);
    WriteFields(w, table, object);
    w.EndObject();
}

/// Reads the remaining members of an object into `object` by `table` (see Reader::ReadRest).
template <typename In, typename... F>
void ReadFields(Reader& r, Reader::Rest& rest, const FieldTable<F...>& table, In& object)
{
    r.ReadRest(rest, table.members,
               [&](size_t index, value& v) { table_detail::ReadField(table.fields, index, r, v, object); });
}

/// Reads the object `v` into `object` by `table`.
template <typename In, typename... F>
void ReadObject(Reader& r, value& v, const FieldTable<F...>& table, In& object)
{
    Reader::Rest rest = r.Open(v);
    ReadFields(r, rest, table, object);
}

/// Reads the remaining members of an object into the new object that `made` points to, by
/// `table`, and returns it.
template <typename Made, typename... F>
Made ReadInto(Reader& r, Reader::Rest& rest, const FieldTable<F...>& table, Made made)
{
    ReadFields(r, rest, table, *made);
    return made;
}

}  // namespace Orvik::DataModel::MediaAssets::Json::detail
