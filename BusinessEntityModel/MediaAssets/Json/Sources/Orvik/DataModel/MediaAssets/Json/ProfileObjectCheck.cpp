#include "ProfileObjectCheck.h"

#include <rapidjson/memorystream.h>
#include <rapidjson/reader.h>

namespace Orvik::DataModel::MediaAssets::Json::detail {

namespace {

constexpr int kMaxProfileDepth = 100;

// Accepts one JSON object nested at most kMaxProfileDepth deep, with nothing after it.
class ObjectCheck : public rapidjson::BaseReaderHandler<rapidjson::UTF8<>, ObjectCheck> {
public:
    bool StartObject() { return Enter(); }
    bool EndObject(rapidjson::SizeType) { return Leave(); }
    bool StartArray() { return Enter(); }
    bool EndArray(rapidjson::SizeType) { return Leave(); }
    bool Default() { return depth > 0; }
    bool tooDeep = false;

private:
    bool Enter()
    {
        tooDeep = ++depth > kMaxProfileDepth;
        return !tooDeep;
    }
    bool Leave()
    {
        --depth;
        return true;
    }
    int depth = 0;
};

}  // namespace

std::string CheckProfileObject(std::string_view json)
{
    ObjectCheck check;
    rapidjson::MemoryStream stream(json.data(), json.size());
    rapidjson::Reader reader;
    if (!json.empty() && json.front() != '{')
        return "expected a JSON object";
    if (reader.Parse<rapidjson::kParseIterativeFlag | rapidjson::kParseStopWhenDoneFlag>(stream, check).IsError()) {
        if (check.tooDeep)
            return "expected a JSON object nested at most " + std::to_string(kMaxProfileDepth) + " levels deep";
        return "expected a JSON object, found malformed JSON";
    }
    if (stream.Tell() != json.size())
        return "expected one JSON object, found more text";
    return {};
}

}  // namespace Orvik::DataModel::MediaAssets::Json::detail
