#include "Writer.h"

#include <Orvik/DataModel/MediaAssets/Json/JsonError.h>
#include <Orvik/DataModel/MediaAssets/Json/Members.h>
#include <Orvik/DataModel/MediaAssets/Json/SchemaName.h>

#include <rapidjson/prettywriter.h>
#include <rapidjson/reader.h>

namespace Orvik::DataModel::MediaAssets::Json::detail {

namespace {

constexpr char kNotUtf8[] = "expected text in UTF-8, found invalid bytes";

}  // namespace

Writer::Writer(std::string_view schemaName) : buffer(nullptr, 64 * 1024), json(buffer), schemaName(schemaName) {}

void Writer::StartObject()
{
    json.StartObject();
    if (schemaWritten)
        return;
    schemaWritten = true;
    json.Plain(Members::kSchema);
    json.StartObject();
    json.Plain(Members::kName);
    json.Plain(schemaName);
    json.Plain(Members::kVersion);
    json.Int(kSchemaVersion);
    json.EndObject();
}

void Writer::CheckedKey(std::string_view name)
{
    if (!json.Text(name)) {
        const PathSegment segment(path, name);
        Fail(kNotUtf8);
    }
}

void Writer::String(std::string_view text)
{
    if (!json.Text(text))
        Fail(kNotUtf8);
}

void Writer::Raw(std::string_view jsonText) { json.RawValue(jsonText.data(), jsonText.size(), rapidjson::kObjectType); }

const std::string* Writer::PlaceOf(const void* object) const
{
    const auto found = written.find(object);
    return found == written.end() ? nullptr : &found->second;
}

void Writer::Fail(const std::string& expected) const { throw JsonError(path.ToString(), expected); }

std::string Writer::Finish(Layout layout) const
{
    if (layout == Layout::Compact)
        return std::string(buffer.GetString(), buffer.GetSize());
    // The indented form is the compact one read again and written by the pretty writer, so both
    // forms hold the same members in the same order.
    rapidjson::StringBuffer indented;
    rapidjson::PrettyWriter<rapidjson::StringBuffer> pretty(indented);
    pretty.SetIndent(' ', 2);
    rapidjson::StringStream compact(buffer.GetString());
    rapidjson::Reader reader;
    reader.Parse<rapidjson::kParseIterativeFlag | rapidjson::kParseFullPrecisionFlag>(compact, pretty);
    return std::string(indented.GetString(), indented.GetSize());
}

}  // namespace Orvik::DataModel::MediaAssets::Json::detail
