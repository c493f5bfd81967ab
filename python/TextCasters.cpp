#include "TextCasters.h"

#include <cstddef>

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

}  // namespace Orvik::Python
