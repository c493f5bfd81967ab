// Essences (audio, video, data) with their rates, channels and timecode tables.

#include "Bindings.h"
#include "CommonMembers.h"
#include "Containers.h"
#include "EnumerationBinder.h"
#include "ImplicitConversions.h"
#include "OwningArrays.h"
#include "Properties.h"
#include "Repr.h"
#include "TextCasters.h"

#include <Orvik/DataModel/MediaAssets.h>

#include <pybind11/stl.h>

namespace Orvik::Python {
namespace {

using namespace MA;

/// The model's member-wise copy of an essence: the copy constructor is protected (an essence is
/// never sliced), the assignment is not. Metadata dictionary, channels and timecode tables are
/// shared with the source.
template <typename Concrete>
std::unique_ptr<Concrete> MemberwiseCopy(const Concrete& source)
{
    auto copy = std::make_unique<Concrete>();
    *copy = source;
    return copy;
}

std::string EssenceRepr(const Essence& essence)
{
    return "<" + Essence::ToString(essence.GetType()) + "Essence nr " + std::to_string(essence.Nr()) + ">";
}

}  // namespace

void BindEssences(py::module_& module)
{
    py::class_<Rate>(module, "Rate",
                     "The sample rate of an audio essence or the frame rate of a video essence (48000/1, "
                     "30000/1001), compared member by member; Rate() is 0/1, not known. Replaced whole.")
        .def(py::init<>())
        .def(py::init<int32_t, int32_t>(), py::arg("numerator"), py::arg("denominator"))
        .def_static("empty", &Rate::Empty)
        .def_property_readonly("numerator", &Rate::Numerator)
        .def_property_readonly("denominator", &Rate::Denominator)
        .def(
            "__eq__", [](const Rate& a, const Rate& b) { return a == b; }, py::is_operator())
        .def(
            "__ne__", [](const Rate& a, const Rate& b) { return a != b; }, py::is_operator())
        .def("__repr__", [](const Rate& self) {
            return "Rate(" + std::to_string(self.Numerator()) + ", " + std::to_string(self.Denominator()) + ")";
        });

    py::class_<AspectRatio> aspectRatio(module, "AspectRatio",
                                        "The picture aspect ratio as width and height factors (16:9), compared "
                                        "factor by factor.");
    aspectRatio.def(py::init<>())
        .def(py::init<int32_t, int32_t>(), py::arg("width_factor"), py::arg("height_factor"))
        .def_static("empty", &AspectRatio::Empty)
        .ORVIK_PROPERTY(AspectRatio, "width_factor", WidthFactor)
        .ORVIK_PROPERTY(AspectRatio, "height_factor", HeightFactor)
        .def("__repr__", [](const AspectRatio& self) {
            return "AspectRatio(" + std::to_string(self.WidthFactor()) + ", " + std::to_string(self.HeightFactor()) + ")";
        });
    DefineEquality(aspectRatio);

    py::class_<TrackChannel, std::shared_ptr<TrackChannel>> trackChannel(
        module, "TrackChannel",
        "The channel of a track that an essence feeds. Ordered by channel number alone; equal when track and "
        "number both match.");
    trackChannel.def(py::init<>())
        .def(py::init<const Identifier&, int32_t>(), py::arg("track_id"), py::arg("channel_nr"))
        .ORVIK_PROPERTY(TrackChannel, "track_id", TrackId)
        .ORVIK_PROPERTY(TrackChannel, "channel_nr", ChannelNr)
        .def(
            "__lt__", [](const TrackChannel& a, const TrackChannel& b) { return a < b; }, py::is_operator())
        .def("__repr__", [](const TrackChannel& self) {
            return "<TrackChannel " + Quoted(self.TrackId().Value()) + " " + std::to_string(self.ChannelNr()) + ">";
        });
    DefineEquality(trackChannel);
    DefineCopies(trackChannel, [](const TrackChannel& self) { return std::make_shared<TrackChannel>(self); });

    py::class_<TimeCodeString> timeCodeString(
        module, "TimeCodeString",
        "A checked timecode text (\"1:02:03:04\", \";\" before the frames for drop-frame). A text that is not "
        "one raises RuntimeError \"invalid timeCodeString \" followed by the text; only TimeCodeString() is empty.");
    timeCodeString.def(py::init<>())
        .def(py::init<const std::string&>(), py::arg("text"))
        .def("set", &TimeCodeString::Set, py::arg("text"))
        .def("is_string_format_valid", &TimeCodeString::IsStringFormatValid, py::arg("text"))
        .def_property_readonly("value", &TimeCodeString::Value)
        .def("is_empty", &TimeCodeString::IsEmpty)
        .def("__str__", &TimeCodeString::Value)
        .def("__repr__", [](const TimeCodeString& self) { return "TimeCodeString(" + Quoted(self.Value()) + ")"; });
    DefineEquality(timeCodeString);
    ConvertsImplicitlyFrom<std::string>(timeCodeString);

    py::class_<TimeCodeJump, std::shared_ptr<TimeCodeJump>> jump(
        module, "TimeCodeJump",
        "A discontinuity of a timecode track: where it lies, the timecode that starts there and how long that run "
        "lasts. Ordered by time point.");
    jump.def(py::init<>())
        .def(py::init<const TimePoint&, const TimeCodeString&, int64_t>(), py::arg("time_point"), py::arg("time_code"),
             py::arg("duration"))
        .ORVIK_PROPERTY(TimeCodeJump, "time_point", TimePoint)
        .ORVIK_PROPERTY(TimeCodeJump, "time_code", TimeCode)
        .ORVIK_PROPERTY(TimeCodeJump, "duration", Duration)
        .def(
            "__lt__", [](const TimeCodeJump& a, const TimeCodeJump& b) { return a < b; }, py::is_operator())
        .def("__copy__", [](const TimeCodeJump& self) { return std::make_shared<TimeCodeJump>(self); })
        .def("__deepcopy__", [](const TimeCodeJump& self, const py::dict&) { return std::make_shared<TimeCodeJump>(self); })
        .def("__repr__", [](const TimeCodeJump& self) {
            return "<TimeCodeJump " + std::to_string(self.TimePoint().ToNanoseconds()) + " "
                + Quoted(self.TimeCode().Value()) + ">";
        });
    DefineEquality(jump);

    py::class_<SortedVectorSharedPointer<TimeCodeJump>, ContainerHolder<SortedVectorSharedPointer<TimeCodeJump>>> jumps(
        module, "TimeCodeJumpVector");
    DefineSortedVector<SortedVectorSharedPointer<TimeCodeJump>>(jumps, "TimeCodeJumpVector");

    py::class_<TimeCodeTable, std::shared_ptr<TimeCodeTable>> table(
        module, "TimeCodeTable",
        "One timecode track of an essence: name, standard, kind and jumps. Ordered by name alone; a copy shares "
        "the jump objects.");
    table.def(py::init<>())
        .ORVIK_PROPERTY(TimeCodeTable, "fully_qualified_name", FullyQualifiedName)
        .ORVIK_PROPERTY(TimeCodeTable, "standard", Standard)
        .ORVIK_PROPERTY(TimeCodeTable, "type", Type)
        .ORVIK_MEMBER(TimeCodeTable, "time_code_jump_items", TimeCodeJumpItems)
        .def(
            "__lt__", [](const TimeCodeTable& a, const TimeCodeTable& b) { return a < b; }, py::is_operator())
        .def("__copy__", [](const TimeCodeTable& self) { return std::make_shared<TimeCodeTable>(self); })
        .def("__repr__",
             [](const TimeCodeTable& self) { return "<TimeCodeTable " + Quoted(self.FullyQualifiedName().Value()) + ">"; });
    DefineEquality(table);

    py::class_<SortedVectorSharedPointer<TrackChannel>, ContainerHolder<SortedVectorSharedPointer<TrackChannel>>> channels(
        module, "TrackChannelVector");
    DefineSortedVector<SortedVectorSharedPointer<TrackChannel>>(channels, "TrackChannelVector");
    py::class_<SortedVectorSharedPointer<TimeCodeTable>, ContainerHolder<SortedVectorSharedPointer<TimeCodeTable>>> tables(
        module, "TimeCodeTableVector");
    DefineSortedVector<SortedVectorSharedPointer<TimeCodeTable>>(tables, "TimeCodeTableVector");

    py::class_<Essence> essence(
        module, "Essence",
        "One elementary stream (sound, picture or data) of a stream; see AudioEssence, VideoEssence, DataEssence. "
        "Essences of different kinds are never equal; a negative nr matches any number. clone() keeps sharing the "
        "timecode tables and shares the metadata dictionary with this essence after emptying it: cloning an "
        "essence clears its technical metadata.");
    BindEnumeration<Essence::Type>(
        essence, "Type", "The kind of an essence.", [](Essence::Type type) { return Essence::ToString(type); },
        [](const std::string& text, bool& failed) { return Essence::ToType(text, failed); })
        .export_values();
    essence.def_property_readonly("type", &Essence::GetType)
        .ORVIK_MEMBER(Essence, "metadata", Metadata)
        .ORVIK_PROPERTY(Essence, "channel_count", ChannelCount)
        .ORVIK_PROPERTY(Essence, "nr", Nr)
        .ORVIK_MEMBER(Essence, "track_channels", TrackChannels)
        .ORVIK_MEMBER(Essence, "timecodes", Timecodes)
        .def("clone", &Essence::Clone)
        .def("__deepcopy__", [](const Essence& self, const py::dict&) { return self.Clone(); })
        .def("__repr__", &EssenceRepr);
    DefineEquality(essence);
    DefineObjectId(essence);

    py::class_<AudioEssence, Essence>(module, "AudioEssence",
                                      "A sound track: codec, bit rate and its mode, sample rate, bit depth and "
                                      "four-character code.")
        .def(py::init<>())
        .ORVIK_PROPERTY(AudioEssence, "audio_codec", AudioCodec)
        .ORVIK_PROPERTY(AudioEssence, "bit_rate", BitRate)
        .ORVIK_PROPERTY(AudioEssence, "bit_rate_mode", BitRateMode)
        .ORVIK_PROPERTY(AudioEssence, "sample_rate", SampleRate)
        .ORVIK_PROPERTY(AudioEssence, "bit_depth", BitDepth)
        .ORVIK_PROPERTY(AudioEssence, "four_cc", FourCC)
        .def("__copy__", &MemberwiseCopy<AudioEssence>);

    py::class_<VideoEssence, Essence>(module, "VideoEssence",
                                      "A picture track: coding, bit rate, geometry, colour description, scan mode "
                                      "and framing.")
        .def(py::init<>())
        .ORVIK_PROPERTY(VideoEssence, "video_codec", VideoCodec)
        .ORVIK_PROPERTY(VideoEssence, "bit_rate", BitRate)
        .ORVIK_PROPERTY(VideoEssence, "bit_rate_mode", BitRateMode)
        .ORVIK_PROPERTY(VideoEssence, "bit_depth", BitDepth)
        .ORVIK_PROPERTY(VideoEssence, "frame_rate", FrameRate)
        .ORVIK_PROPERTY(VideoEssence, "height", Height)
        .ORVIK_PROPERTY(VideoEssence, "width", Width)
        .ORVIK_PROPERTY(VideoEssence, "chroma_sub_sampling", ChromaSubSampling)
        .ORVIK_PROPERTY(VideoEssence, "color_space", ColorSpace)
        .ORVIK_PROPERTY(VideoEssence, "scan_mode", ScanMode)
        .ORVIK_PROPERTY(VideoEssence, "four_cc", FourCC)
        .ORVIK_PROPERTY(VideoEssence, "aspect_ratio", AspectRatio)
        .ORVIK_PROPERTY(VideoEssence, "boxing", Boxing)
        .def("__copy__", &MemberwiseCopy<VideoEssence>);

    py::class_<DataEssence, Essence>(module, "DataEssence", "A data track, with no fields of its own.")
        .def(py::init<>())
        .def("__copy__", &MemberwiseCopy<DataEssence>);

    py::class_<EssenceArray> essences(module, "EssenceArray",
                                      "The essences of a stream, owned, in insertion order. append() and insert() "
                                      "take the essence over: the Python name keeps referring to it inside the "
                                      "stream. An essence belongs to one array at a time.");
    DefineOwningArray<EssenceArray, OwnershipTransfer<Essence, AudioEssence, VideoEssence, DataEssence>>(essences,
                                                                                                         "EssenceArray");
}

}  // namespace Orvik::Python
