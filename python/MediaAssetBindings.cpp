// The media asset and its annotations.

#include "Bindings.h"
#include "CommonMembers.h"
#include "Containers.h"
#include "Properties.h"
#include "References.h"
#include "Repr.h"
#include "TextCasters.h"

#include <Orvik/DataModel/MediaAssets.h>

#include <pybind11/stl.h>

namespace Orvik::Python {
namespace {

using namespace MA;

}  // namespace

void BindMediaAsset(py::module_& module)
{
    py::class_<Annotation, std::shared_ptr<Annotation>> annotation(
        module, "Annotation",
        "A typed note on a stretch of an asset's time line, with metadata of its own. Equal when type, data, time "
        "bounds and metadata are. copy.copy() shares the profiles; clone() copies them and has object_id -1.");
    annotation.def(py::init<AnnotationType, const Utf8String&>(), py::arg("type"), py::arg("data") = Utf8String())
        .ORVIK_PROPERTY(Annotation, "type", Type)
        .ORVIK_PROPERTY(Annotation, "data", Data)
        .ORVIK_PROPERTY(Annotation, "time_bounds", TimeBounds)
        .ORVIK_MEMBER(Annotation, "metadata", Metadata)
        .def("__repr__", [](const Annotation& self) { return "<Annotation " + ToString(self.Type()) + ">"; });
    DefineEquality(annotation);
    DefineObjectId(annotation);
    DefineCopies(annotation, [](const Annotation& self) { return std::make_shared<Annotation>(self); });

    py::class_<AnnotationArray> annotations(module, "AnnotationArray",
                                            "The annotations of an asset, in insertion order; duplicates and None "
                                            "are allowed (None is never equal, and makes clone() raise ValueError).");
    DefinePlainVector<AnnotationArray>(annotations, "AnnotationArray", true);

    // Registered before the asset, so that the signatures of ancestor and parent name it.
    py::class_<MediaAssetReference> assetReference(module, "MediaAssetReference");

    py::class_<MediaAsset, std::shared_ptr<MediaAsset>> asset(
        module, "MediaAsset",
        "One media item: name, lineage, time bounds, tracks and layouts, media resources, annotations and "
        "editorial metadata. copy.copy() shares tracks, layouts, resources and annotations. clone() is the deep "
        "copy with deliberate exceptions: object_id -1; ancestor and parent keep only their ids; every track "
        "channel gets its own deep copy of its stream; layouts keep pointing at this asset's tracks; resources "
        "referenced by id stay so. Equality compares resources by id and tracks by id and name; assets are ordered "
        "by id.");
    asset.def(py::init<>())
        .def(py::init<const MediaAssetId&>(), py::arg("id"))
        .ORVIK_PROPERTY(MediaAsset, "id", Id)
        .ORVIK_PROPERTY(MediaAsset, "asset_type", AssetType)
        .ORVIK_PROPERTY(MediaAsset, "ancestor", Ancestor)
        .ORVIK_PROPERTY(MediaAsset, "parent", Parent)
        .ORVIK_PROPERTY(MediaAsset, "name", Name)
        .ORVIK_PROPERTY(MediaAsset, "description", Description)
        .ORVIK_PROPERTY(MediaAsset, "in_boundary", InBoundary)
        .ORVIK_PROPERTY(MediaAsset, "out_boundary", OutBoundary)
        .ORVIK_MEMBER_PROPERTY(MediaAsset, "physical_timebounds", PhysicalTimebounds, TimeBoundsArray)
        .ORVIK_PROPERTY(MediaAsset, "creation_date", CreationDate)
        .ORVIK_PROPERTY(MediaAsset, "modification_date", ModificationDate)
        .ORVIK_MEMBER_PROPERTY(MediaAsset, "metadata", Metadata, EditorialMetadata)
        .ORVIK_MEMBER_PROPERTY(MediaAsset, "tracks", Tracks, SortedVectorSharedPointer<Track>)
        .ORVIK_MEMBER_PROPERTY(MediaAsset, "track_layouts", TrackLayouts, SortedVectorSharedPointer<TrackLayout>)
        .ORVIK_MEMBER_PROPERTY(MediaAsset, "media_resources", MediaResources, MediaResourceReferenceVector)
        .ORVIK_MEMBER_PROPERTY(MediaAsset, "annotations", Annotations, AnnotationArray)
        .def("has_pelk_operator_metadata", &MediaAsset::HasPelkOperatorMetadata)
        .def_property_readonly(
            "pelk_operator_metadata",
            [](MediaAsset& self) {
                self.PelkOperatorMetadata();
                return self.Metadata().Get<PelkOperatorMetadataProfile>();
            },
            "The operator profile in the metadata, shared with it; RuntimeError when there is none.")
        .def("get_duration", &MediaAsset::GetDuration, "Zero while the out boundary is unset, otherwise out minus in.")
        .def(
            "__lt__", [](const MediaAsset& a, const MediaAsset& b) { return a < b; }, py::is_operator())
        .def("__repr__", [](const MediaAsset& self) {
            return "<MediaAsset " + Quoted(self.Id().Value()) + " " + ToString(self.AssetType()) + ">";
        });
    DefineEquality(asset);
    DefineObjectId(asset);
    DefineCopies(asset, [](const MediaAsset& self) { return std::make_shared<MediaAsset>(self); });

    DefineSharedReference<MediaAsset>(assetReference, "MediaAssetReference");
}

}  // namespace Orvik::Python
