// Time values as text: the SMPTE timecode and ISO 8601 time-point parsers and formatters, the
// duration formatters, and the values' own to_string/parse that take any of them. The parsers'
// try_parse gives None for a refused text instead of the C++ pair.

#include "Bindings.h"

#include <pybind11/stl.h>

#include <Orvik/TimePoints/Core/Formatters/ClockDurationFormatter.h>
#include <Orvik/TimePoints/Core/Formatters/Iso8601TimePointFormatter.h>
#include <Orvik/TimePoints/Core/Formatters/SmpteTimeCodeFormatter.h>
#include <Orvik/TimePoints/Core/Formatters/TimeCodeDurationFormatter.h>
#include <Orvik/TimePoints/Core/Parsers/Iso8601TimePointParser.h>
#include <Orvik/TimePoints/Core/Parsers/SmpteTimeCodeParser.h>

#include <optional>
#include <string>

namespace Orvik::Python {
namespace {

namespace TP = Orvik::TimePoints;

/// The parser interface's three calls, for a parser of values of class Value.
template <typename Parser, typename Class>
void DefineParsing(Class& cls)
{
    using Value = decltype(std::declval<const Parser&>().Parse(std::string()));
    cls.def("parse", &Parser::Parse, py::arg("text"))
        .def("is_string_format_valid", &Parser::IsStringFormatValid, py::arg("text"))
        .def(
            "try_parse",
            [](const Parser& self, const std::string& text) -> std::optional<Value> {
                auto [parsed, value] = self.TryParse(text);
                return parsed ? std::optional<Value>(value) : std::nullopt;
            },
            py::arg("text"));
}

}  // namespace

void BindTimeTexts(py::module_& timePoints)
{
    py::class_<TP::TimeCodeParser>(timePoints, "TimeCodeParser", "What reads a timecode from text.");
    py::class_<TP::SmpteTimeCodeParser, TP::TimeCodeParser> smpteParser(
        timePoints, "SmpteTimeCodeParser",
        "Reads HH:MM:SS:FF labels, and HH:MM:SS;FF for drop-frame, at a rate; with allow_date, also "
        "'YYYY-MM-DD HH:MM:SS:FF'. parse raises ValueError naming the text and the reason.");
    smpteParser.def(py::init<const TP::Rate&, bool>(), py::arg("rate"), py::arg("allow_date") = false)
        .def_property_readonly("rate", &TP::SmpteTimeCodeParser::Rate)
        .def_property_readonly("allows_date", &TP::SmpteTimeCodeParser::AllowsDate);
    DefineParsing<TP::SmpteTimeCodeParser>(smpteParser);

    py::class_<TP::TimePointParser>(timePoints, "TimePointParser", "What reads a time point from text.");
    py::class_<TP::Iso8601TimePointParser, TP::TimePointParser> isoParser(
        timePoints, "Iso8601TimePointParser",
        "Reads ISO 8601 / RFC 3339 UTC texts with up to nine fraction digits, 'Z' or a numeric offset, "
        "and 'unset', 'min' and 'max'.");
    isoParser.def(py::init<>());
    DefineParsing<TP::Iso8601TimePointParser>(isoParser);

    py::class_<TP::TimeCodeFormatter>(timePoints, "TimeCodeFormatter", "What writes a timecode as text.")
        .def("format", &TP::TimeCodeFormatter::Format, py::arg("time_code"));
    py::class_<TP::SmpteTimeCodeFormatter, TP::TimeCodeFormatter>(timePoints, "SmpteTimeCodeFormatter",
                                                                  "Writes HH:MM:SS:FF, with ';' before the frames "
                                                                  "for drop-frame and the date before a dated one.")
        .def(py::init<>());

    py::class_<TP::TimePointFormatter>(timePoints, "TimePointFormatter", "What writes a time point as text.")
        .def("format", &TP::TimePointFormatter::Format, py::arg("time_point"));
    py::class_<TP::Iso8601TimePointFormatter, TP::TimePointFormatter>(
        timePoints, "Iso8601TimePointFormatter",
        "Writes YYYY-MM-DDTHH:MM:SS.fffffffffZ; the unset, minimum and maximum points as 'unset', 'min' and 'max'.")
        .def(py::init<>());

    py::class_<TP::DurationFormatter>(timePoints, "DurationFormatter", "What writes a duration as text.")
        .def("format", &TP::DurationFormatter::Format, py::arg("duration"));
    py::class_<TP::ClockDurationFormatter, TP::DurationFormatter>(timePoints, "ClockDurationFormatter",
                                                                  "Writes [-]HH:MM:SS.fffffffff.")
        .def(py::init<>());
    py::class_<TP::TimeCodeDurationFormatter, TP::DurationFormatter>(
        timePoints, "TimeCodeDurationFormatter", "Writes a duration as the timecode label of its frames at a rate.")
        .def(py::init<const TP::Rate&, bool>(), py::arg("rate"), py::arg("is_drop") = false)
        .def_property_readonly("rate", &TP::TimeCodeDurationFormatter::Rate)
        .def_property_readonly("is_drop", &TP::TimeCodeDurationFormatter::IsDrop);

    auto timeCode = py::reinterpret_borrow<py::class_<TP::TimeCode>>(timePoints.attr("TimeCode"));
    timeCode
        .def_static(
            "from_parts",
            [](const TP::Rate& rate, int32_t hours, int32_t minutes, int32_t seconds, int32_t frames, bool isDrop) {
                return TP::TimeCode(rate, hours, minutes, seconds, frames, isDrop);
            },
            py::arg("rate"), py::arg("hours"), py::arg("minutes"), py::arg("seconds"), py::arg("frames"),
            py::arg("is_drop") = false)
        .def("to_string", &TP::TimeCode::ToString, py::arg("formatter"))
        .def_static("parse", &TP::TimeCode::Parse, py::arg("text"), py::arg("parser"));

    auto timePoint = py::reinterpret_borrow<py::class_<TP::TimePoint>>(timePoints.attr("TimePoint"));
    timePoint.def("to_string", &TP::TimePoint::ToString, py::arg("formatter"))
        .def_static("parse", &TP::TimePoint::Parse, py::arg("text"), py::arg("parser"));

    auto duration = py::reinterpret_borrow<py::class_<TP::Duration>>(timePoints.attr("Duration"));
    duration.def("to_string", &TP::Duration::ToString, py::arg("formatter"));
}

}  // namespace Orvik::Python
