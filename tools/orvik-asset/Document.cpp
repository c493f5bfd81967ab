#include "Document.h"

#include "ShowTree.h"
#include "Validation.h"

#include <Orvik/DataModel/MediaAssets/FirstDifference.h>
#include <Orvik/DataModel/MediaAssets/Json.h>

#include <type_traits>
#include <utility>

namespace Orvik::AssetTool {

using namespace DataModel::MediaAssets;

namespace {

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
    Json::AnyDocument read = Json::FromAnyJson(text);
    if (auto* asset = std::get_if<MediaAsset>(&read))
        return Document(std::move(*asset));
    if (auto* group = std::get_if<GroupPointer>(&read))
        return Document(std::move(*group));
    throw DocumentError("expected the schema \"" + std::string(Json::SchemaNameOf<MediaAsset>()) + "\" or \""
                        + std::string(Json::SchemaNameOf<GroupPointer>()) + "\", found \""
                        + std::string(Json::SchemaNameOf(read)) + "\"");
}

bool Document::IsGroup() const { return std::holds_alternative<GroupPointer>(content); }

std::string_view Document::SchemaName() const
{
    return std::visit([](const auto& held) { return Json::SchemaNameOf<std::decay_t<decltype(held)>>(); }, content);
}

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
