// The Python module orvik_media_assets: the media asset model bound with pybind11.
//
// Errors keep the library's texts: std::invalid_argument becomes ValueError, the model's
// std::runtime_error RuntimeError, a position outside a container IndexError, and a lookup by
// name or asset id that finds nothing KeyError (see the bindings of the dictionary and groups).

#include "Bindings.h"

#include <pybind11/pybind11.h>

namespace Orvik::Python {

#ifdef ORVIK_PYTHON_JSON
// The JSON form, bound when the JSON library is built (JsonBindings.cpp).
void BindJson(py::module_& module);
// The OpenTimelineIO form, bound after the JSON form whose layout and error it uses (OtioBindings.cpp).
void BindOtio(py::module_& module);
#endif

#ifdef ORVIK_PYTHON_PROBE
// The media probe, bound when the probe library is built (ProbeBindings.cpp).
void BindProbe(py::module_& module);
#endif

#ifdef ORVIK_PYTHON_TOOL
// What the orvik-asset tool shows, bound when the tool is built (ToolBindings.cpp).
void BindTool(py::module_& module);
#endif

}  // namespace Orvik::Python

PYBIND11_MODULE(orvik_media_assets, module)
{
    using namespace Orvik::Python;
    module.doc() = "The in-memory data model of media assets for live broadcast production.";
    py::module_ timePoints = module.def_submodule("time_points",
                                                  "Time values: points, durations, boundaries, "
                                                  "bounds, rates and timecodes, and their texts.");
    // Importable by its name too, as its type stub is: import orvik_media_assets.time_points.
    py::module_::import("sys").attr("modules")["orvik_media_assets.time_points"] = timePoints;
    BindBaseTypes(module);
    BindTimeValues(module, timePoints);
    BindTimeTexts(timePoints);
    BindEnumerations(module);
    BindIdentifiers(module);
    BindEssences(module);
    BindLocations(module);
    BindStreams(module);
    BindTracks(module);
    BindOperatorMetadata(module);
    BindMediaAsset(module);
    BindGroups(module);
    BindFirstDifference(module);
#ifdef ORVIK_PYTHON_JSON
    BindJson(module);
    BindOtio(module);
#endif
#ifdef ORVIK_PYTHON_PROBE
    BindProbe(module);
#endif
#ifdef ORVIK_PYTHON_TOOL
    BindTool(module);
#endif
}
