// What `orvik-asset show` prints, from the tool's own code: the same tree for the same document.

#include "Aliases.h"

#include <Document.h>
#include <TreePrinter.h>

#include <Orvik/DataModel/MediaAssets/MediaAsset.h>
#include <Orvik/DataModel/MediaAssets/MediaAssetGroup.h>

#include <pybind11/pybind11.h>

#include <memory>
#include <sstream>
#include <string>
#include <string_view>

namespace Orvik::Python {
namespace {

using AssetTool::Document;

/// The tree of `document` as the tool prints it without colour.
std::string TreeText(const Document& document)
{
    std::ostringstream text;
    AssetTool::PrintTree(text, document.Tree(), false);
    return text.str();
}

}  // namespace

void BindTool(py::module_& module)
{
    module.def(
        "tree_text",
        [](std::string_view document) {
            try {
                return TreeText(Document::Read(document));
            } catch (const AssetTool::DocumentError& error) {
                throw py::value_error(error.what());
            }
        },
        py::arg("document"),
        "The tree that `orvik-asset show` prints (without colour) for the asset or group in a JSON document. "
        "JsonError when the document cannot be read, ValueError when it holds another kind of object.");
    module.def(
        "tree_text", [](const MA::MediaAsset& asset) { return TreeText(Document(asset)); }, py::arg("asset"),
        "The tree that `orvik-asset show` prints for the asset.");
    module.def(
        "tree_text", [](const std::shared_ptr<MA::MediaAssetGroup>& group) { return TreeText(Document(group)); },
        py::arg("group").none(false), "The tree that `orvik-asset show` prints for the group.");
}

}  // namespace Orvik::Python
