// Time values: points and durations in nanoseconds, boundaries, bounds, rates and timecodes.
// They are values: reading one from an object gives a copy.

#include "Bindings.h"
#include "CommonMembers.h"
#include "Properties.h"
#include "Repr.h"

#include <Orvik/DataModel/MediaAssets.h>
#include <Orvik/TimePoints/Core/RatedTimePoint.h>

namespace Orvik::Python {
namespace {

namespace TP = Orvik::TimePoints;

template <typename Class>
void DefineOrdering(Class& cls)
{
    using T = typename Class::type;
    DefineEquality(cls);
    cls.def(
           "__lt__", [](const T& a, const T& b) { return a < b; }, py::is_operator())
        .def(
            "__le__", [](const T& a, const T& b) { return a <= b; }, py::is_operator())
        .def(
            "__gt__", [](const T& a, const T& b) { return a > b; }, py::is_operator())
        .def(
            "__ge__", [](const T& a, const T& b) { return a >= b; }, py::is_operator())
        .def("__hash__", [](const T& self) { return py::hash(py::int_(self.ToNanoseconds())); })
        .def("__int__", &T::ToNanoseconds)
        .def("__repr__", [](const T& self) {
            return std::string(py::str(py::type::of<T>().attr("__name__"))) + "(" + std::to_string(self.ToNanoseconds())
                + ")";
        });
}

template <typename Class>
void DefineValueCopies(Class& cls)
{
    using T = typename Class::type;
    cls.def("__copy__", [](const T& self) { return T(self); }).def("__deepcopy__", [](const T& self, const py::dict&) {
        return T(self);
    });
}

}  // namespace

void BindTimeValues(py::module_& module, py::module_& timePoints)
{
    py::class_<TP::Duration> duration(timePoints, "Duration", "A signed length of time in nanoseconds.");
    duration.def(py::init<>())
        .def(py::init<int64_t>(), py::arg("nanoseconds"))
        .def_static("from_nanoseconds", &TP::Duration::FromNanoseconds)
        .def_static("from_milliseconds", &TP::Duration::FromMilliseconds)
        .def_static("from_seconds", &TP::Duration::FromSeconds)
        .def_static("from_minutes", &TP::Duration::FromMinutes)
        .def_static("empty", &TP::Duration::Empty)
        .def_static("min_value", &TP::Duration::MinValue)
        .def_static("max_value", &TP::Duration::MaxValue)
        .def_property_readonly("nanoseconds", &TP::Duration::ToNanoseconds)
        .def(
            "__add__", [](const TP::Duration& a, const TP::Duration& b) { return a + b; }, py::is_operator())
        .def(
            "__sub__", [](const TP::Duration& a, const TP::Duration& b) { return a - b; }, py::is_operator());
    DefineOrdering(duration);
    DefineValueCopies(duration);

    py::class_<TP::Rate> rate(timePoints, "Rate",
                              "A rational rate per second (25/1, 30000/1001), compared as stored: 50/2 is not 25/1.");
    rate.def(py::init<>())
        .def(py::init<int64_t, int64_t>(), py::arg("numerator"), py::arg("denominator"))
        .ORVIK_PROPERTY(TP::Rate, "numerator", Numerator)
        .ORVIK_PROPERTY(TP::Rate, "denominator", Denominator)
        .def("__repr__", [](const TP::Rate& self) {
            return "Rate(" + std::to_string(self.Numerator()) + ", " + std::to_string(self.Denominator()) + ")";
        });
    DefineEquality(rate);
    DefineValueCopies(rate);

    py::class_<TP::TimePoint> timePoint(timePoints, "TimePoint",
                                        "A point on the media time line in signed nanoseconds; empty() marks an "
                                        "unset point.");
    timePoint.def(py::init<>())
        .def(py::init<int64_t>(), py::arg("nanoseconds"))
        .def_static("empty", &TP::TimePoint::Empty)
        .def_static("min_value", &TP::TimePoint::MinValue)
        .def_static("max_value", &TP::TimePoint::MaxValue)
        .def_property_readonly("nanoseconds", &TP::TimePoint::ToNanoseconds)
        .def("get_sample_number", &TP::TimePoint::GetSampleNumber, py::arg("rate"))
        .def_static("from_sample_number", &TP::TimePoint::FromSampleNumber, py::arg("sample_number"), py::arg("rate"))
        .def("align_with", &TP::TimePoint::AlignWith, py::arg("rate"))
        .def(
            "__add__", [](const TP::TimePoint& a, const TP::Duration& b) { return a + b; }, py::is_operator())
        .def(
            "__sub__", [](const TP::TimePoint& a, const TP::Duration& b) { return a - b; }, py::is_operator())
        .def(
            "__sub__", [](const TP::TimePoint& a, const TP::TimePoint& b) { return a - b; }, py::is_operator());
    DefineOrdering(timePoint);
    DefineValueCopies(timePoint);

    py::class_<TP::TimeBoundary> boundary(timePoints, "TimeBoundary",
                                          "An in or out point that may still be moving. empty() is the unset "
                                          "boundary, and the default.");
    boundary.def(py::init<>())
        .def(py::init<const TP::TimePoint&, bool>(), py::arg("time_point"), py::arg("is_moving") = false)
        .def_static("empty", &TP::TimeBoundary::Empty)
        .ORVIK_PROPERTY(TP::TimeBoundary, "time_point", TimePoint)
        .ORVIK_PROPERTY(TP::TimeBoundary, "is_moving", IsMoving)
        .def("__repr__", [](const TP::TimeBoundary& self) {
            return "TimeBoundary(" + Repr(py::cast(self.TimePoint())) + ", " + (self.IsMoving() ? "True" : "False") + ")";
        });
    DefineEquality(boundary);
    DefineValueCopies(boundary);

    py::class_<TP::TimeBounds> bounds(timePoints, "TimeBounds", "An in/out pair of boundaries.");
    bounds.def(py::init<>())
        .def(py::init<const TP::TimeBoundary&, const TP::TimeBoundary&>(), py::arg("in_boundary"), py::arg("out_boundary"))
        .ORVIK_PROPERTY(TP::TimeBounds, "in_boundary", InBoundary)
        .ORVIK_PROPERTY(TP::TimeBounds, "out_boundary", OutBoundary)
        .def_property_readonly("duration", &TP::TimeBounds::Duration)
        .def("__repr__", [](const TP::TimeBounds& self) {
            return "TimeBounds(" + Repr(py::cast(self.InBoundary())) + ", " + Repr(py::cast(self.OutBoundary())) + ")";
        });
    DefineEquality(bounds);
    DefineValueCopies(bounds);

    py::class_<TP::RatedTimePoint> rated(timePoints, "RatedTimePoint",
                                         "A time point with the rate it is counted in and an offset.");
    rated.def(py::init<>())
        .def(py::init<const TP::TimePoint&, const TP::Rate&, const TP::Duration&>(), py::arg("time_point"), py::arg("rate"),
             py::arg("delta"))
        .ORVIK_PROPERTY(TP::RatedTimePoint, "time_point", TimePoint)
        .ORVIK_PROPERTY(TP::RatedTimePoint, "rate", Rate)
        .ORVIK_PROPERTY(TP::RatedTimePoint, "delta", Delta);
    DefineEquality(rated);
    DefineValueCopies(rated);

    py::class_<TP::TimeCode> timeCode(timePoints, "TimeCode",
                                      "A timecode as a count of frames from the origin, with its rate, drop-frame "
                                      "and date flags. The clock fields need a positive rate (ValueError "
                                      "otherwise).");
    timeCode.def(py::init<>())
        .def(py::init<const TP::Rate&, int64_t, bool, bool>(), py::arg("rate"), py::arg("total_sample"),
             py::arg("is_drop") = false, py::arg("has_date") = false)
        .ORVIK_PROPERTY(TP::TimeCode, "rate", Rate)
        .ORVIK_PROPERTY(TP::TimeCode, "total_sample", TotalSample)
        .ORVIK_PROPERTY(TP::TimeCode, "is_drop", IsDrop)
        .ORVIK_PROPERTY(TP::TimeCode, "has_date", HasDate)
        .def_property_readonly("year", &TP::TimeCode::Year)
        .def_property_readonly("month", &TP::TimeCode::Month)
        .def_property_readonly("day", &TP::TimeCode::Day)
        .def_property_readonly("hour", &TP::TimeCode::Hour)
        .def_property_readonly("minute", &TP::TimeCode::Minute)
        .def_property_readonly("second", &TP::TimeCode::Second)
        .def_property_readonly("sample", &TP::TimeCode::Sample)
        .def("is_compatible", &TP::TimeCode::IsCompatible, py::arg("other"))
        .def(
            "__add__", [](const TP::TimeCode& self, int64_t count) { return self + count; }, py::is_operator())
        .def(
            "__sub__", [](const TP::TimeCode& self, int64_t count) { return self - count; }, py::is_operator())
        .def("__repr__", [](const TP::TimeCode& self) {
            return "TimeCode(" + Repr(py::cast(self.Rate())) + ", " + std::to_string(self.TotalSample()) + ", "
                + (self.IsDrop() ? "True" : "False") + ", " + (self.HasDate() ? "True" : "False") + ")";
        });
    DefineEquality(timeCode);
    DefineValueCopies(timeCode);

    // The model names these time values directly; its own Rate (of essences) is another class.
    for (const char* name : {"Duration", "TimePoint", "TimeBoundary", "TimeBounds"})
        module.attr(name) = timePoints.attr(name);
    module.attr("Timecode") = timePoints.attr("TimeCode");
}

}  // namespace Orvik::Python
