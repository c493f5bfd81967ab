#pragma once

// The short names that the binding sources use: py for pybind11, MA for the model's namespace.

#include <pybind11/pybind11.h>

namespace Orvik::DataModel::MediaAssets {}

namespace Orvik::Python {

namespace py = pybind11;
namespace MA = Orvik::DataModel::MediaAssets;

}  // namespace Orvik::Python
