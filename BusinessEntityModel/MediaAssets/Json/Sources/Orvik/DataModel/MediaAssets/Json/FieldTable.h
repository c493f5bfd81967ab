#pragma once

// One table of fields per class of the model: for each member of the class's JSON object, in
// document order, its name, how it is written and how it is read. The writer, the reader and the
// key matching all walk the same table, so a member is named once and is read by the entry that
// writes it. Members that several classes share (those of every essence, those of both operator
// profiles) are a table of their own, put in front of each class's own fields.

#include "Reader.h"
#include "Writer.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>

namespace Orvik::DataModel::MediaAssets::Json::detail {

/// One member: written from a `const Out&`, read into an `In&` (the object itself, or the parts
/// an object is built from once all its members are read).
template <typename Out, typename In = Out>
struct Field {
    std::string_view name;
    void (*write)(Writer& w, const Out& object) = nullptr;
    void (*read)(Reader& r, value v, In& object) = nullptr;
    /// Set for a member that may be absent: whether `object` has it.
    bool (*isPresent)(const Out& object) = nullptr;
};

template <size_t N, typename Out, typename In = Out>
using Fields = std::array<Field<Out, In>, N>;

template <typename Out, typename In, size_t N>
struct FieldTable {
    Fields<N, Out, In> fields;
    MemberSet<N> members;
};

namespace table_detail {

template <typename Out, typename In, size_t N>
constexpr MemberSet<N> MembersOf(const Fields<N, Out, In>& fields)
{
    std::array<std::string_view, N> names{};
    uint64_t optional = 0;
    for (size_t index = 0; index < N; ++index) {
        names[index] = fields[index].name;
        if (fields[index].isPresent != nullptr)
            optional |= uint64_t{1} << index;
    }
    return MemberSet<N>(names, optional);
}

}  // namespace table_detail

/// The table of the fields `parts`, one after another.
template <typename Out, typename In, size_t... Sizes>
constexpr FieldTable<Out, In, (Sizes + ...)> MakeTable(const Fields<Sizes, Out, In>&... parts)
{
    Fields<(Sizes + ...), Out, In> fields{};
    size_t at = 0;
    (
        [&](const auto& part) {
            for (const auto& field : part)
                fields[at++] = field;
        }(parts),
        ...);
    return {fields, table_detail::MembersOf(fields)};
}

/// Writes the members of `object` by `table`, each with the path extended by its name.
template <typename Out, typename In, size_t N>
void WriteFields(Writer& w, const FieldTable<Out, In, N>& table, const Out& object)
{
    const PathSegment segment(w.CurrentPath(), std::string_view());
    for (const auto& field : table.fields) {
        if (field.isPresent != nullptr && !field.isPresent(object))
            continue;
        w.CurrentPath().Rename(field.name);
        w.Key(field.name);
        field.write(w, object);
    }
}

/// Writes `object` as a JSON object by `table`.
template <typename Out, typename In, size_t N>
void WriteObject(Writer& w, const FieldTable<Out, In, N>& table, const Out& object)
{
    w.StartObject();
    WriteFields(w, table, object);
    w.EndObject();
}

/// Writes `object` as a JSON object whose first member `tag` ("type" or "kind") names its class
/// as `kind`, then its members by `table`.
template <typename Out, typename In, size_t N>
void WriteTagged(Writer& w, std::string_view tag, std::string_view kind, const FieldTable<Out, In, N>& table,
                 const Out& object)
{
    w.StartObject();
    w.Key(tag);
    w.String(kind);
    WriteFields(w, table, object);
    w.EndObject();
}

/// Reads the remaining members of an object into `object` by `table` (see Reader::ReadRest).
template <typename Out, typename In, size_t N>
void ReadFields(Reader& r, Reader::Rest& rest, const FieldTable<Out, In, N>& table, In& object)
{
    r.ReadRest(rest, table.members, [&](size_t index, value v) { table.fields[index].read(r, v, object); });
}

/// Reads the object `v` into `object` by `table`.
template <typename Out, typename In, size_t N>
void ReadObject(Reader& r, value v, const FieldTable<Out, In, N>& table, In& object)
{
    Reader::Rest rest = r.Open(v);
    ReadFields(r, rest, table, object);
}

/// Reads the remaining members of an object into the new object that `made` points to, by
/// `table`, and returns it.
template <typename Made, typename Out, typename In, size_t N>
Made ReadInto(Reader& r, Reader::Rest& rest, const FieldTable<Out, In, N>& table, Made made)
{
    ReadFields(r, rest, table, *made);
    return made;
}

}  // namespace Orvik::DataModel::MediaAssets::Json::detail
