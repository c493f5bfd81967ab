// Tracks with their channels, and the layouts that arrange them.

#include "Bindings.h"
#include "CommonMembers.h"
#include "Containers.h"
#include "Properties.h"
#include "Repr.h"
#include "TextCasters.h"

#include <Orvik/DataModel/MediaAssets.h>

#include <pybind11/stl.h>

namespace Orvik::Python {
namespace {

using namespace MA;

}  // namespace

void BindTracks(py::module_& module)
{
    py::class_<TrackChannelToRemove, std::shared_ptr<TrackChannelToRemove>> channel(
        module, "TrackChannelToRemove",
        "One channel of a track: the stream that carries it, the essence number within that stream and the channel "
        "number within the essence. Equal when stream ids and both numbers are. clone() gives the copy its own deep "
        "copy of a loaded stream.");
    channel.def(py::init<>())
        .ORVIK_PROPERTY(TrackChannelToRemove, "stream", Stream)
        .ORVIK_PROPERTY(TrackChannelToRemove, "essence_nr", EssenceNr)
        .ORVIK_PROPERTY(TrackChannelToRemove, "channel_nr", ChannelNr)
        .def("__repr__", [](const TrackChannelToRemove& self) {
            return "<TrackChannelToRemove " + Quoted(self.Stream().Id().Value()) + " " + std::to_string(self.EssenceNr())
                + " " + std::to_string(self.ChannelNr()) + ">";
        });
    DefineEquality(channel);
    DefineCopies(channel, [](const TrackChannelToRemove& self) { return std::make_shared<TrackChannelToRemove>(self); });

    py::class_<Track::ChannelVector> channels(module, "TrackChannelToRemoveVector",
                                              "The channels of a track, in insertion order.");
    DefinePlainVector<Track::ChannelVector>(channels, "TrackChannelToRemoveVector", false);

    py::class_<Track, std::shared_ptr<Track>> track(
        module, "Track",
        "A named, identified group of channels of a media asset. Ordered by id; equal when id and name are (the "
        "channels are deliberately not compared). copy.copy() shares the channel objects; clone() clones each "
        "channel and has object_id -1.");
    track.def(py::init<>())
        .def(py::init<const TrackId&, const Utf8String&>(), py::arg("id"), py::arg("name") = Utf8String())
        .ORVIK_PROPERTY(Track, "id", Id)
        .ORVIK_PROPERTY(Track, "name", Name)
        .ORVIK_MEMBER_PROPERTY(Track, "channels", Channels, Track::ChannelVector)
        .def(
            "__lt__", [](const Track& a, const Track& b) { return a < b; }, py::is_operator())
        .def("__repr__",
             [](const Track& self) { return "<Track " + Quoted(self.Id().Value()) + " " + Quoted(self.Name()) + ">"; });
    DefineEquality(track);
    DefineObjectId(track);
    DefineCopies(track, [](const Track& self) { return std::make_shared<Track>(self); });

    py::class_<SortedVectorSharedPointer<Track>, ContainerHolder<SortedVectorSharedPointer<Track>>> tracks(module,
                                                                                                           "TrackVector");
    DefineSortedVector<SortedVectorSharedPointer<Track>>(tracks, "TrackVector");
    py::class_<SortedVectorWeakPointer<Track>, ContainerHolder<SortedVectorWeakPointer<Track>>> layoutTracks(
        module, "TrackWeakVector",
        "Tracks shown by a layout item, held weakly: an element reads as None once its track is gone, and comparing "
        "or inserting then raises RuntimeError.");
    DefineSortedVector<SortedVectorWeakPointer<Track>>(layoutTracks, "TrackWeakVector");

    py::class_<TrackLayoutItem> item(
        module, "TrackLayoutItem",
        "An entry of a track layout showing some of the asset's tracks by weak reference. The id is fixed at "
        "construction. A layout stores its items by value: an item read from a layout is a copy, so change an "
        "item with replace().");
    item.def(py::init<const Identifier&>(), py::arg("id"))
        .ORVIK_READONLY(TrackLayoutItem, "id", Id)
        .ORVIK_PROPERTY(TrackLayoutItem, "name", Name)
        .ORVIK_MEMBER_PROPERTY(TrackLayoutItem, "tracks", Tracks, SortedVectorWeakPointer<Track>)
        .def(
            "__lt__", [](const TrackLayoutItem& a, const TrackLayoutItem& b) { return a < b; }, py::is_operator())
        .def("__repr__", [](const TrackLayoutItem& self) { return "<TrackLayoutItem " + Quoted(self.Id().Value()) + ">"; });
    DefineEquality(item);
    DefineObjectId(item);
    DefineCopies(item, [](const TrackLayoutItem& self) { return TrackLayoutItem(self); });

    py::class_<SortedVector<TrackLayoutItem>, ContainerHolder<SortedVector<TrackLayoutItem>>> items(module,
                                                                                                    "TrackLayoutItemVector");
    DefineSortedVector<SortedVector<TrackLayoutItem>>(items, "TrackLayoutItemVector");

    py::class_<TrackLayout, std::shared_ptr<TrackLayout>> layout(
        module, "TrackLayout",
        "An arrangement of an asset's tracks: items sorted by id. A copy and clone() keep referring to the same "
        "track objects; clone() gives the layout and its items object_id -1.");
    layout.def(py::init<>())
        .def(py::init<const Identifier&, const Utf8String&>(), py::arg("id"), py::arg("name") = Utf8String())
        .ORVIK_PROPERTY(TrackLayout, "id", Id)
        .ORVIK_PROPERTY(TrackLayout, "name", Name)
        .ORVIK_MEMBER_PROPERTY(TrackLayout, "track_layout_items", TrackLayoutItems, SortedVector<TrackLayoutItem>)
        .def(
            "__lt__", [](const TrackLayout& a, const TrackLayout& b) { return a < b; }, py::is_operator())
        .def("__repr__", [](const TrackLayout& self) { return "<TrackLayout " + Quoted(self.Id().Value()) + ">"; });
    DefineEquality(layout);
    DefineObjectId(layout);
    DefineCopies(layout, [](const TrackLayout& self) { return std::make_shared<TrackLayout>(self); });

    py::class_<SortedVectorSharedPointer<TrackLayout>, ContainerHolder<SortedVectorSharedPointer<TrackLayout>>> layouts(
        module, "TrackLayoutVector");
    DefineSortedVector<SortedVectorSharedPointer<TrackLayout>>(layouts, "TrackLayoutVector");
}

}  // namespace Orvik::Python
