// Clip identifiers, video-server identities and packed colours, with their text forms.

#include "Bindings.h"
#include "CameraArgument.h"
#include "CommonMembers.h"
#include "ImplicitConversions.h"
#include "Properties.h"
#include "Repr.h"

#include <Orvik/DataModel/MediaAssets.h>

#include <pybind11/stl.h>

#include <optional>
#include <string>
#include <tuple>

namespace Orvik::Python {
namespace {

using MA::Color;
using MA::PelkId;
using MA::ZanServerId;

}  // namespace

void BindIdentifiers(py::module_& module)
{
    py::class_<ZanServerId> serverId(module, "ZanServerId",
                                     "The identity of a video server: its serial number, 0 for none. Valid serial "
                                     "numbers are positive multiples of 10.");
    serverId.def(py::init<>())
        .def(py::init<int>(), py::arg("serial_number"))
        .def(py::init<const std::string&>(), py::arg("text"),
             "Parses `text`; ValueError \"Invalid server serial number '...'.\" unless it is a valid serial number.")
        .def_static("empty", &ZanServerId::Empty)
        .def_static("is_valid", &ZanServerId::IsValid, py::arg("serial_number"))
        .ORVIK_PROPERTY(ZanServerId, "serial_number", SerialNumber)
        .def_static("parse", &ZanServerId::Parse, py::arg("text"))
        .def_static("from_uri", &ZanServerId::FromUri, py::arg("text"))
        .def_static(
            "try_parse",
            [](const std::string& text) -> std::optional<ZanServerId> {
                ZanServerId parsed;
                return ZanServerId::TryParse(text, parsed) ? std::optional(parsed) : std::nullopt;
            },
            py::arg("text"), "The server named by `text`, or None when it is not a valid serial number.")
        .def("__str__", &ZanServerId::ToString)
        .def("__repr__", [](const ZanServerId& self) { return "ZanServerId(" + self.ToString() + ")"; })
        .def("__hash__", [](const ZanServerId& self) { return py::hash(py::int_(self.SerialNumber())); })
        .def("__copy__", [](const ZanServerId& self) { return self; })
        .def("__deepcopy__", [](const ZanServerId& self, const py::dict&) { return self; });
    DefineEquality(serverId);
    ConvertsImplicitlyFrom<int>(serverId);

    py::class_<PelkId> pelkId(module, "PelkId",
                              "The operators' code of a recorded clip: page, bank and row digits, a camera letter "
                              "('' for none) and optionally the server. Fields are stored in 8 bits unchecked; "
                              "is_valid() tells. str() is the long form (\"123B/120\").");
    pelkId.def(py::init<>())
        .def(py::init([](int position, const std::string& camera) { return PelkId(position, CameraArgument(camera)); }),
             py::arg("position"), py::arg("camera") = "")
        .def(py::init([](int page, int bank, int row, const std::string& camera) {
                 return PelkId(ZanServerId(), page, bank, row, CameraArgument(camera));
             }),
             py::arg("page"), py::arg("bank"), py::arg("row"), py::arg("camera") = "")
        .def(py::init([](const ZanServerId& server, int page, int bank, int row, const std::string& camera) {
                 return PelkId(server, page, bank, row, CameraArgument(camera));
             }),
             py::arg("server_id"), py::arg("page"), py::arg("bank"), py::arg("row"), py::arg("camera") = "")
        .def(py::init<const std::string&>(), py::arg("text"), "PelkId.from_uri(text).")
        .def_static("empty", &PelkId::Empty)
        .def_readonly_static("MAX_CHANNEL", &PelkId::MaxChannel)
        .ORVIK_READONLY(PelkId, "server_id", ServerId)
        .ORVIK_PROPERTY(PelkId, "page", Page)
        .ORVIK_PROPERTY(PelkId, "bank", Bank)
        .ORVIK_PROPERTY(PelkId, "row", Row)
        .ORVIK_PROPERTY(PelkId, "position", Position)
        .def_property(
            "camera", [](const PelkId& self) { return MA::CameraText(self.Camera()); },
            [](PelkId& self, const std::string& camera) { self.Camera(CameraArgument(camera)); })
        .ORVIK_READONLY(PelkId, "has_camera", HasCamera)
        .ORVIK_READONLY(PelkId, "clip", Clip)
        .ORVIK_READONLY(PelkId, "channel", Channel)
        .ORVIK_READONLY(PelkId, "index", Index)
        .def("is_valid", &PelkId::IsValid)
        .def("is_empty", &PelkId::IsEmpty)
        .def_static("is_valid_page", &PelkId::IsValidPage)
        .def_static("is_valid_bank", &PelkId::IsValidBank)
        .def_static("is_valid_row", &PelkId::IsValidRow)
        .def_static("is_valid_camera",
                    [](const std::string& camera) { return PelkId::IsValidCamera(CameraArgument(camera)); })
        .def("to_short_string", &PelkId::ToShortString)
        .def("__str__", &PelkId::ToString)
        .def("__repr__", [](const PelkId& self) { return "PelkId(" + Quoted(self.ToString()) + ")"; })
        .def_static("from_uri", &PelkId::FromUri, py::arg("text"),
                    "The strict parser: ValueError \"Invalid uri '...'.\" or \"Invalid server serial number "
                    "'...'.\" for text it refuses.")
        .def_static(
            "try_parse",
            [](const std::string& text) {
                PelkId id;
                int serialNumber = 0;
                const bool parsed = PelkId::TryParse(text, id, serialNumber);
                return std::make_tuple(parsed, id, serialNumber);
            },
            py::arg("text"),
            "The tolerant parser: (parsed, id, serial number read). It needs a camera and never raises; on "
            "failure the id may already hold page, bank, row and camera.")
        .def("__copy__", [](const PelkId& self) { return self; })
        .def("__deepcopy__", [](const PelkId& self, const py::dict&) { return self; });
    DefineEquality(pelkId);

    py::class_<Color>(module, "Color",
                      "Colours packed in 32 bits as 0xAARRGGBB; the text form is \"#AARRGGBB\". NOT_SET (zero "
                      "alpha) is a colour not chosen.")
        .def_readonly_static("NOT_SET", &Color::NotSet)
        .def_readonly_static("BLACK", &Color::Black)
        .def_readonly_static("RED", &Color::Red)
        .def_readonly_static("GREEN", &Color::Green)
        .def_readonly_static("BLUE", &Color::Blue)
        .def_readonly_static("CYAN", &Color::Cyan)
        .def_readonly_static("YELLOW", &Color::Yellow)
        .def_readonly_static("MAGENTA", &Color::Magenta)
        .def_readonly_static("WHITE", &Color::White)
        .def_static("make", py::overload_cast<uint32_t, uint32_t, uint32_t, uint32_t>(&Color::Make), py::arg("alpha"),
                    py::arg("red"), py::arg("green"), py::arg("blue"))
        .def_static("make", py::overload_cast<uint32_t, uint32_t, uint32_t>(&Color::Make), py::arg("red"), py::arg("green"),
                    py::arg("blue"))
        .def_static("get_alpha", &Color::GetAlpha)
        .def_static("get_red", &Color::GetRed)
        .def_static("get_green", &Color::GetGreen)
        .def_static("get_blue", &Color::GetBlue)
        .def_static("to_string", &Color::ToString, py::arg("color"))
        .def_static("parse", &Color::Parse, py::arg("text"))
        .def_static(
            "try_parse",
            [](const std::string& text) -> std::optional<uint32_t> {
                uint32_t color = 0;
                return Color::TryParse(text, color) ? std::optional(color) : std::nullopt;
            },
            py::arg("text"), "The colour written in `text`, or None.");
}

}  // namespace Orvik::Python
