#include "Reader.h"

#include <Orvik/DataModel/MediaAssets/Json/JsonError.h>
#include <Orvik/DataModel/MediaAssets/Json/SchemaName.h>

#include <Orvik/DataModel/MediaAssets/Json/Members.h>

#include <algorithm>
#include <cstring>
#include <new>

namespace Orvik::DataModel::MediaAssets::Json::detail {

namespace {

// The workspace is kept between documents of one thread; a document read while another is being
// read on the same thread (a profile codec that reads a document) gets a workspace of its own.
std::unique_ptr<Reader::Workspace>& SpareWorkspace()
{
    thread_local std::unique_ptr<Reader::Workspace> spare;
    return spare;
}

Reader::LentWorkspace TakeWorkspace()
{
    if (auto& spare = SpareWorkspace())
        return Reader::LentWorkspace(spare.release());
    return Reader::LentWorkspace(new Reader::Workspace());
}

// What the document holds where something else was expected: the number itself, or its kind.
std::string Found(value& v)
{
    simdjson::ondemand::json_type type{};
    if (v.type().get(type) != simdjson::SUCCESS)
        return "malformed JSON";
    switch (type) {
    case simdjson::ondemand::json_type::array:
        return "an array";
    case simdjson::ondemand::json_type::object:
        return "an object";
    case simdjson::ondemand::json_type::number: {
        const std::string_view token = v.raw_json_token();
        return std::string(token.substr(0, token.find_last_not_of(" \t\n\r") + 1));
    }
    case simdjson::ondemand::json_type::string:
        return "a string";
    case simdjson::ondemand::json_type::boolean:
        return "true or false";
    case simdjson::ondemand::json_type::null:
        return "null";
    }
    return "malformed JSON";
}

}  // namespace

std::string Malformed(simdjson::error_code error)
{
    switch (error) {
    case simdjson::UTF8_ERROR:
        return "malformed JSON (text that is not UTF-8)";
    case simdjson::UNCLOSED_STRING:
        return "malformed JSON (a string without its closing quote)";
    case simdjson::STRING_ERROR:
    case simdjson::UNESCAPED_CHARS:
        return "malformed JSON (a string with a control character or a bad escape)";
    case simdjson::NUMBER_ERROR:
        return "malformed JSON (a malformed number)";
    case simdjson::T_ATOM_ERROR:
    case simdjson::F_ATOM_ERROR:
    case simdjson::N_ATOM_ERROR:
        return "malformed JSON (a word that is not true, false or null)";
    case simdjson::EMPTY:
        return "malformed JSON (no value)";
    case simdjson::TAPE_ERROR:
    case simdjson::INCOMPLETE_ARRAY_OR_OBJECT:
        return "malformed JSON (a missing or superfluous comma, colon, brace or bracket)";
    case simdjson::CAPACITY:
        return "a document larger than 4 GiB";
    default:
        return "malformed JSON";
    }
}

std::string Alternatives(const std::string_view* names, size_t count)
{
    std::string text;
    for (size_t index = 0; index < count; ++index) {
        if (index > 0)
            text += index + 1 == count ? " or " : ", ";
        text += '"';
        text += names[index];
        text += '"';
    }
    return text;
}

Reader::Reader(std::string_view document) : workspace(TakeWorkspace())
{
    const size_t capacity = document.size() + simdjson::SIMDJSON_PADDING;
    if (workspace->capacity < capacity) {
        workspace->text.reset(new char[capacity]);
        workspace->capacity = capacity;
    }
    char* const text = workspace->text.get();
    if (!document.empty())
        std::memcpy(text, document.data(), document.size());
    std::memset(text + document.size(), 0, simdjson::SIMDJSON_PADDING);
    this->document =
        Take(workspace->parser.iterate(simdjson::padded_string_view(text, document.size(), capacity)), "a JSON document");
}

Reader::~Reader() = default;

void Reader::GiveBack::operator()(Workspace* workspace) const noexcept
{
    workspace->places.Clear();
    if (SpareWorkspace())
        delete workspace;
    else
        SpareWorkspace().reset(workspace);
}

std::string_view Reader::RawObject(value& v)
{
    auto object = Take(v.get_object(), "an object", &v);
    std::string_view raw = Take(object.raw_json(), "an object");
    // The parser's text runs on to the next token; the whitespace before it is not the object's.
    const size_t end = raw.find_last_not_of(" \t\n\r");
    return raw.substr(0, end == std::string_view::npos ? 0 : end + 1);
}

bool Reader::IsString(value& v) { return Take(v.type(), "a JSON value") == simdjson::ondemand::json_type::string; }

namespace {
constexpr MemberSet<2> kSchemaMembers({Members::kName, Members::kVersion});
}  // namespace

std::string Reader::SchemaName()
{
    Rest rest = OpenRoot();
    std::string name;
    First(rest, Members::kSchema, [&](value& schema) {
        const PathSegment segment(path, Members::kSchema);
        Object(schema, kSchemaMembers, [&](size_t index, value& member) {
            if (index == 0)
                name = Text(member);
            else
                Int64(member);
        });
    });
    return name;
}

Reader::Rest Reader::OpenRoot()
{
    value root = Take(document.get_value(), "a JSON value");
    return Open(root);
}

size_t Reader::CheckSchema(value& v, const std::string_view* kinds, size_t count)
{
    const PathSegment segment(path, Members::kSchema);
    size_t kind = 0;
    Object(v, kSchemaMembers, [&](size_t index, value& member) {
        if (index == 0) {
            const std::string_view name = String(member);
            kind = static_cast<size_t>(std::find(kinds, kinds + count, name) - kinds);
            if (kind == count)
                Fail("expected " + Alternatives(kinds, count) + ", found \"" + std::string(name) + "\"");
        } else {
            const int64_t version = Int64(member);
            if (version != kSchemaVersion)
                Fail("expected version " + std::to_string(kSchemaVersion) + ", found " + std::to_string(version));
        }
    });
    return kind;
}

void Reader::NotFirst(std::string_view name, const std::string& found) const
{
    Fail("expected member \"" + std::string(name) + "\" first, found " + found);
}

size_t Reader::Find(simdjson::ondemand::field& field, const std::string_view* names, const MemberKey* keys, size_t count)
{
    // Only a key that matches no name as written (a name written with escapes, or an unknown one)
    // is unescaped.
    const char* const raw = field.key().raw();
    for (size_t index = 0; index < count; ++index)
        if (keys[index].Matches(raw))
            return index;
    const std::string_view key = Take(field.unescaped_key(), "a member name");
    for (size_t index = 0; index < count; ++index)
        if (names[index] == key)
            return index;
    Unexpected(key);
}

void Reader::Fail(const std::string& expected) const { throw JsonError(path.ToString(), expected); }

void Reader::FailTag(std::string_view tag, const std::string& alternatives, std::string_view found)
{
    const PathSegment segment(path, tag);
    Fail("expected " + alternatives + ", found \"" + std::string(found) + "\"");
}

void Reader::Fail(simdjson::error_code error, std::string_view expected, value* v) const
{
    if (error == simdjson::MEMALLOC)
        throw std::bad_alloc();
    std::string message = "expected " + std::string(expected) + ", found ";
    if ((error == simdjson::INCORRECT_TYPE || error == simdjson::NUMBER_OUT_OF_RANGE) && v != nullptr)
        message += Found(*v);
    else if (error == simdjson::DEPTH_ERROR)
        message += "nesting deeper than " + std::to_string(simdjson::DEFAULT_MAX_DEPTH) + " levels";
    else
        message += Malformed(error);
    Fail(message);
}

void Reader::OutOfInt32(int64_t number) const
{
    Fail("expected an integer from -2147483648 to 2147483647, found " + std::to_string(number));
}

void Reader::Unexpected(std::string_view key)
{
    const PathSegment segment(path, key);
    Fail("expected no member of this name");
}

void Reader::Duplicate(std::string_view key)
{
    const PathSegment segment(path, key);
    Fail("expected one member of this name, found a second");
}

void Reader::Missing(std::string_view key) const { Fail("expected member \"" + std::string(key) + "\""); }

}  // namespace Orvik::DataModel::MediaAssets::Json::detail
