#include "Document.h"

#include "ShowTree.h"
#include "Validation.h"

#include <Orvik/DataModel/MediaAssets/FirstDifference.h>
#include <Orvik/DataModel/MediaAssets/Json.h>

#include <utility>

namespace Orvik::AssetTool {

using namespace DataModel::MediaAssets;

namespace {

constexpr char kAssetSchema[] = "MediaAsset";
constexpr char kGroupSchema[] = "MediaAssetGroup";

using GroupPointer = std::shared_ptr<MediaAssetGroup>;

// Makes std::visit call the lambda that fits the alternative.
template <typename... Callables>
struct Overloaded : Callables... {
    using Callables::operator()...;
};
template <typename... Callables>
Overloaded(Callables...) -> Overloaded<Callables...>;

}  // namespace

Document::Document(MediaAsset asset) : content(std::move(asset)) {}

Document::Document(GroupPointer group) : content(std::move(group)) {}

Document Document::Read(std::string_view text)
{
    const std::string schema = Json::SchemaName(text);
    if (schema == kAssetSchema)
        return Document(Json::FromJson<MediaAsset>(text));
    if (schema == kGroupSchema)
        return Document(Json::FromJson<GroupPointer>(text));
    throw DocumentError("expected the schema \"" + std::string(kAssetSchema) + "\" or \"" + kGroupSchema + "\", found \""
                        + schema + "\"");
}

bool Document::IsGroup() const { return std::holds_alternative<GroupPointer>(content); }

const char* Document::SchemaName() const { return IsGroup() ? kGroupSchema : kAssetSchema; }

std::string Document::Json() const
{
    return std::visit(Overloaded{[](const MediaAsset& asset) { return Json::ToJson(asset, Json::Layout::Indented); },
                                 [](const GroupPointer& group) { return Json::ToJson(*group, Json::Layout::Indented); }},
                      content)
        + "\n";
}

TreeNode Document::Tree() const
{
    return std::visit(Overloaded{[](const MediaAsset& asset) { return AssetTree(asset); },
                                 [](const GroupPointer& group) { return GroupTree(*group); }},
                      content);
}

std::vector<Problem> Document::Problems() const
{
    return std::visit(Overloaded{[](const MediaAsset& asset) { return Validate(asset); },
                                 [](const GroupPointer& group) { return Validate(*group); }},
                      content);
}

std::optional<Difference> Document::FirstDifference(const Document& other) const
{
    if (content.index() != other.content.index())
        throw std::invalid_argument("Orvik::AssetTool::Document::FirstDifference: documents of different kinds");
    if (const auto* asset = std::get_if<MediaAsset>(&content))
        return DataModel::MediaAssets::FirstDifference(*asset, std::get<MediaAsset>(other.content));
    return DataModel::MediaAssets::FirstDifference(*std::get<GroupPointer>(content), *std::get<GroupPointer>(other.content));
}

}  // namespace Orvik::AssetTool
