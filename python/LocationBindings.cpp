// Where a stream's content is stored: files, video-server clips, storage content tracks and
// protected storage items.

#include "Bindings.h"
#include "CommonMembers.h"
#include "EnumerationBinder.h"
#include "OwningArrays.h"
#include "Properties.h"
#include "Repr.h"
#include "TextCasters.h"

#include <Orvik/DataModel/MediaAssets.h>

#include <pybind11/stl.h>

namespace Orvik::Python {
namespace {

using namespace MA;

template <typename Concrete>
std::unique_ptr<Concrete> Copy(const Concrete& source)
{
    return std::make_unique<Concrete>(source);
}

}  // namespace

void BindLocations(py::module_& module)
{
    py::class_<Location> location(module, "Location",
                                  "A place where a stream's content is stored; see FileLocation, ZanLocation, "
                                  "DaxContentTrackLocation and DaxProtectLocation. Locations of different kinds "
                                  "are never equal.");
    BindEnumeration<Location::Type>(
        location, "Type", "The kind of a location.", [](Location::Type type) { return Location::ToString(type); },
        [](const std::string& text, bool& failed) { return Location::ToType(text, failed); })
        .export_values();
    location.def_property_readonly("type", &Location::GetType)
        .def_property_readonly("uri", &Location::Uri)
        .def("clone", &Location::Clone)
        .def("__deepcopy__", [](const Location& self, const py::dict&) { return self.Clone(); })
        .def("__repr__", [](const Location& self) {
            return "<" + Location::ToString(self.GetType()) + " " + Quoted(self.Uri().Value()) + ">";
        });
    DefineEquality(location);

    py::class_<FileLocation, Location>(module, "FileLocation",
                                       "A file holding a stream; its URI is stored as given, never parsed.")
        .def(py::init<>())
        .ORVIK_PROPERTY(FileLocation, "name", Name)
        .ORVIK_PROPERTY(FileLocation, "size", Size)
        .ORVIK_PROPERTY(FileLocation, "is_read_only", IsReadOnly)
        .ORVIK_PROPERTY(FileLocation, "creation_date", CreationDate)
        .ORVIK_PROPERTY(FileLocation, "modification_date", ModificationDate)
        .ORVIK_PROPERTY(FileLocation, "last_access_date", LastAccessDate)
        .ORVIK_PROPERTY(FileLocation, "uri", Uri)
        .def("__copy__", &Copy<FileLocation>);

    py::class_<ZanLocation, Location>(module, "ZanLocation",
                                      "A recorded sequence on a video server; its URI is the serial number, \"/\" "
                                      "and the sequence identifier (\"120/A7F3\").")
        .def(py::init<>())
        .def(py::init<const ZanServerId&, std::string>(), py::arg("server_id"), py::arg("sequence_id"))
        .ORVIK_PROPERTY(ZanLocation, "server_id", ServerId)
        .ORVIK_PROPERTY(ZanLocation, "sequence_id", SequenceId)
        .def("__copy__", &Copy<ZanLocation>);

    py::class_<DaxContentTrackLocation, Location>(
        module, "DaxContentTrackLocation",
        "A content track of the storage system; its URI is \"storage://\" server \"/\" partition \"/\" content "
        "track.")
        .def(py::init<>())
        .ORVIK_PROPERTY(DaxContentTrackLocation, "server_id", ServerId)
        .ORVIK_PROPERTY(DaxContentTrackLocation, "partition_id", PartitionId)
        .ORVIK_PROPERTY(DaxContentTrackLocation, "content_track_id", ContentTrackId)
        .def("init_from_uri", &DaxContentTrackLocation::InitFromUri, py::arg("uri"),
             "Reads the three identifiers back from a storage URI; False, and nothing changed, for any other text.")
        .def("__copy__", &Copy<DaxContentTrackLocation>);

    py::class_<DaxProtectLocation, Location>(module, "DaxProtectLocation",
                                             "An item under protection by a storage server: the server and the "
                                             "item's URI, stored as given.")
        .def(py::init<>())
        .ORVIK_PROPERTY(DaxProtectLocation, "server_id", ServerId)
        .ORVIK_PROPERTY(DaxProtectLocation, "uri", Uri)
        .def("__copy__", &Copy<DaxProtectLocation>);

    py::class_<LocationArray> locations(module, "LocationArray",
                                        "The locations of a stream, owned, in insertion order. append() and insert() "
                                        "take the location over: the Python name keeps referring to it inside the "
                                        "stream. A location belongs to one array at a time.");
    DefineOwningArray<LocationArray,
                      OwnershipTransfer<Location, FileLocation, ZanLocation, DaxContentTrackLocation, DaxProtectLocation>>(
        locations, "LocationArray");
}

}  // namespace Orvik::Python
