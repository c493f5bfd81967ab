// The Python module orvik_media_assets: the media asset model bound with pybind11.
//
// Errors keep the library's texts: std::invalid_argument becomes ValueError, the model's
// std::runtime_error RuntimeError, a position outside a container IndexError, and a lookup by
// name or asset id that finds nothing KeyError (see the bindings of the dictionary and groups).

#include "Bindings.h"

#include <pybind11/pybind11.h>

#include <string>

namespace Orvik::Python {

bool LoadText(py::handle source, std::string& text)
{
    if (PyUnicode_Check(source.ptr())) {
        const py::object bytes =
            py::reinterpret_steal<py::object>(PyUnicode_AsEncodedString(source.ptr(), "utf-8", "surrogateescape"));
        if (!bytes) {
            PyErr_Clear();
            return false;
        }
        text.assign(PyBytes_AsString(bytes.ptr()), static_cast<std::size_t>(PyBytes_Size(bytes.ptr())));
        return true;
    }
    if (PyBytes_Check(source.ptr())) {
        text.assign(PyBytes_AsString(source.ptr()), static_cast<std::size_t>(PyBytes_Size(source.ptr())));
        return true;
    }
    return false;
}

py::handle TextToPython(const std::string& text)
{
    PyObject* result = PyUnicode_DecodeUTF8(text.data(), static_cast<py::ssize_t>(text.size()), "surrogateescape");
    if (result == nullptr)
        throw py::error_already_set();
    return result;
}

std::string Repr(const py::handle& value) { return py::repr(value).cast<std::string>(); }

std::string Quoted(const std::string& text) { return Repr(py::reinterpret_steal<py::object>(TextToPython(text))); }

std::size_t FromEnd(py::ssize_t index, std::size_t size)
{
    if (index >= 0)
        return static_cast<std::size_t>(index);
    const py::ssize_t position = index + static_cast<py::ssize_t>(size);
    if (position < 0)
        throw py::index_error("index " + std::to_string(index) + " out of range for size " + std::to_string(size));
    return static_cast<std::size_t>(position);
}

#ifdef ORVIK_PYTHON_JSON
// The JSON form, bound when the JSON library is built (JsonBindings.cpp).
void BindJson(py::module_& module);
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
#endif
#ifdef ORVIK_PYTHON_PROBE
    BindProbe(module);
#endif
#ifdef ORVIK_PYTHON_TOOL
    BindTool(module);
#endif
}
