// Streams, media resources, their references and the time bounds arrays they carry.

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

void BindStreams(py::module_& module)
{
    py::class_<TimeBoundsArray, ContainerHolder<TimeBoundsArray>> timeBounds(
        module, "TimeBoundsArray",
        "The stretches of the media time line that an asset, resource or stream covers, sorted by in and then out "
        "time point, with overall in and out boundaries (unset at first).");
    DefineSortedVector<TimeBoundsArray>(timeBounds, "TimeBoundsArray");
    timeBounds.ORVIK_PROPERTY(TimeBoundsArray, "in_boundary", InBoundary)
        .ORVIK_PROPERTY(TimeBoundsArray, "out_boundary", OutBoundary)
        .def("get_duration", &TimeBoundsArray::GetDuration,
             "The sum of out minus in over the stretches; the array's own boundaries take no part.")
        .def("has_overlapping_time_bounds", &TimeBoundsArray::HasOverlappingTimeBounds)
        .def("is_in_valid", &TimeBoundsArray::IsInValid)
        .def("is_out_valid", &TimeBoundsArray::IsOutValid)
        .def("is_in_out_of_time_bounds", &TimeBoundsArray::IsInOutOfTimeBounds)
        .def("is_out_out_of_time_bounds", &TimeBoundsArray::IsOutOutOfTimeBounds)
        .def("is_valid", &TimeBoundsArray::IsValid)
        .def("__copy__", [](const TimeBoundsArray& self) { return self; })
        .def("__deepcopy__", [](const TimeBoundsArray& self, const py::dict&) { return self; });

    py::class_<Stream, std::shared_ptr<Stream>> stream(
        module, "Stream",
        "One wrapped container of a media resource: format, time bounds, technical metadata, essences and "
        "locations, which it owns. clone() keeps the stream id and has object_id -1; copy.copy() does the same but "
        "keeps object_id. Cloning the essences empties the source essences' metadata (see Essence).");
    stream.def(py::init<>())
        .def(py::init<const StreamId&>(), py::arg("id"))
        .ORVIK_PROPERTY(Stream, "id", Id)
        .ORVIK_PROPERTY(Stream, "format", Format)
        .ORVIK_MEMBER_PROPERTY(Stream, "timebounds", Timebounds, TimeBoundsArray)
        .ORVIK_MEMBER(Stream, "metadata", Metadata)
        .ORVIK_MEMBER(Stream, "essences", Essences)
        .ORVIK_MEMBER(Stream, "locations", Locations)
        .def("__repr__", [](const Stream& self) {
            return "<Stream " + Quoted(self.Id().Value()) + " " + ToString(self.Format()) + ">";
        });
    DefineEquality(stream);
    DefineObjectId(stream);
    DefineCopies(stream, [](const Stream& self) { return std::make_shared<Stream>(self); });

    py::class_<StreamReference> streamReference(module, "StreamReference");
    DefineSharedReference<Stream>(streamReference, "StreamReference");

    py::class_<StreamReferenceVector> streams(module, "StreamReferenceVector",
                                              "A resource's references to its streams, in insertion order.");
    DefinePlainVector<StreamReferenceVector>(streams, "StreamReferenceVector", false);

    py::class_<MediaResource, std::shared_ptr<MediaResource>> resource(
        module, "MediaResource",
        "One physical realisation of a media asset: streams, name, general format, time bounds, dates and technical "
        "metadata. copy.copy() shares the loaded streams and the metadata; clone() clones loaded streams (same ids), "
        "keeps references by id as they are, deep-copies the metadata and has object_id -1. Equality compares the "
        "stream ids, not the streams.");
    resource.def(py::init<>())
        .def(py::init<const MediaResourceId&>(), py::arg("id"))
        .ORVIK_PROPERTY(MediaResource, "id", Id)
        .ORVIK_PROPERTY(MediaResource, "name", Name)
        .ORVIK_PROPERTY(MediaResource, "general_format", GeneralFormat)
        .ORVIK_MEMBER_PROPERTY(MediaResource, "streams", Streams, StreamReferenceVector)
        .def(
            "adopt", [](MediaResource& self, const std::shared_ptr<Stream>& stream) { self.Streams().emplace_back(stream); },
            py::arg("stream").none(false),
            "Appends a reference holding `stream` (pointer and id); the stream stays shared with the caller.")
        .def("add", &MediaResource::Add, py::arg("stream_id"), "Appends a reference to a stream by id alone.")
        .ORVIK_MEMBER_PROPERTY(MediaResource, "timebounds", Timebounds, TimeBoundsArray)
        .ORVIK_PROPERTY(MediaResource, "creation_date", CreationDate)
        .ORVIK_PROPERTY(MediaResource, "modification_date", ModificationDate)
        .ORVIK_MEMBER(MediaResource, "metadata", Metadata)
        .def(
            "__lt__", [](const MediaResource& a, const MediaResource& b) { return a < b; }, py::is_operator())
        .def("__repr__", [](const MediaResource& self) { return "<MediaResource " + Quoted(self.Id().Value()) + ">"; });
    DefineEquality(resource);
    DefineObjectId(resource);
    DefineCopies(resource, [](const MediaResource& self) { return std::make_shared<MediaResource>(self); });

    py::class_<MediaResourceReference> resourceReference(module, "MediaResourceReference");
    DefineSharedReference<MediaResource>(resourceReference, "MediaResourceReference");

    py::class_<MediaResourceReferenceVector, ContainerHolder<MediaResourceReferenceVector>> resources(
        module, "MediaResourceReferenceVector",
        "A media asset's references to its resources, sorted and told "
        "apart by id alone.");
    DefineSortedVector<MediaResourceReferenceVector>(resources, "MediaResourceReferenceVector");
}

}  // namespace Orvik::Python
