// The OpenTimelineIO form of assets: to_otio and from_otio, beside the JSON form whose layout and
// error class they use.

#include "Aliases.h"

#include <Orvik/DataModel/MediaAssets/Json/Otio.h>

#include <pybind11/pybind11.h>

#include <string_view>

namespace Orvik::Python {

void BindOtio(py::module_& module)
{
    module.def(
        "to_otio", [](const MA::MediaAsset& asset, MA::Json::Layout layout) { return MA::Json::ToOtio(asset, layout); },
        py::arg("asset"), py::arg("layout") = MA::Json::Layout::Indented,
        "The asset as an OpenTimelineIO timeline (.otio): one track per asset track, each with one clip trimmed to "
        "the asset's in and out points in whole frames, the asset's own document in the timeline's metadata. "
        "JsonError when the asset cannot be written.");
    module.def(
        "from_otio", [](std::string_view document) { return MA::Json::FromOtio(document); }, py::arg("document"),
        "The asset of a timeline that to_otio wrote, with an editor's changes to its name, in and out points and "
        "markers taken from the timeline. JsonError (a ValueError) with `path` when it cannot be read, or when the "
        "timeline was not written from an asset.");
}

}  // namespace Orvik::Python
