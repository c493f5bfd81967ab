// The media probe: a media file described as an asset, with the warnings of what could not be
// mapped.

#include "Aliases.h"
#include "ExceptionClass.h"
#include "Repr.h"

#include <Orvik/DataModel/MediaAssets/Probe.h>

#include <pybind11/stl.h>

#include <array>
#include <string>
#include <utility>

namespace Orvik::Python {

namespace Probe = MA::Probe;

void BindProbe(py::module_& module)
{
    py::class_<Probe::ProbeWarning> warning(module, "ProbeWarning",
                                            "Something of a media file that the probe could not put into the model.");
    py::enum_<Probe::ProbeWarning::Kind>(warning, "Kind",
                                         "Unmapped: a value no mapping matched, left at unknown; Omitted: a fact the "
                                         "model cannot hold or the file does not give.")
        .value("Unmapped", Probe::ProbeWarning::Unmapped)
        .value("Omitted", Probe::ProbeWarning::Omitted);
    warning.def_readonly("kind", &Probe::ProbeWarning::kind)
        .def_readonly("message", &Probe::ProbeWarning::message)
        .def("__repr__", [](const Probe::ProbeWarning& self) {
            return std::string("ProbeWarning(") + (self.kind == Probe::ProbeWarning::Unmapped ? "Unmapped" : "Omitted")
                + ", " + Quoted(self.message) + ")";
        });

    DefineExceptionClass<Probe::ProbeError, 2>(
        module, "ProbeError", {{{"source", &Probe::ProbeError::Source}, {"reason", &Probe::ProbeError::Reason}}});

    module.def(
        "probe",
        [](const std::string& path) {
            Probe::ProbeResult result = [&] {
                const py::gil_scoped_release release;
                return Probe::ProbeFile(path);
            }();
            return std::make_pair(std::move(result.asset), std::move(result.warnings));
        },
        py::arg("path"),
        "The media asset that the media file at `path` describes, read from its headers, and the list of "
        "ProbeWarning of what could not be mapped. ProbeError (with `source` and `reason`) when the file cannot "
        "be described.");
}

}  // namespace Orvik::Python
