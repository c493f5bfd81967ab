// Asset groups and their items.

#include "Bindings.h"
#include "CommonMembers.h"
#include "Containers.h"
#include "Properties.h"
#include "References.h"
#include "Repr.h"
#include "TextCasters.h"

#include <Orvik/DataModel/MediaAssets.h>

#include <pybind11/stl.h>

#include <stdexcept>

namespace Orvik::Python {
namespace {

using namespace MA;

/// `lookUp()` for the asset `assetId`; when the group has no item for it, the library's error
/// becomes KeyError with the same text.
template <typename LookUp>
auto ByAsset(const MediaAssetGroup& group, const MediaAssetGroupId& assetId, LookUp lookUp)
{
    if (group.HasAsset(assetId))
        return lookUp();
    try {
        return lookUp();
    } catch (const std::runtime_error& error) {
        throw py::key_error(error.what());
    }
}

}  // namespace

void BindGroups(py::module_& module)
{
    py::class_<MediaAssetGroupItem, std::shared_ptr<MediaAssetGroupItem>> item(
        module, "MediaAssetGroupItem",
        "A member of a media asset group: a reference to one asset. Equal when the asset ids are; an angles item on "
        "the right of == is compared by asset id only, deliberately.");
    item.def(py::init<>())
        .def(py::init<const MediaAssetReference&>(), py::arg("asset"))
        .ORVIK_PROPERTY(MediaAssetGroupItem, "media_asset", MediaAsset)
        .def("__copy__",
             [](const MediaAssetGroupItem& self) {
                 auto copy = std::make_shared<MediaAssetGroupItem>(self.MediaAsset());
                 copy->ObjectId(self.ObjectId());
                 return copy;
             })
        .def("__repr__", [](const MediaAssetGroupItem& self) {
            return "<MediaAssetGroupItem " + Quoted(self.MediaAsset().Id().Value()) + ">";
        });
    DefineEquality(item);
    DefineObjectId(item);

    py::class_<AnglesMediaAssetGroupItem, MediaAssetGroupItem, std::shared_ptr<AnglesMediaAssetGroupItem>>(
        module, "AnglesMediaAssetGroupItem", "A member of a multi-angle group: an asset and the name of its angle.")
        .def(py::init<const Utf8String&, const MediaAssetReference&>(), py::arg("name"),
             py::arg("asset") = MediaAssetReference())
        .ORVIK_PROPERTY(AnglesMediaAssetGroupItem, "name", Name)
        .def("__copy__",
             [](const AnglesMediaAssetGroupItem& self) { return std::make_shared<AnglesMediaAssetGroupItem>(self); })
        .def("__repr__", [](const AnglesMediaAssetGroupItem& self) {
            return "<AnglesMediaAssetGroupItem " + Quoted(self.MediaAsset().Id().Value()) + " " + Quoted(self.Name()) + ">";
        });

    py::class_<MediaAssetGroupItemArray> items(module, "MediaAssetGroupItemArray",
                                               "The items of a group, in stored order; None is allowed and never "
                                               "equal.");
    DefinePlainVector<MediaAssetGroupItemArray>(items, "MediaAssetGroupItemArray", true);

    py::class_<MediaAssetGroup, std::shared_ptr<MediaAssetGroup>> group(
        module, "MediaAssetGroup",
        "Several media assets gathered under one identity. copy.copy() shares the items and profiles. Items are "
        "looked up by the id of their asset; a lookup that finds none raises KeyError with the library's text.");
    group.def(py::init<const MediaAssetGroupId&, const Utf8String&>(), py::arg("id"), py::arg("type"))
        .ORVIK_PROPERTY(MediaAssetGroup, "id", Id)
        .ORVIK_PROPERTY(MediaAssetGroup, "type", Type)
        .ORVIK_PROPERTY(MediaAssetGroup, "name", Name)
        .ORVIK_MEMBER_PROPERTY(MediaAssetGroup, "items", Items, MediaAssetGroupItemArray)
        .ORVIK_MEMBER_PROPERTY(MediaAssetGroup, "metadata", Metadata, EditorialMetadata)
        .def(
            "find",
            [](const MediaAssetGroup& self, const MediaAssetGroupId& assetId) {
                const auto found = self.Find(assetId);
                return OrNone(found == self.Items().end() ? nullptr : *found);
            },
            py::arg("asset_id"), "The first item that refers to the asset, or None.")
        .def("has_asset", &MediaAssetGroup::HasAsset, py::arg("asset_id"))
        .def(
            "asset",
            [](const MediaAssetGroup& self, const MediaAssetGroupId& assetId) {
                return ByAsset(self, assetId, [&] { return self.Asset(assetId); });
            },
            py::arg("asset_id"))
        .def(
            "item_reference",
            [](const MediaAssetGroup& self, const MediaAssetGroupId& assetId) {
                return ByAsset(self, assetId, [&] { return self.ItemReference(assetId); });
            },
            py::arg("asset_id"))
        .def(
            "item",
            [](const MediaAssetGroup& self, const MediaAssetGroupId& assetId) {
                return ByAsset(self, assetId, [&] {
                    self.Item(assetId);
                    return self.ItemReference(assetId);
                });
            },
            py::arg("asset_id"))
        .def("__copy__", [](const MediaAssetGroup& self) { return std::make_shared<MediaAssetGroup>(self); })
        .def("__repr__", [](const MediaAssetGroup& self) {
            return "<MediaAssetGroup " + Quoted(self.Id().Value()) + " " + Quoted(self.Type()) + ">";
        });
    DefineEquality(group);
    DefineObjectId(group);

    py::class_<AnglesMediaAssetGroup, MediaAssetGroup, std::shared_ptr<AnglesMediaAssetGroup>>(
        module, "AnglesMediaAssetGroup",
        "A multi-angle group of type \"AnglesMediaAssetGroup\"; its metadata may hold the "
        "AnglesPelkOperatorMetadataProfile of the clip it stands for.")
        .def(py::init<const MediaAssetGroupId&>(), py::arg("id") = Identifier())
        .def_static("static_type", &AnglesMediaAssetGroup::StaticType)
        .def("has_pelk_operator_metadata", &AnglesMediaAssetGroup::HasPelkOperatorMetadata)
        .def_property_readonly(
            "pelk_operator_metadata",
            [](AnglesMediaAssetGroup& self) {
                self.PelkOperatorMetadata();
                return self.Metadata().Get<AnglesPelkOperatorMetadataProfile>();
            },
            "The group's profile, shared with the metadata; RuntimeError when there is none.")
        .def(
            "item",
            [](const AnglesMediaAssetGroup& self, const MediaAssetGroupId& assetId) {
                return ByAsset(self, assetId, [&] {
                    self.Item(assetId);
                    return std::static_pointer_cast<AnglesMediaAssetGroupItem>(self.ItemReference(assetId));
                });
            },
            py::arg("asset_id"),
            "The angles item of the asset: KeyError when there is none, RuntimeError when it is of another kind.")
        .def("__copy__", [](const AnglesMediaAssetGroup& self) { return std::make_shared<AnglesMediaAssetGroup>(self); });
}

}  // namespace Orvik::Python
