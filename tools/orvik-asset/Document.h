#pragma once

#include "DocumentError.h"
#include "Problem.h"
#include "TreeNode.h"

#include <Orvik/DataModel/MediaAssets/Difference.h>
#include <Orvik/DataModel/MediaAssets/MediaAsset.h>
#include <Orvik/DataModel/MediaAssets/MediaAssetGroup.h>

#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace Orvik::AssetTool {

/// What the tool works on: an asset or a group read from its JSON document (the schema name of
/// the document tells which), or built in memory.
class Document {
public:
    explicit Document(DataModel::MediaAssets::MediaAsset asset);
    explicit Document(std::shared_ptr<DataModel::MediaAssets::MediaAssetGroup> group);

    /// The asset or group that `text` holds. Throws DataModel::MediaAssets::Json::JsonError for
    /// a document that cannot be read (the message names the JSON pointer of the offending
    /// value), and DocumentError for a readable document of another kind (a stream alone, say).
    static Document Read(std::string_view text);

    bool IsGroup() const;

    /// "MediaAsset" or "MediaAssetGroup", as the document's schema names it.
    std::string_view SchemaName() const;

    /// The canonical document: indented JSON, ending with a newline.
    std::string Json() const;

    /// The tree that `orvik-asset show` prints.
    TreeNode Tree() const;

    /// What breaks the model's rules (see Validate()).
    std::vector<Problem> Problems() const;

    /// The first field in which `other` differs from this document, which must be of the same
    /// kind (std::invalid_argument otherwise).
    std::optional<DataModel::MediaAssets::Difference> FirstDifference(const Document& other) const;

private:
    std::variant<DataModel::MediaAssets::MediaAsset, std::shared_ptr<DataModel::MediaAssets::MediaAssetGroup>> content;
};

}  // namespace Orvik::AssetTool
