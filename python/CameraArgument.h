#pragma once

// A camera letter given from Python.

#include "Aliases.h"
#include "Repr.h"

#include <Orvik/DataModel/MediaAssets/Utils/CameraText.h>

#include <pybind11/pybind11.h>

#include <string>

namespace Orvik::Python {

/// The camera that `text` names in the form of CameraText ("" for none, otherwise one character
/// up to U+00FF); ValueError for any other text.
inline char CameraArgument(const std::string& text)
{
    char camera = '\0';
    if (!MA::CameraFromText(text, camera))
        throw py::value_error("a camera is one character, or '' for none; got " + Quoted(text));
    return camera;
}

}  // namespace Orvik::Python
